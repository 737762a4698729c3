#pragma once

/// `tavik-cli data build`: a pair of part files out of a table.

#include <string>

/// What the user typed.
struct BuildOptions
{
    /// The table's file, or "-" for standard input.
    std::string Table;
    /// FOLDER/NAME, or a name with one of the two extensions.
    std::string Output;
    /// Builds a range without parts too.
    bool Force = false;
    /// Tells what would come of it, and writes nothing.
    bool DryRun = false;
};

/// Builds the pair and tells on standard error how many parts there were before and after, and how many
/// errors and warnings a check of the new pair finds; findings refuse nothing. A pair that comes first in the
/// folder is told too.
///
/// Throws Failure for a table with faults, which have been told a line each, for one without parts, and where
/// the pair would replace the table; RunTimeError as `ReplacePair`. Then nothing has been written.
void BuildPair(const BuildOptions& options);
