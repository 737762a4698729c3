#pragma once

/// One axis of a chart that a user zooms and pans.

#include "chart/layout/Mapping.h"

/// The ends in force, within permitted ones. An axis without extent stays as it is.
///
/// The ends that are shown are rounded to a thousandth of the span, and are the default ones where both are
/// within half a percent of its span; steps go on from the exact ends, so that as many steps back lead to
/// where they began.
class ZoomAxis
{
public:
    ZoomAxis() = default;
    /// @param lowest, highest what is permitted, which the default ends are
    ZoomAxis(AxisKind axisKind, float defaultFrom, float defaultTo, double lowest, double highest);

    float From() const { return shownFrom; }
    float To() const { return shownTo; }
    bool IsDefault() const { return shownFrom == defaultFrom && shownTo == defaultTo; }

    void Reset() { Take(defaults.From, defaults.To); }
    /// Takes ends of a user's own, shown as they are given as far as they are permitted.
    void Set(float from, float to);
    /// The span becomes `factor` times smaller; the value at a position, in plot units, comes to stand at a
    /// place, which is the same position unless the plot itself moves. At a limit the ends shift, and keep
    /// their span while that fits. The least span is a thousandth of the default one, a tenth of a decade on
    /// a logarithmic axis.
    void Zoom(double factor, double position, double place);
    /// Shows what lies between two positions, in plot units.
    void ShowBetween(double fromPosition, double toPosition);

private:
    /// Ends as they are scaled: values, or their common logarithms.
    struct Ends
    {
        double From = 0;
        double To = 0;
        double Span() const { return To - From; }
    };
    double Scaled(double value) const;
    float Value(double scaled) const;
    double LeastSpan() const;
    void Take(double from, double to);
    void Show();
    float Rounded(double scaled) const;

    AxisKind kind = AxisKind::Linear;
    float defaultFrom = 0;
    float defaultTo = 0;
    float shownFrom = 0;
    float shownTo = 0;
    Ends permitted;
    Ends defaults;
    Ends exact;
};
