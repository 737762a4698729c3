#pragma once

/// The parts that were found, as a list.

#include "find/FoundOrder.h"
#include "requests/CurveRequest.h"
#include "requests/OutputFormat.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What requests call the columns, in their order.
std::vector<std::string_view> FoundColumnNames();

/// "area,-left": keys separated by commas, a hyphen before those that go downwards. Throws RequestError that
/// lists the names, and for a column that the question does not ask for.
std::vector<FoundKey> FoundKeysOf(std::string_view typed, const FindQuestion& question);

/// A format of the list. UTF-8, lines ended by line feeds. The table has the columns that the question asks
/// for, four digits a number; CSV has all headings and JSON all keys, numbers as singles in full, and leaves
/// those empty that the part or the question has no value for.
using FoundListFormat = OutputFormat<std::string (*)(
    std::span<const FoundPart> found, const FindQuestion& question, const CurveSettings& settings)>;

/// The headings of the CSV: "effective capacitance [pF]".
std::vector<std::string> FoundHeadings();

/// The texts of a part below them; empty where it or the question has no value.
std::vector<std::string> FoundTexts(const FoundPart& part, const FindQuestion& question,
                                    const CurveSettings& settings);

/// All formats, the one that holds where none is named foremost: a table for people, CSV and JSON.
std::span<const FoundListFormat> FoundListFormats();
