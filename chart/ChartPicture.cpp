#include "chart/ChartPicture.h"

#include "app/mdlPublic.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/layout/ChartDrawing.h"
#include "formkit/Twips.h"

#include <QAccessible>
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
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
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

/// The user position of a place of the surface: 0 to 100 in both directions in the plot area.
static QPointF PositionOf(const QPointF& pixels)
{
    return {chartScale.ScaleLeft + pixels.x() * chartScale.ScaleWidth / chartSurfaceWidth,
            chartScale.ScaleTop + pixels.y() * chartScale.ScaleHeight / chartSurfaceHeight};
}

void ChartPicture::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF position = PositionOf(event->position());
    if (QRectF(0, 0, 100, 100).contains(position))
    {
        Q_EMIT PointerMoved(position, (event->position() * TwipsPerPixel).toPoint());
    }
    else
    {
        Q_EMIT PointerLeft();
    }
}

void ChartPicture::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
    {
        Q_EMIT DoubleClicked();
    }
}

void ChartPicture::leaveEvent(QEvent*)
{
    Q_EMIT PointerLeft();
}
