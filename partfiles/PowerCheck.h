#pragma once

/// Whether the heating coefficients of one part make sense.

#include "partfiles/ValueFindings.h"

/// Judges the power data of a part that has some, and a positive rated voltage.
void CheckPower(const PartRecord& part, ValueFindings& findings);
