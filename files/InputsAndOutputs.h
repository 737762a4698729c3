#pragma once

/// Keeps a program from writing over what it reads.

#include <filesystem>
#include <span>

/// The first of the files that is the very file which `output` names, by links or otherwise; nothing where
/// there is none. "-" among the inputs is standard input, and as the output it is standard output. Only files
/// count: two names of a device or a terminal may well be one.
const std::filesystem::path* InputThatIs(const std::filesystem::path& output,
                                         std::span<const std::filesystem::path> inputs);

/// True where two names, neither of them empty, lead to one place, whether a file stands there or not.
bool IsOnePlace(const std::filesystem::path& one, const std::filesystem::path& other);
