#pragma once

/// The option --line: a line of a chart with conditions of its own.

#include "requests/CurveRequest.h"

#include <string>
#include <vector>

/// What options call the conditions, without their dashes: "dc-bias". The parameter has an option of its own.
std::vector<std::string> ConditionOptionNames();

/// The request of "PART NAME=VALUE ...", words between blanks: the names are those of the conditions and of
/// the four parameters. What is not named is as in `defaults`.
///
///     RequestOfLine("KTS31NB51E106MA01 dc-bias=12V frequency=300kHz", common)
///
/// Throws RequestError that names the option and tells the line, where it is empty, has a word that is not
/// NAME=VALUE, or a name that no condition bears.
CurveRequest RequestOfLine(const std::string& line, const CurveRequest& defaults);
