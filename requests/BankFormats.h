#pragma once

/// A bank of parts as text: for people, and for scripts.

#include "requests/BankRequest.h"
#include "requests/OutputFormat.h"

#include <span>
#include <string>
#include <vector>

/// A format of a bank. UTF-8, lines ended by line feeds. The table has four digits a number, JSON singles in
/// full.
using BankFormat = OutputFormat<std::string (*)(const RequestedBank& bank, const CurveSettings& settings)>;

/// All formats, the one that holds where none is named foremost: a table for people, and JSON.
std::span<const BankFormat> BankFormats();

/// What a bank should not be built for, a line each: "KTS31NR71A226KA01: rises by 25.3 C, above the 20 C
/// permitted". The part numbers are those on display.
std::vector<std::string> WarningLines(const RequestedBank& bank, const CurveSettings& settings);

/// What is told beside the bank, a line each: the warnings as "warning: ...", and from which ambient
/// temperature heating is judged where that is not the range's own.
std::vector<std::string> BankNotes(const RequestedBank& bank, const CurveSettings& settings);
