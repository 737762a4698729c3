#pragma once

/// The commands of tavik-cli that check part files and turn them into a table and back.

namespace CLI
{
class App;
}

/// Adds "data check", "data export", "data build", "data fit" and "data merge" with their options.
///
/// Notes and the faults of a table go to standard error, everything asked for to standard output. A command
/// that fails ends with a `Failure` or a `RunTimeError`; "data check" fails when it has found an error, and
/// not for warnings.
void AddDataCommands(CLI::App& app);
