#pragma once

/// The verdicts on a board as a table for people.

#include "board/BomVerdict.h"

#include <string>

/// One line an item, one a net, and the counts; each line ended by a line feed.
std::string BomText(const JudgedBom& bom, const BomSettings& settings);

/// "5.017uF at 5.25 V, 65 C under 6uF; try KTS21JB50J226MA01 0805 X5R 22uF 6.3V (7.184uF, 17 %)": why a
/// verdict is as it is, part numbers near an unknown one, and what passes instead.
std::string ReasonsText(const JudgedItem& item, const BomSettings& settings);

/// The number of the part as the bill has it, or of the part that the bill tells by its values.
std::string PartText(const JudgedItem& item, const BomSettings& settings);

/// The number of a part in the form on display.
std::string NumberOf(const PartRecord& part, const BomSettings& settings);

/// What one part has at least and how much of its nominal capacitance that is: "5.398uF 54.0 %"; empty where
/// nothing is known.
std::string LeastText(const JudgedItem& item);

/// The rise and what of it is permitted: "0.33 C of 20"; empty without a load.
std::string RiseText(const JudgedItem& item);

/// "-65.0 %".
std::string PercentText(double percent);

/// "10.87uF" of so many pF.
std::string FaradsText(double picofarads);

/// "13.2 V, -10 C".
std::string PlaceText(const Place& place);

/// "4 fail, 2 unknown, 0 warn, 6 ok; 2 rows skipped, 1 not fitted".
std::string CountsText(const JudgedBom& bom);
