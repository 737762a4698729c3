#pragma once

/// A part as a model for circuit simulators: a subcircuit whose charge follows voltage and temperature as the
/// capacitance charts do, with the loss resistance of the heating data in series.

#include "partdata/PartRecord.h"
#include "simulation/ModelRefusal.h"

#include <string>
#include <variant>

/// The text of a model in ASCII, lines ended by line feeds, or why there is none.
using ModelResult = std::variant<std::string, ModelRefusal>;

/// The model of a part: its comment and its subcircuit, in the words that PSpice, LTspice and ngspice share.
/// The same part has the same text, wherever and whenever it is made.
///
/// @param form which of the part numbers is on display, from 0: the code form, and 2 more for the previous
/// numbering
ModelResult SimulationModel(const PartRecord& part, std::size_t form);
