#pragma once

/// The law of parts whose changes by bias and by temperature multiply, as lines of a netlist.

#include "simulation/ModelNumbers.h"

#include <string>
#include <string_view>

/// The parameters, up to `CE`, the relative capacitance at the rated voltage.
std::string ProductParameters(const ModelNumbers& numbers);

/// The sources of nodes U, the voltage held to the rated one, and M, the mean of the relative capacitance up
/// to it.
/// @param inner the node behind the loss resistance
std::string ProductSources(const ModelNumbers& numbers, std::string_view inner);
