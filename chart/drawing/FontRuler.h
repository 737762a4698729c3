#pragma once

/// Measures the texts of charts by the font that they are drawn in.

#include "chart/drawing/PainterSurface.h"
#include "chart/layout/TextRuler.h"

class FontRuler : public TextRuler
{
public:
    /// @param fontSize in device-independent pixels
    explicit FontRuler(double fontSize)
        : size(fontSize)
        , metrics(ChartFont(fontSize / chartFontSize))
    {
    }

    double TextSize() const override { return size; }
    double LineHeight() const override { return metrics.height(); }
    double WidthOf(std::string_view text) const override
    {
        return metrics.horizontalAdvance(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    }

private:
    double size;
    QFontMetricsF metrics;
};
