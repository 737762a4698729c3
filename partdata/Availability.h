#pragma once

/// Whether a part holds the data that a chart needs, and can be shown in a list.

#include "partdata/PartRecord.h"

/// True when any value of the group is not zero.
bool HasData(const PartRecord& part, ValueGroup group);

/// True when the part's listed capacitance and rated voltage are finite numbers; neither could be shown
/// otherwise.
bool CanBeListed(const PartRecord& part);
