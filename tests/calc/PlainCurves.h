#pragma once

/// The curves once more, as the formulas stand: every power with `pow`, every point on its own, no checks.
/// What the calculations are compared with and timed against.

#include "calc/ChartRecord.h"
#include "partdata/PartRecord.h"

struct PlainCurve
{
    CurveValues XData{};
    CurveValues YData{};
    /// Largest permitted parameter of a temperature rise over frequency.
    double Limit = 0;
};

/// The points that the conditions of the record ask for. The part must have a model and no faults.
PlainCurve PlainCurveOf(const PartRecord& part, const ChartRecord& record, CodeView view);
