#pragma once

/// The values of a part in the arithmetic and in the text of a model.

#include "partdata/PartRecord.h"

#include <array>
#include <string>

/// By the names of `Value`, in the units of the part.
using ModelNumbers = std::array<double, DataValues>;

/// At most ten digits, as every simulator reads it: "-0.0003339983232", "3.150000039E-09".
std::string NetlistNumber(double value);

/// All values of the part.
ModelNumbers ModelNumbersOf(const PartRecord& part);
