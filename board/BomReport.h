#pragma once

/// The verdicts on a board as a page for people, to be looked at in a browser, sent and printed.

#include "board/BomCheck.h"

#include <string>

/// One file of HTML in UTF-8 with nothing to load, to run or to follow: the nets, then the rows, each with
/// its chart. The same board gives the same bytes.
std::string BomReport(const CheckedBom& bom, const BomSettings& settings);
