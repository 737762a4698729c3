#include "chart/ChartPicture.h"

#include "app/mdlPublic.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/layout/ChartDrawing.h"
#include "formkit/Twips.h"

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

QPointF ChartPicture::PositionOf(int xTwips, int yTwips)
{
    const QPointF pixels = QPointF(xTwips, yTwips) / TwipsPerPixel;
    return {chartScale.ScaleLeft + pixels.x() * chartScale.ScaleWidth / chartSurfaceWidth,
            chartScale.ScaleTop + pixels.y() * chartScale.ScaleHeight / chartSurfaceHeight};
}

void ChartPicture::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint twips = (event->position() * TwipsPerPixel).toPoint();
    if (QRectF(0, 0, 100, 100).contains(PositionOf(twips.x(), twips.y())))
    {
        Q_EMIT PointerMoved(twips.x(), twips.y());
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
