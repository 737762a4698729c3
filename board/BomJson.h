#pragma once

/// The verdicts on a board in JSON.

#include "board/BomCheck.h"

#include <string>

/// One object, ended by a line feed. UTF-8; what is not is replaced. Numbers are singles in full.
std::string BomJson(const CheckedBom& bom, const BomSettings& settings, const BomNames& names);
