#pragma once

/// The chart of a chart view for who cannot see it.

#include "chart/ChartCanvas.h"

#include <QAccessibleWidget>

/// Tells a screen reader what the chart shows: by name its window, as description axes, lines, cursors and
/// the value of the chosen line (No.1 while none is), as value the X of the cursor that moves, which it can
/// set.
class ChartAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit ChartAccessible(ChartCanvas* canvas);

    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    /// In the unit that the axis is entered in.
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 0; }

    /// Makes these for all canvases from now on.
    static void Install();
    /// Tells readers that value and description of a canvas have changed.
    static void TellChange(ChartCanvas& canvas);

private:
    ChartCanvas& Canvas() const { return *static_cast<ChartCanvas*>(widget()); }
};
