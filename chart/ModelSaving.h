#pragma once

/// "Save Simulation Model..." of charts and of found parts.

#include "chart/ChartHost.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

/// Parts by their indices in the part table.
using PartIndices = std::vector<std::int32_t>;

/// As the command stands in menus.
inline constexpr auto SaveModelText = "Save Simulation &Model...";

/// True when a part among these has the data that a model is made of.
bool CanHaveModel(const PartIndices& parts);

/// Asks for a file and writes the models of the parts into it, each part once, as it is named on display. A
/// part that has no model is told over `window` with the reason, and nothing is written. Gives the file, or
/// nothing where none is written. Throws RunTimeError where it cannot be written.
std::optional<QString> SaveModels(QWidget* window, const PartIndices& parts,
                                  const std::function<std::optional<QString>(const FileQuestion&)>& ask);
