#pragma once

/// Which parts the lists offer for a chart type.

#include "partdata/PartRecord.h"

/// True when the part holds data for the chart type: for 0 and 1 any of `Data(28)` to `Data(65)` is not
/// zero, for 2 and 3 any of `Data(3)` to `Data(27)`.
///
/// False for a chart type outside 0 to 3, and for a part whose capacitance `Data(0)` or rated voltage
/// `Data(2)` is not a finite number: neither could be shown in a list.
bool IsAvailable(const PartRecord& part, int chartType);
