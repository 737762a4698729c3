#pragma once

/// A fit's report as text.

#include "ownparts/FittedPart.h"

#include <string>

/// The part, a line for each group with its residual, and the warnings; all lines ended.
std::string TextOf(const FittedPart& fitted);
