#pragma once

/// The commands of the command line. Each function adds one command with its options; the command runs as
/// soon as the command line is parsed and ends a failure with a `CommandError`, a `RequestError` or a
/// `RunTimeError`.

#include "cli/DataCommands.h"

#include <array>

/// "parts": lists and filters the parts of the range.
void AddPartsCommand(CLI::App& app);

/// "find": the parts that do what is needed at an operating point.
void AddFindCommand(CLI::App& app);

/// "like": the parts that may stand for a part.
void AddLikeCommand(CLI::App& app);

/// "curve": one curve in a file format, or a stream of curves.
void AddCurveCommand(CLI::App& app);

/// "chart": up to six lines on one picture.
void AddChartCommand(CLI::App& app);

/// "model": parts as models for circuit simulators.
void AddModelCommand(CLI::App& app);

/// "bank": how parts in parallel share a ripple current.
void AddBankCommand(CLI::App& app);

/// "bom": which parts of a bill of materials hold what is asked of them.
void AddBomCommand(CLI::App& app);

/// "ripple": what a current of any shape does to parts.
void AddRippleCommand(CLI::App& app);

/// All commands, in the order in which the help tells them.
inline constexpr std::array AllCommands = {AddPartsCommand, AddFindCommand,  AddLikeCommand, AddCurveCommand,
                                           AddChartCommand, AddModelCommand, AddBankCommand, AddRippleCommand,
                                           AddBomCommand,   AddDataCommands};
