#pragma once

/// The verdicts on a board as a table for people.

#include "board/BomVerdict.h"

#include <string>

/// One line an item, one a net, and the counts; each line ended by a line feed.
std::string BomText(const JudgedBom& bom, const BomSettings& settings);

/// "4 fail, 2 unknown, 0 warn, 6 ok; 2 rows skipped, 1 not fitted".
std::string CountsText(const JudgedBom& bom);
