#include "formkit/Edges.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

/// Below this an edge drowns in its ground.
static constexpr double LeastContrast = 1.35;
/// Text as strong as this is chosen by those who need it.
static constexpr double StrongText = 19;

static double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance of the sRGB colour space.
static double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

double ContrastOf(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool NeedsStrongEdges(const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    return ContrastOf(ground, palette.color(QPalette::Active, QPalette::Mid)) < LeastContrast ||
           ContrastOf(ground, palette.color(QPalette::Active, QPalette::WindowText)) >= StrongText;
}

QColor EdgeColor(const QPalette& palette)
{
    if (!NeedsStrongEdges(palette))
    {
        return palette.color(QPalette::Mid);
    }
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    return {(ground.red() + text.red()) / 2, (ground.green() + text.green()) / 2,
            (ground.blue() + text.blue()) / 2};
}

QString RefusedFrame(const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const QColor deep(192, 0, 0);
    const QColor bright(255, 96, 96);
    const QColor red = ContrastOf(ground, deep) >= ContrastOf(ground, bright) ? deep : bright;
    return QStringLiteral("QLineEdit { border: 2px solid %1; }").arg(red.name());
}
