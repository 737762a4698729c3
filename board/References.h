#pragma once

/// The names of parts on a board.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// A range rises by so much at most; what rises by more, or not at all, is a name.
inline constexpr int MostInReferenceRange = 1000;

/// No board has more parts; a list that names more is not read on.
inline constexpr std::size_t MostReferences = 100'000;

/// All references of a list, between blanks, commas and semicolons, with their ranges written out.
///
///     ReferencesIn("C1, C2 C5-C8;C10..C12 C3-6")   // C1 C2 C5 C6 C7 C8 C10 C11 C12 C3 C4 C5 C6
///     ReferencesIn("C10-1")                        // C10-1
std::vector<std::string> ReferencesIn(std::string_view list);

/// True for "C" and digits, whatever the letter case.
bool IsCapacitorReference(std::string_view reference);

/// "C1,C2": the references in a row, with runs of more than three as "C1-C8".
std::string ReferenceText(const std::vector<std::string>& references);
