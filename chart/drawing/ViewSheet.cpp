#include "chart/drawing/ViewSheet.h"

#include "chart/drawing/FittedText.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/FittingText.h"

#include <algorithm>
#include <cmath>

/// In text sizes: the margins, the size of the title, blank below title and chart.
static constexpr double margin = 1;
static constexpr double titleSize = 1.25;
static constexpr double blankBelow = 0.5;
/// Height of a line of text at most, in text sizes.
static constexpr double mostLineHeight = 1.25;
/// What title, table and margins may take of the height.
static constexpr double mostBesideChart = 0.6;

/// Draws the title; the rest of the room is left.
static QRectF TakeTitle(const ViewSheet& sheet, QRectF room, double textSize, QPainter& painter)
{
    const auto font = ChartFont(textSize * titleSize / chartFontSize);
    const QFontMetricsF metrics(font, painter.device());
    painter.setFont(font);
    painter.setPen(QtColor(frameColor));
    FittedText(sheet.Title, room.width(), metrics)
        .Draw(painter, room.topLeft() + QPointF(0, metrics.ascent()));
    room.setTop(room.top() + metrics.height() + blankBelow * textSize);
    return room;
}

/// Draws the table; the rest of the room is left.
static QRectF TakeLegend(const ViewSheet& sheet, QRectF room, const LineMarks& marks, QPainter& painter)
{
    const double height = LegendHeight(sheet.Legend.Rows.size(), marks.TextSize);
    const double top = room.bottom() - height;
    DrawLegend(sheet.Legend, {room.left(), top, room.width(), height}, marks, painter);
    room.setBottom(top - blankBelow * marks.TextSize);
    return room;
}

double ViewSheetTextSize(const ViewSheet& sheet, const QSizeF& extent)
{
    const double beside =
        2 * margin + titleSize * mostLineHeight + 2 * blankBelow + LegendHeight(sheet.Legend.Rows.size(), 1);
    const double most = std::floor(mostBesideChart * extent.height() / beside);
    return std::clamp(FittingTextSize(extent.width(), extent.height(), sheet.TextScale), 1.0,
                      std::max(1.0, most));
}

void DrawViewSheet(const ViewSheet& sheet, const QSizeF& extent, QPainter& painter, SurfaceKind kind)
{
    const double textSize = ViewSheetTextSize(sheet, extent);
    const LineMarks marks = {.TextSize = textSize, .Dashed = sheet.Dashed, .Kind = kind};
    painter.save();
    painter.fillRect(QRectF({0, 0}, extent), Qt::white);
    const double edge = margin * textSize;
    auto room = QRectF({0, 0}, extent).adjusted(edge, edge, -edge, -edge);
    room = TakeTitle(sheet, room, textSize, painter);
    room = TakeLegend(sheet, room, marks, painter);
    painter.translate(room.topLeft());
    const FittingChart chart(sheet.View, sheet.Lines, sheet.Code, room.size(), marks);
    chart.Draw(painter);
    chart.DrawOverlay(sheet.Overlay, painter);
    painter.restore();
}
