#pragma once

/// Faults that the operating system tells by number, as run-time errors.

#include <filesystem>

/// Throws the RunTimeError for an `errno`, with the file: 76 for a folder that is not there, 70 without
/// permission, 61 when the disk is full or a file grows too large, 75 for anything else.
[[noreturn]] void FailWith(int fault, const std::filesystem::path& file);
