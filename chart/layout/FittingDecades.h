#pragma once

/// Ticks at powers of ten.

#include "chart/layout/FittingScale.h"

/// Ticks of a logarithmic axis: at powers of ten, or at every second, third and so on;
/// with room at 1, 2 and 5 or at 1 to 9 times these. A range with a single power of ten is labelled at 3 as
/// well. Lines stand at 1 to 9 times all powers of ten.
FittingTicks TicksAtDecades(const FittingScale& scale);
