#include "chart/ChartCanvas.h"

#include "calc/EngineeringText.h"
#include "calc/ValueAt.h"
#include "chart/drawing/FontRuler.h"
#include "chart/layout/FittingAxis.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRubberBand>
#include <QStyleHints>

#include <algorithm>
#include <cmath>

/// How long size and range stay before the chart is kept as a picture.
static constexpr int MilliSecondsToBase = 100;
static constexpr double ZoomPerNotch = 1.25;
static constexpr double AnglePerNotch = 120;

// ---- What lies over the chart ----

static CursorMark MarkOf(const ViewScene& scene, char name, double x, bool pinned)
{
    const auto text = AxisValueText(QuantityNamed(scene.View.Chart.XAxisName), x, scene.View.DegreeSign);
    CursorMark mark{.X = x, .Tag = QLatin1Char(name) + QStringLiteral(" ") + QString::fromStdString(text)};
    mark.Dashed = pinned;
    for (const ViewedLine& line : scene.Lines)
    {
        mark.Values.push_back(ValueAt(line.Part, line.Line, x, scene.Code));
    }
    return mark;
}

static std::vector<CursorMark> MarksOf(const ViewScene& scene)
{
    const ChartCursors& cursors = scene.Cursors;
    std::vector<CursorMark> marks = {MarkOf(scene, 'A', cursors.A(), cursors.IsPinnedA())};
    if (cursors.B())
    {
        marks.push_back(MarkOf(scene, 'B', *cursors.B(), cursors.IsPinnedB()));
    }
    return marks;
}

ChartOverlay OverlayOf(const ViewScene& scene)
{
    return {.Thick = scene.Hovered ? scene.Hovered : scene.Chosen, .Cursors = MarksOf(scene)};
}

// ---- Painting ----

ChartCanvas::ChartCanvas(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    makingBase.setSingleShot(true);
    makingBase.setInterval(MilliSecondsToBase);
    connect(&makingBase, &QTimer::timeout, this, &ChartCanvas::MakeBase);
}

ChartCanvas::~ChartCanvas() = default;

const FittingChart& ChartCanvas::Chart() const
{
    if (chart == nullptr)
    {
        chart = std::make_unique<FittingChart>(scene->View, scene->Lines, scene->Code, QSizeF(size()),
                                               scene->Marks);
    }
    return *chart;
}

void ChartCanvas::Redraw()
{
    chart.reset();
    isBaseMade = false;
    makingBase.start();
    update();
}

void ChartCanvas::resizeEvent(QResizeEvent*)
{
    if (scene != nullptr)
    {
        Redraw();
    }
}

QRegion ChartCanvas::Strips() const
{
    return Chart().StripsOf(MarksOf(*scene));
}

void ChartCanvas::ShowCursors()
{
    const QRegion before = std::exchange(strips, Strips());
    update(before + strips);
}

void ChartCanvas::ShowOverlay()
{
    strips = Strips();
    update();
}

/// Keeps the chart as a picture. Its memory only grows: giving it back and asking for it again would take
/// longer than painting.
void ChartCanvas::MakeBase()
{
    const double ratio = devicePixelRatioF();
    const QSize needed = (QSizeF(size()) * ratio).toSize() + QSize(1, 1);
    if (base.width() < needed.width() || base.height() < needed.height())
    {
        base = QImage(needed.expandedTo(base.size()), QImage::Format_RGB32);
    }
    base.setDevicePixelRatio(ratio);
    QPainter painter(&base);
    Chart().Draw(painter);
    isBaseMade = true;
}

void ChartCanvas::paintEvent(QPaintEvent* event)
{
    if (scene == nullptr || scene->Lines.empty())
    {
        return;
    }
    QPainter painter(this);
    painter.setClipRegion(event->region());
    if (isBaseMade && base.devicePixelRatio() == devicePixelRatioF())
    {
        const QRectF whole(rect());
        painter.drawImage(whole, base, QRectF(whole.topLeft(), whole.size() * base.devicePixelRatio()));
    }
    else
    {
        Chart().Draw(painter);
    }
    Chart().DrawOverlay(OverlayOf(*scene), painter);
}

// ---- The pointer ----

double ChartCanvas::XUnder(double pixel) const
{
    const double half = 0.5 / devicePixelRatioF();
    const double unit = KindOf(QuantityNamed(scene->View.Chart.XAxisName)).StoredPerShown;
    const auto bounded = [&](double at)
    { return std::clamp<double>(Chart().XAt(at), scene->View.Range.XMin, scene->View.Range.XMax) / unit; };
    return ShortestNumberBetween(bounded(pixel - half), bounded(pixel + half)) * unit;
}

