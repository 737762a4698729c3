#include "chart/ChartPicture.h"

#include "app/mdlPublic.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/layout/ChartDrawing.h"

#include <QMouseEvent>

ChartPicture::ChartPicture(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
}

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
    const auto lines = mdlPublic.Charts.Lines();
    if (mdlPublic.Charts.CountSameCharts(view.Chart) > 0)
    {
        DrawAxes(view, surface);
        DrawCurves(view, lines, surface);
    }
}

void ChartPicture::mouseMoveEvent(QMouseEvent* event)
{
    const double x = chartScale.ScaleLeft + event->position().x() * chartScale.ScaleWidth / chartSurfaceWidth;
    const double y =
        chartScale.ScaleTop + event->position().y() * chartScale.ScaleHeight / chartSurfaceHeight;
    if (x >= 0 && x <= 100 && y >= 0 && y <= 100)
    {
        Q_EMIT PointerMoved(x, y);
    }
    else
    {
        Q_EMIT PointerLeft();
    }
}

void ChartPicture::leaveEvent(QEvent*)
{
    Q_EMIT PointerLeft();
}
