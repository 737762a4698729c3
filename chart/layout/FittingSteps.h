#pragma once

/// Ticks at even steps.

#include "chart/layout/FittingScale.h"

/// How steps are chosen.
enum class StepSizes
{
    /// 1, 2 and 5 times a power of ten.
    Fifths,
    /// 1, 2.5 and 5 times a power of ten: 25, not 20.
    Quarters,
};

/// Ticks at the multiples of the smallest step whose labels stand clear, of which at least two are in the
/// range; with lines between where there is room. On a logarithmic axis of less than a decade the steps stand
/// at their logarithmic places.
FittingTicks TicksAtSteps(const FittingScale& scale, StepSizes sizes);
