#include "frame/BomPicture.h"

#include "board/BomChart.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/QtColors.h"

#include <QPainter>

#include <utility>

namespace
{
/// What is left of the ink of a chart that does not hold any more.
constexpr double paleOpacity = 0.35;

QPointF Position(const Point& at)
{
    return {at.X, at.Y};
}

void DrawShapes(const BomChart& chart, QPainter& painter)
{
    for (const ChartBand& band : chart.Bands)
    {
        painter.fillRect(QRectF(Position(band.UpperLeft), QSizeF(band.Width, band.Height)),
                         QtColor(band.Fill));
    }
    for (const ChartStroke& stroke : chart.Strokes)
    {
        QPolygonF line;
        for (const Point& point : stroke.Points)
        {
            line << Position(point);
        }
        painter.setPen(QPen(QtColor(stroke.Ink), 1, stroke.IsDashed ? Qt::DashLine : Qt::SolidLine));
        painter.drawPolyline(line);
    }
    painter.setPen(Qt::NoPen);
    for (const ChartDot& dot : chart.Dots)
    {
        painter.setBrush(QtColor(dot.Fill));
        painter.drawEllipse(Position(dot.Center), dot.Radius, dot.Radius);
    }
}

void DrawLabels(const BomChart& chart, QPainter& painter)
{
    for (const ChartLabel& label : chart.Labels)
    {
        const QString text = QString::fromStdString(label.Text);
        const double width = QFontMetricsF(painter.font()).horizontalAdvance(text);
        const double share = label.Anchor == TextAnchor::Start    ? 0
                             : label.Anchor == TextAnchor::Middle ? 0.5
                                                                  : 1;
        painter.setPen(QtColor(label.Ink));
        painter.drawText(Position(label.At) - QPointF(share * width, 0), text);
    }
}
} // namespace

void BomPicture::SetItem(std::shared_ptr<const CheckedBom> board, const JudgedItem* shown)
{
    bom = std::move(board);
    item = shown;
    update();
}

void BomPicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const auto chart = item == nullptr ? std::nullopt
                                       : ChartOf(*item, {.Width = static_cast<double>(width()),
                                                         .Height = static_cast<double>(height()),
                                                         .TextHeight = chartFontSize});
    if (chart)
    {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(ChartFont());
        painter.setOpacity(isEnabled() ? 1 : paleOpacity);
        DrawShapes(*chart, painter);
        DrawLabels(*chart, painter);
    }
}