double ChartCanvas::MiddleX() const
{
    const QRectF plot = Chart().Plot();
    const auto ticks = FitXAxis(scene->View, plot.width(), FontRuler(scene->Marks.TextSize)).Ticks;
    const auto nearest =
        std::ranges::min_element(ticks, {}, [](const FittingTick& tick) { return std::abs(tick.At - 50); });
    const double at = nearest == ticks.end() ? 50 : nearest->At;
    return XUnder(plot.left() + at * plot.width() / 100);
}

QRectF ChartCanvas::PlotShowing(const AxisRange& range) const
{
    ChartView view = scene->View;
    view.Range = range;
    const Box plot = LayOutFitting(view, width(), height(), FontRuler(scene->Marks.TextSize)).Plot;
    return {plot.Left, plot.Top, plot.Width, plot.Height};
}

QPointF PlotUnits(const QPointF& pixel, const QRectF& plot)
{
    return {(pixel.x() - plot.left()) * 100 / plot.width(),
            (plot.bottom() - pixel.y()) * 100 / plot.height()};
}

void ChartCanvas::Hover(const QPointF& pixel)
{
    const auto line = Chart().LineNear(pixel);
    if (line != scene->Hovered)
    {
        Q_EMIT LineHovered(line);
    }
    if (Chart().Plot().contains(pixel))
    {
        Q_EMIT PointerMoved(XUnder(pixel.x()));
    }
}

void ChartCanvas::leaveEvent(QEvent*)
{
    if (scene->Hovered)
    {
        Q_EMIT LineHovered(std::nullopt);
    }
}

void ChartCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
    {
        return;
    }
    hold = Hold::Pressed;
    pressedAt = event->position();
    pressedWith = event->modifiers();
}

/// From a press on, beyond the distance of a click: draws a rectangle with Shift, else pans.
void ChartCanvas::Drag(const QPointF& pixel)
{
    if (hold == Hold::Pressed)
    {
        if ((pixel - pressedAt).manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        {
            return;
        }
        const bool framing = pressedWith.testFlag(Qt::ShiftModifier);
        hold = framing ? Hold::Framing : Hold::Dragging;
        framing ? frame = std::make_unique<QRubberBand>(QRubberBand::Rectangle, this), void() : DragStarted();
    }
    if (hold == Hold::Framing)
    {
        frame->setGeometry(QRectF(pressedAt, pixel).normalized().toAlignedRect() & rect());
        frame->show();
        return;
    }
    Q_EMIT Dragged(pressedAt, pixel);
}

void ChartCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (hold == Hold::None)
    {
        Hover(event->position());
    }
    else
    {
        Drag(event->position());
    }
}

void ChartCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
    {
        return;
    }
    const Hold held = std::exchange(hold, Hold::None);
    frame.reset();
    if (held == Hold::Pressed && Chart().Plot().contains(event->position()))
    {
        Q_EMIT Clicked(XUnder(event->position().x()));
    }
    if (held == Hold::Framing)
    {
        const QPointF from = PlotUnits(pressedAt, Chart().Plot());
        const QPointF to = PlotUnits(event->position(), Chart().Plot());
        Q_EMIT RectangleDrawn(from.x(), from.y(), to.x(), to.y());
    }
}

void ChartCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
    {
        hold = Hold::None;
        Q_EMIT DoubleClicked();
    }
}

/// Over the labels of an axis the wheel concerns that axis alone, as it does with Shift for X, Control for Y.
ZoomAxes ChartCanvas::AxesAt(const QPointF& pixel, Qt::KeyboardModifiers modifiers) const
{
    const QRectF plot = Chart().Plot();
    const bool overXLabels = pixel.y() > plot.bottom();
    const bool overYLabels = pixel.x() < plot.left();
    if (modifiers.testFlag(Qt::ShiftModifier) || (overXLabels && !overYLabels))
    {
        return ZoomAxes::X;
    }
    return modifiers.testFlag(Qt::ControlModifier) || (overYLabels && !overXLabels) ? ZoomAxes::Y
                                                                                    : ZoomAxes::Both;
}

void ChartCanvas::wheelEvent(QWheelEvent* event)
{
    // Some desktops turn the wheel's direction with a modifier.
    const QPoint angle = event->angleDelta();
    const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / AnglePerNotch;
    const QPointF at = event->position();
    Q_EMIT WheelTurned(std::pow(ZoomPerNotch, notches), at, AxesAt(at, event->modifiers()));
    event->accept();
}
