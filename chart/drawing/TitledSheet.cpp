#include "chart/drawing/TitledSheet.h"

#include "calc/ChartNames.h"
#include "chart/drawing/FittedText.h"
#include "chart/drawing/PainterSheet.h"
#include "chart/drawing/QtColors.h"

// All in device-independent pixels.
static constexpr double margin = 10;
static constexpr double titleHeight = 17;
static constexpr double titleGap = 8;
static constexpr double titleEnlargement = 1.3;

/// Where the chart comes to lie with its panes: the sheet's own margins differ from side to side.
static constexpr QRectF contents(QPointF(margin, margin + titleHeight + titleGap),
                                 QSizeF(sheetContents.Width, sheetContents.Height));

QSizeF TitledSheetSize()
{
    return {contents.right() + margin, contents.bottom() + margin};
}

static void DrawTitle(const ChartKey& chart, QPainter& painter)
{
    painter.setFont(ChartFont(titleEnlargement));
    painter.setPen(QtColor(frameColor));
    const QFontMetricsF metrics(painter.font(), painter.device());
    const FittedText title(QString::fromStdString(ChartCaption(chart)), contents.width(), metrics);
    title.Draw(painter, {contents.left(), margin + metrics.ascent()});
}

void DrawTitledSheet(const ChartView& view, std::span<const ChartRecord> lines,
                     std::span<const std::string> partNums, QPainter& painter)
{
    painter.fillRect(QRectF(QPointF(0, 0), TitledSheetSize()), QtColor(sheetColor));
    DrawTitle(view.Chart, painter);
    painter.save();
    painter.setClipRect(contents);
    painter.translate(contents.left() - sheetContents.Left, contents.top() - sheetContents.Top);
    PainterSheet sheet(painter);
    DrawChartSheet(view, lines, partNums, sheet);
    painter.restore();
}
