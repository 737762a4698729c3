#include "chart/drawing/ChartPage.h"

#include "calc/ChartNames.h"
#include "chart/drawing/FittedText.h"
#include "chart/drawing/PageTable.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/QtColors.h"

#include <algorithm>

namespace
{

// All positions are in twips.
constexpr QSizeF layoutSize(11200, 10800);

constexpr double titleTop = 150;
constexpr double captionTop = 500;
/// The chart is enlarged as a whole, so that its texts and lines are in the proportion of a chart window.
constexpr double chartEnlargement = 1.5;
constexpr QRectF chartRect(1300, 1250, 5600 * chartEnlargement, 6750);

/// The chart's own lines with their points placed for the page.
std::vector<ChartRecord> PlacedLines(const ChartPage& page)
{
    std::vector<ChartRecord> lines;
    std::ranges::copy_if(page.Lines, std::back_inserter(lines),
                         [&](const ChartRecord& line) { return KeyOf(line) == page.View.Chart; });
    PlaceCurves(page.View, lines);
    return lines;
}

std::vector<QString> PartNums(const ChartPage& page, std::span<const ChartRecord> lines)
{
    std::vector<QString> partNums;
    for (const auto& line : lines)
    {
        partNums.push_back(page.PartNumber(line.PartDataIndex));
    }
    return partNums;
}

/// Writes a line of text over the width of the table by its upper edge.
void WriteTitle(double top, const QString& text, const QFont& font, QPainter& painter)
{
    const QFontMetricsF metrics(font, painter.device());
    painter.setFont(font);
    painter.setPen(QtColor(frameColor));
    FittedText(text, pageTableRight - pageTableLeft, metrics)
        .Draw(painter, {pageTableLeft, top + metrics.ascent()});
}

void DrawChart(const ChartPage& page, std::span<const ChartRecord> lines, SurfaceKind kind, QPainter& painter)
{
    PainterSurface surface(painter, chartRect, chartScale, kind, twipsPerPixel * chartEnlargement);
    DrawAxes(page.View, surface);
    DrawCurves(page.View, lines, surface);
}

} // namespace

void DrawChartPage(const ChartPage& page, const PageArea& area, SurfaceKind kind, QPainter& painter)
{
    const auto lines = PlacedLines(page);
    const TwipsScope twips(painter, area);
    const auto room = twips.Extent();
    const auto fit = std::min({1.0, room.width() / layoutSize.width(), room.height() / layoutSize.height()});
    painter.scale(fit, fit);

    WriteTitle(titleTop, page.Title, ChartFont(twipsPerPixel * 1.25), painter);
    WriteTitle(captionTop, QString::fromStdString(ChartCaption(page.View.Chart)),
               ChartFont(twipsPerPixel * 1.5), painter);
    DrawChart(page, lines, kind, painter);
    DrawPageTable(page.View, lines, PartNums(page, lines), kind, painter);
}
