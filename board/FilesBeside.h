#pragma once

/// Files that a bill of materials names: none outside its own folder.

#include <filesystem>
#include <string>

/// The path of a file that another file names. A bill comes from anywhere, so that what it names lies in its
/// folder or below it, links resolved. Throws std::runtime_error for any other place, and for
/// what can be no path.
std::filesystem::path PathBeside(const std::filesystem::path& naming, const std::string& name);

/// All bytes of that file. Throws std::runtime_error for any other place, and for a file that is not there,
/// is none or holds more than the most bytes.
std::string ReadBeside(const std::filesystem::path& naming, const std::string& name, std::uintmax_t most);
