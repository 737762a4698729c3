#include "chart/ChartPicture.h"

#include "app/mdlPublic.h"
#include "chart/drawing/PainterSurface.h"

void ChartPicture::Show(const ChartView& shown)
{
    view = shown;
    update();
}

void ChartPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, QRectF(0, 0, chartSurfaceWidth, chartSurfaceHeight), chartScale);
    surface.Clear();
    const auto lines = std::as_const(mdlPublic.Charts).Lines();
    if (mdlPublic.Charts.CountSameCharts(view.Chart) > 0)
    {
        DrawAxes(view, surface);
        DrawCurves(view, lines, surface);
    }
}
