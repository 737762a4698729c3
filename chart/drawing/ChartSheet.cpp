#include "chart/drawing/ChartSheet.h"

#include "chart/drawing/PainterSurface.h"
#include "chart/layout/PaneText.h"

static constexpr QRectF QtRect(const Box& box)
{
    return {box.Left, box.Top, box.Width, box.Height};
}

static void DrawText(QPainter& painter, const Box& place, const QString& text)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    painter.drawText(QtRect(place), Qt::AlignLeft | Qt::AlignTop,
                     metrics.elidedText(text, Qt::ElideRight, place.Width));
}

/// The frame of a pane with its caption in the upper edge.
static void DrawPaneFrame(QPainter& painter, int index)
{
    const auto pane = LayOutPane(index);
    const auto caption = QStringLiteral("No.%1").arg(index + 1);
    const double captionWidth = QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(caption);

    painter.setPen(QPen(QtColor(paneFrameColor), 1));
    painter.drawRect(QtRect(pane.Frame));
    painter.fillRect(QRectF(pane.Caption.Left - 2, pane.Caption.Top, captionWidth + 4, pane.Caption.Height),
                     QtColor(sheetColor));
    painter.setPen(QtColor(GetPaneColor(index)));
    DrawText(painter, pane.Caption, caption);
}

void DrawChartSheet(const ChartView& view, std::span<const ChartRecord> lines,
                    std::span<const QString> partNums, QPainter& painter)
{
    painter.fillRect(QRectF(QPointF(0, 0), sheetSize), QtColor(sheetColor));
    PainterSurface surface(painter, QtRect(sheetChart), chartScale);
    surface.Clear();
    DrawAxes(view, surface);
    DrawCurves(view, lines, surface);

    for (int index = 0; index < MaximumLines; ++index)
    {
        DrawPaneFrame(painter, index);
    }
    int position = 0;
    for (const ChartRecord& line : lines)
    {
        if (KeyOf(line) == view.Chart && position < MaximumLines)
        {
            const auto pane = LayOutPane(position);
            painter.setPen(QtColor(GetPaneColor(position)));
            DrawText(painter, pane.PartNum, partNums[static_cast<std::size_t>(position)]);
            DrawText(painter, pane.Conditions, QString::fromStdString(PaneText(line, view.DegreeSign)));
            ++position;
        }
    }
}
