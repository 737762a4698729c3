#include "bench/NotedChart.h"

void PaintNoted(const NotedChart& chart, QPainter& painter, const QFont& font)
{
    painter.fillRect(QRectF(0, 0, chartSurfaceWidth, chartSurfaceHeight), Qt::white);
    painter.setFont(font);
    for (const auto& line : chart.Lines)
    {
        painter.setPen(line.Color);
        painter.drawLine(line.Line);
    }
    painter.setPen(Qt::black);
    for (const auto& text : chart.Texts)
    {
        painter.drawText(text.Baseline, text.Text);
    }
    painter.save();
    painter.translate(chart.UpwardsText.Baseline);
    painter.rotate(-90);
    painter.drawText(QPointF(-35, 10), chart.UpwardsText.Text);
    painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& curve : chart.Curves)
    {
        painter.setPen(QPen(curve.Color, 1.3));
        painter.drawPolyline(curve.Points.data(), static_cast<int>(curve.Points.size()));
    }
}
