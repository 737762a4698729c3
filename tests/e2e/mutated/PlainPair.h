#pragma once

/// The reading of a pair of part files once more, as plainly as it can be told. The tests compare the program
/// with it.

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

/// One part, in the code page of the files.
struct PlainPart
{
    /// Four part numbers, two size codes, two temperature characteristics.
    std::array<std::string, 8> Names;
    std::array<float, 66> Data{};
};

/// What a folder with part files comes to: its parts, or the run-time error that it ends in.
struct PlainPair
{
    /// Number of the error; 0 when the pair loads.
    int Error = 0;
    /// Where the error lies: a file name, or a pattern where there is no file.
    std::string File;
    /// Counted from 1; 0 for an error of the whole file.
    std::size_t Record = 0;
    std::vector<PlainPart> Parts;
};

PlainPair ReadPlainly(const std::filesystem::path& folder);

/// True when the part has data for a chart type, 0 to 3, and a capacitance and voltage that a list can show.
bool IsOffered(const PlainPart& part, int chartType);

/// A text of the code page as UTF-8, by the system's own tables.
std::string Utf8Of(const std::string& text);
