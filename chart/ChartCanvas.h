#pragma once

/// The chart of a chart view: any size, with cursors over it.

#include "chart/drawing/FittingChart.h"
#include "chart/layout/ChartCursors.h"
#include "chart/layout/ZoomRange.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>
#include <vector>

class QRubberBand;

/// What a chart view shows.
struct ViewScene
{
    ChartView View{};
    std::vector<ViewedLine> Lines;
    CodeView Code = CodeView::Eia;
    ChartCursors Cursors;
    /// The line of the row that is chosen, and the one that the pointer is at.
    std::optional<int> Chosen;
    std::optional<int> Hovered;
    /// Text size of chart and table, and whether each line has its own dashes.
    LineMarks Marks;
};

/// A place in plot units: 0 to 100 over a plot, from left to right and from bottom to top.
QPointF PlotUnits(const QPointF& pixel, const QRectF& plot);

/// What lies over the chart of a scene.
ChartOverlay OverlayOf(const ViewScene& scene);

/// Paints the chart of a scene and tells what the pointer does there. The chart without what lies over it is
/// kept as a picture, so that a step of a cursor paints two strips only; while size or range change, which
/// the pictures could not keep pace with, it is painted straight to the window.
class ChartCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit ChartCanvas(QWidget* parent = nullptr);
    ~ChartCanvas() override;

    /// The scene must outlive the canvas. Call one of the following after each change of it.
    void SetScene(const ViewScene* shown) { scene = shown; }
    /// Lines, range, text size or look have changed.
    void Redraw();
    /// The cursors stand elsewhere.
    void ShowCursors();
    /// Another line is thick, or another cursor pinned.
    void ShowOverlay();

    const ViewScene& Scene() const { return *scene; }
    /// The chart as it is laid out.
    const FittingChart& Chart() const;
    /// The value that a pointer at a place means: the shortest number within the pixel, in the unit of
    /// records, within the range shown.
    double XUnder(double pixel) const;
    /// The tick nearest the middle of the range shown.
    double MiddleX() const;
    /// The plot area as it is once a range is shown, whose Y labels may take more or less room.
    QRectF PlotShowing(const AxisRange& range) const;

Q_SIGNALS:
    /// The pointer is over the plot, at this X.
    void PointerMoved(double x);
    /// The line that the pointer is at, or none.
    void LineHovered(std::optional<int> line);
    void Clicked(double x);
    void DoubleClicked();
    /// A drag begins, and has come from a place to another, in pixels.
    void DragStarted();
    void Dragged(const QPointF& from, const QPointF& to);
    /// A rectangle was drawn, in plot units.
    void RectangleDrawn(double fromX, double fromY, double toX, double toY);
    /// A screen reader asks for this X.
    void XAskedFor(double x);
    /// The wheel was turned over a place in pixels.
    void WheelTurned(double factor, const QPointF& at, ZoomAxes axes);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum class Hold
    {
        None,
        /// The button is down, and a click or a drag may come of it.
        Pressed,
        Dragging,
        Framing,
    };

    ZoomAxes AxesAt(const QPointF& pixel, Qt::KeyboardModifiers modifiers) const;
    void Hover(const QPointF& pixel);
    void Drag(const QPointF& pixel);
    QRegion Strips() const;
    void MakeBase();

    const ViewScene* scene = nullptr;
    mutable std::unique_ptr<FittingChart> chart;
    /// What covered the cursors when they were painted last.
    QRegion strips;
    /// The chart without what lies over it, in device pixels; it may be larger than the window.
    QImage base;
    bool isBaseMade = false;
    QTimer makingBase;

    Hold hold = Hold::None;
    QPointF pressedAt;
    Qt::KeyboardModifiers pressedWith;
    std::unique_ptr<QRubberBand> frame;
};
