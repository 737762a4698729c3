#pragma once

/// The chart surface of a chart window.

#include "chart/drawing/ChartDrawing.h"

#include <QWidget>

/// Paints one chart from the chart data store, whose points must be placed (`PlaceCurves`).
class ChartPicture : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows this chart in these ranges from now on.
    void Show(const ChartView& shown);
    /// The chart and ranges in force.
    const ChartView& View() const { return view; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ChartView view{};
};
