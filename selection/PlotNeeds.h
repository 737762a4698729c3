#pragma once

/// What stands between the user and Plot, in one line each: why, and what to do. Texts are in UTF-8.

#include "calc/Conditions.h"
#include "selection/PartSelection.h"

#include <span>
#include <string>
#include <string_view>

/// Why the text of the part-number box is no part that can be plotted. `typed` is in the code page of the
/// part files, `partNumForm` the part-number form on display, 0 to 3. An empty text asks for the next choice.
std::string WhyNoPart(const PartTable& parts, const PartSelection& selection, std::string_view typed,
                      int partNumForm);

/// Why one of the upper four lists, counted from 0, is empty; empty where it has entries.
std::string WhyListIsEmpty(const PartSelection& selection, int list);

/// Names the conditions that nothing is entered for; empty without any.
std::string WhichConditionsAreEmpty(std::span<const Condition> empty);
