#pragma once

/// Finds and reads the two files that a command line names as one pair.

#include <cstdint>
#include <filesystem>
#include <string>

/// The two files of a pair.
struct PairPaths
{
    std::filesystem::path Index;
    std::filesystem::path Data;
};

/// The index file of a pair: the first of a folder, in alphabetical order, or the named file itself.
/// Throws RunTimeError 53 when a folder holds none.
std::filesystem::path IndexOf(const std::filesystem::path& pair);

/// The data file of a pair: the first of a folder, or the file beside the named index file that bears its
/// name with the extension ".dat", in any letter case. Throws RunTimeError 53 when there is none.
std::filesystem::path DataOf(const std::filesystem::path& pair);

/// Size of the largest table of parts, far beyond any range.
inline constexpr std::uintmax_t MostTableBytes = std::uintmax_t{256} << 20;

/// All bytes of a file. Throws RunTimeError 53 or 75, and 6 for more than the most bytes.
std::string ReadBytes(const std::filesystem::path& file, std::uintmax_t most);
