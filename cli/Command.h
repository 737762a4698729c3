#pragma once

/// What the commands of the command line share: how they end, and where their parts come from.

#include "cli/CommandError.h"
#include "partdata/PartTable.h"

#include <string>

namespace CLI
{
class App;
}

/// The folder of the program itself, links resolved.
std::string ProgramFolder();

/// The folder that holds the pair of part files: the one that `NamedPartFolder` makes of the given one, else
/// the program's own.
std::string PartFolder(const std::string& given);

/// The parts of the folder that `PartFolder` gives. Throws RunTimeError with file or folder.
PartTable LoadParts(const std::string& givenFolder);

/// Adds `--data FOLDER` to a command; the text is what `PartFolder` wants.
void AddDataOption(CLI::App& command, std::string& folder);
