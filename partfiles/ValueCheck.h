#pragma once

/// Whether the values of one part make sense: the ratings, the capacitance coefficients, and what is missing.

#include "partfiles/ValueFindings.h"

/// Judges all values of a part. A value that is not finite, or a rated voltage that is not positive, leaves
/// the curves unjudged, since they all need it.
void CheckValues(const PartRecord& part, ValueFindings& findings);
