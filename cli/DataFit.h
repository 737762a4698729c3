#pragma once

/// `tavik-cli data fit` and `data merge`: rows of part tables out of measurements, and tables out of tables.

#include <string>
#include <vector>

namespace CLI
{
class App;
}

/// Adds "fit" to the commands on part files. Its report goes to standard output; a file is written whole, or
/// not at all. A fault of the measurements, and what they do not tell, is a line each and ends in a
/// `Failure`.
void AddFitCommand(CLI::App& data);

/// Adds "merge" to the commands on part files.
void AddMergeCommand(CLI::App& data);
