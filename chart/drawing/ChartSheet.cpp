#include "chart/drawing/ChartSheet.h"

#include "chart/drawing/Colors.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/PaneText.h"

static QRectF PaneRect(int index)
{
    return {377, index * 620 / 15.0 + 7.5, 333, 33};
}

static void DrawText(QPainter& painter, const QRectF& place, const QString& text)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop,
                     metrics.elidedText(text, Qt::ElideRight, place.width()));
}

/// The frame of a pane with its caption in the upper edge.
static void DrawPaneFrame(QPainter& painter, int index)
{
    const QRectF frame = PaneRect(index);
    const auto caption = QStringLiteral("No.%1").arg(index + 1);
    const QRectF captionPlace(frame.left() + 6, frame.top() - 7, 40, 14);
    const double captionWidth = QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(caption);

    painter.setPen(QPen(QColor(184, 184, 184), 1));
    painter.drawRect(frame);
    painter.fillRect(QRectF(captionPlace.left() - 2, captionPlace.top(), captionWidth + 4, 14), sheetColor);
    painter.setPen(GetPaneColor(index));
    DrawText(painter, captionPlace, caption);
}

void DrawChartSheet(const ChartView& view, std::span<const ChartRecord> lines,
                    std::span<const QString> partNums, QPainter& painter)
{
    painter.fillRect(QRectF(QPointF(0, 0), sheetSize), sheetColor);
    PainterSurface surface(painter, sheetChart, chartScale);
    surface.Clear();
    DrawAxes(view, surface);
    DrawCurves(view, lines, surface);

    for (int index = 0; index < maximumLines; ++index)
    {
        DrawPaneFrame(painter, index);
    }
    int position = 0;
    for (const ChartRecord& line : lines)
    {
        if (KeyOf(line) == view.Chart && position < maximumLines)
        {
            const QRectF frame = PaneRect(position);
            painter.setPen(GetPaneColor(position));
            DrawText(painter, QRectF(frame.left() + 8, frame.top() + 9, 143, 17),
                     partNums[static_cast<std::size_t>(position)]);
            DrawText(painter, QRectF(frame.left() + 152, frame.top() + 9, 177, 17),
                     PaneText(line, view.DegreeSign));
            ++position;
        }
    }
}
