#pragma once

/// Requests in the words of the command line.

#include "requests/CurveRequest.h"
#include "requests/RequestError.h"

#include <string>
#include <string_view>

/// What options call a key of requests: "dc-bias" of "dcBias".
std::string OptionNameOf(std::string_view key);

/// What is wrong, with the option and the entry that it lies in, and with the part where the request itself
/// makes sense:
///
///     KTS31NB51E106MA01: --dc-bias 26: DC Bias Voltage is invalid! Please enter a Number from 0 to 25[V]
///     --dc-bias "5A": "A" is not the unit of a voltage
///     KTS31NB51E106MA01 (line 2): --dc-bias "5A": "A" is not the unit of a voltage
std::string WordsOf(const RequestError& error);

/// What was typed in vain, "ABC: allowable-power does not use --frequency"; empty where all is used.
std::string NoteOnUnused(const RequestedCurve& curve, std::string_view partNum);
