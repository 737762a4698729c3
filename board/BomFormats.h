#pragma once

/// The verdicts on a board in the formats that the command line writes.

#include "board/BomVerdict.h"
#include "requests/OutputFormat.h"

#include <span>
#include <string>

using BomFormat =
    OutputFormat<std::string (*)(const JudgedBom& bom, const BomTable& bill, const BomSettings& settings)>;

/// All formats, the one that holds where none is named foremost: a table for people, and CSV with the columns
/// of the bill before its own.
std::span<const BomFormat> BomFormats();
