#pragma once

/// The names of files and folders on a command line: which are taken, and which make no sense.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace CLI
{
class App;
class Option;
} // namespace CLI

/// Reads what the commands take and write: "-" is standard input or standard output.
inline constexpr const char* StandardStream = "-";

/// Refuses an empty name.
void TakeInputFile(CLI::Option& option);
/// Refuses an empty name and "-": a pair of files comes from no stream.
void TakePair(CLI::Option& option);
/// Refuses what can only be a folder: an empty name, one that ends in a slash, "." or "..", and a folder that
/// is there. "-" is taken.
void TakeOutputFile(CLI::Option& option);
/// As above, and refuses "-".
void TakeOutputPair(CLI::Option& option);

/// Throws Failure where an output, "-" or left out for standard output, is one of the files that the command
/// reads.
void RefuseInputAsOutput(const std::string& output, const std::vector<std::filesystem::path>& inputs);

/// Throws UsageError where a picture would take the place of the output.
void RefuseOneOutput(const std::string& output, const std::string& picture);

/// Throws UsageError where more than one file is standard input, which is at its end when the first is read.
void RefuseStreamTwice(const std::vector<std::string>& inputs);

/// What messages call an input: its name, or "standard input" for "-".
std::string ShownName(const std::string& file);

/// The bytes of an input, "-" for standard input. Throws RunTimeError as `ReadBytes`.
std::string ReadInput(const std::string& file, std::uintmax_t most);

/// The files of a pair, a folder or an index file, as far as they are there.
std::vector<std::filesystem::path> PartFilesOf(const std::string& pair);
