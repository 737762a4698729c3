#include "chart/drawing/PainterSheet.h"

#include "chart/drawing/FittedText.h"
#include "chart/drawing/QtColors.h"

static QRectF QtRect(const Box& box)
{
    return {box.Left, box.Top, box.Width, box.Height};
}

void PainterSheet::Fill(const Box& box, const Color& color)
{
    painter.fillRect(QtRect(box), QtColor(color));
}

void PainterSheet::Frame(const Box& box, const Color& color)
{
    painter.setPen(QPen(QtColor(color), 1));
    painter.drawRect(QtRect(box));
}

void PainterSheet::Text(const Box& box, std::string_view text, const Color& color)
{
    painter.setPen(QtColor(color));
    const FittedText fitted(QString::fromUtf8(text), box.Width, metrics);
    fitted.Draw(painter, {box.Left, box.Top + metrics.ascent()});
}

double PainterSheet::TextWidth(std::string_view text) const
{
    return metrics.horizontalAdvance(QString::fromUtf8(text));
}

ChartSurface& PainterSheet::Chart(const Box& place, const UserScale& scale)
{
    chart.emplace(painter, QtRect(place), scale);
    chart->Clear();
    return *chart;
}
