#pragma once

/// Headings of lists over ranges: where the worst of a range occurs.

#include "calc/Quantities.h"

#include <string>
#include <string_view>

/// "bias", "ambient", "frequency": what a heading calls a condition; "x" for what is none.
std::string_view ShortNameOf(Quantity condition);

/// "least at ambient [°C]": the heading of the values of a condition, in the unit that it is entered in, at
/// which something occurs.
std::string PlaceHeading(std::string_view what, Quantity condition);
