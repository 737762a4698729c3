#pragma once

/// The law of parts whose bias moves a peak over temperature, as lines of a netlist.

#include "simulation/ModelNumbers.h"

#include <string>
#include <string_view>

/// The functions and parameters, with `CE`, the relative capacitance at the rated voltage, and `R1`, the
/// voltage whose peak lies at the temperature.
std::string PeakedParameters(const ModelNumbers& numbers);

/// The sources of nodes U, the voltage held to the rated one, and M, the mean of the relative capacitance up
/// to it; one pair of sources for each point of the sum between, since nested expressions take a simulator
/// much longer.
/// @param inner the node behind the loss resistance
std::string PeakedSources(std::string_view inner);
