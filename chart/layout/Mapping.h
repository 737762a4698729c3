#pragma once

/// Where a value lies on an axis of the plot area.

#include "calc/ChartKinds.h"
#include "calc/ChartStore.h"

/// How the axes of a chart are divided; linear where the chart type has no such axis.
AxisKind XAxisKind(const ChartKey& chart);
AxisKind YAxisKind(const ChartKey& chart);

/// One axis: maps values to plot units, 0 at the minimum and 100 at the maximum of its range.
class AxisMapping
{
public:
    AxisMapping(AxisKind kind, float minimum, float maximum);

    /// True when the range has an extent that can be drawn: more than zero width and, on a logarithmic axis,
    /// above zero as a whole.
    bool HasExtent() const { return factor > 0; }

    /// True when the value can be drawn: it lies within the range, bounds included.
    bool Contains(float value) const { return HasExtent() && value >= minimum && value <= maximum; }

    /// The position of a value, also of one outside the range; 0 for a range without extent and for a value
    /// without a logarithm.
    double Position(double value) const;

    /// The value at a position, the inverse of `Position`; the minimum for a range without extent.
    double Value(double position) const;

private:
    AxisKind kind;
    float minimum;
    float maximum;
    /// The minimum as it is scaled: itself, or its common logarithm.
    double origin = 0;
    /// Plot units per scaled unit; 0 for a range without extent.
    double factor = 0;
};
