#pragma once

/// The chart surface of a chart window.

#include "chart/layout/ChartView.h"

#include <QPoint>
#include <QPointF>
#include <QWidget>

/// Paints one chart from the chart data store, whose points must be placed (`PlaceCurves`).
class ChartPicture : public QWidget
{
    Q_OBJECT

public:
    explicit ChartPicture(QWidget* parent = nullptr);

    /// Shows this chart in these ranges from now on.
    void Show(const ChartView& shown);
    /// The chart and ranges in force.
    const ChartView& View() const { return view; }

Q_SIGNALS:
    /// The pointer is over the plot area, at a position of 0 to 100 in both directions, which is a place of
    /// the surface in twips.
    void PointerMoved(QPointF position, QPoint twips);
    /// The pointer has left the plot area.
    void PointerLeft();
    /// The chart was clicked twice.
    void DoubleClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    ChartView view{};
};
