#pragma once

/// The whole range, from the source table to the bytes of the part files.

#include "partdata/PartRecord.h"
#include "partfiles/PairBytes.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// A part as it goes into the files.
struct RangePart
{
    std::array<std::string, PartNumForms> PartNum;
    std::array<std::string, CodeForms> SizeCode;
    std::array<std::string, CodeForms> Tcc;
    std::array<float, DataValues> Data;
};

/// All parts, ordered by case size, characteristic, capacitance and rated voltage, so that each list of
/// the selection is in its natural order. Throws std::runtime_error for a faulty table.
std::vector<RangePart> MakePartRange(std::string_view sizes, std::string_view ratings);

/// Both part files of the range.
PairBytes PairOf(const std::vector<RangePart>& parts);
