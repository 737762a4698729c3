#pragma once

/// Part ranges for the tests of the selection.

#include "partdata/PartTable.h"

#include <array>
#include <string>
#include <vector>

/// A part as a test describes it: chart types 0 and 1, or 2 and 3, or both have data.
struct MadePart
{
    std::string Number;
    std::array<std::string, CodeForms> SizeCode;
    std::array<std::string, CodeForms> Tcc;
    float Capacitance = 0;
    float RatedVoltage = 0;
    bool HasPower = true;
    bool HasCapacitance = true;
};

/// A part table read from a pair of files made for it. The four numbers of a part are its number with
/// "-0" to "-3" behind it; its heat resistance is 40 and its upper temperature 125.
PartTable MakeRange(const std::vector<MadePart>& parts);

/// The program's own range, and the one of the curve vectors.
PartTable SampleRange();
PartTable VectorRange();

/// A range in which EIA and JIS names of sizes and characteristics do not pair off, with parts that lack
/// data for some charts.
PartTable CrossedRange();

/// As many parts as a range can have: 32,767.
PartTable LargestRange();
