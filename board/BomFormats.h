#pragma once

/// The verdicts on a board in the formats that the command line writes.

#include "board/BomCheck.h"
#include "requests/OutputFormat.h"

#include <span>
#include <string>

using BomFormat =
    OutputFormat<std::string (*)(const CheckedBom& bom, const BomSettings& settings, const BomNames& names)>;

/// All formats, the one that holds where none is named foremost: a table for people, CSV with the columns of
/// the bill before its own, JSON, and a page for people.
std::span<const BomFormat> BomFormats();
