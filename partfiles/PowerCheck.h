#pragma once

/// Whether the heating coefficients of one part make sense.

#include "partfiles/ValueCheck.h"

/// Judges `Data(28)` to `Data(65)` of a part that has some of them, and a positive rated voltage.
void CheckPower(const PartRecord& part, ValueFindings& findings);
