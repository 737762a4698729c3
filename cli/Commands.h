#pragma once

/// The commands of the command line. Each function adds one command with its options; the command runs as
/// soon as the command line is parsed and ends a failure with a `CommandError` or a `RunTimeError`.

namespace CLI
{
class App;
}

/// Adds every command; see `main`.
void AddCommands(CLI::App& app);

/// "parts": lists and filters the parts of the range.
void AddPartsCommand(CLI::App& app);

/// "chart": up to six lines on one picture.
void AddChartCommand(CLI::App& app);

/// "curve": one curve as data file, CSV or JSON, or a stream of curves.
void AddCurveCommand(CLI::App& app);
