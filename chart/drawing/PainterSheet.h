#pragma once

/// A chart with its panes on a painter: the clipboard's picture, a picture file.

#include "chart/drawing/PainterSurface.h"
#include "chart/layout/ChartSheet.h"

#include <QSizeF>

#include <optional>

/// Extent of the sheet in device-independent pixels.
inline constexpr QSizeF sheetSize = {sheetWidth, sheetHeight};

/// A sheet whose upper left corner is at the painter's origin. Its chart is drawn first: it gives the painter
/// the font of the other texts. The painter keeps font, pen and render hints.
class PainterSheet : public SheetSurface
{
public:
    explicit PainterSheet(QPainter& sheetPainter)
        : painter(sheetPainter)
    {
    }

    void Fill(const Box& box, const Color& color) override;
    void Frame(const Box& box, const Color& color) override;
    void Text(const Box& box, std::string_view text, const Color& color) override;
    double TextWidth(std::string_view text) const override;
    ChartSurface& Chart(const Box& place, const UserScale& scale) override;

private:
    QPainter& painter;
    QFontMetricsF metrics{ChartFont(), painter.device()};
    std::optional<PainterSurface> chart;
};
