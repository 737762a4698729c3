#pragma once

/// Which parts the lists offer for a chart type.

#include "partdata/PartRecord.h"

/// True when any value of the group is not zero.
bool HasData(const PartRecord& part, ValueGroup group);

/// True when the part holds data for the chart type: for 0 and 1 any power value is not
/// zero, for 2 and 3 any capacitance value.
///
/// False for a chart type outside 0 to 3, and for a part whose listed capacitance or rated voltage
/// is not a finite number: neither could be shown in a list.
bool IsAvailable(const PartRecord& part, int chartType);
