#pragma once

/// The values of a part while they are worked out.

#include "partdata/ValueNames.h"

#include <array>

/// In data-file order, in double precision.
using PartValues = std::array<double, DataValues>;
