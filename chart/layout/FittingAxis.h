#pragma once

/// The ticks of an axis that is as long as its window leaves room for.

#include "chart/layout/FittingScale.h"

/// What stands along an axis.
struct FittingAxis : FittingTicks
{
    /// Name and unit, which the labels are told in: "Capacitance [µF]".
    std::string Title;
};

/// The X axis over a plot of a width in device-independent pixels, in the unit that it is entered in.
///
/// Linear: ticks at multiples of 1, 2 and 5 times a power of ten, of 1, 2.5 and 5 for a temperature, as close
/// as labels of 4.5 text sizes stand clear. Logarithmic: at powers of ten, with room at 1, 2 and 5 or at 1 to
/// 9 times these, and lines at all of them; a range below a decade has linear ticks at their logarithmic
/// places where these are more. Nothing but a title for a range without extent.
FittingAxis FitXAxis(const ChartView& view, double width, const TextRuler& ruler);

/// The Y axis, as above, beside a plot of a height, in the prefixed unit of its larger end; its labels stand
/// 2.4 text sizes apart, or more.
FittingAxis FitYAxis(const ChartView& view, double height, const TextRuler& ruler);
