#pragma once

/// Part tables and other texts that the commands on part files read.

#include "partfiles/TableReader.h"

#include <cstdint>
#include <string>

/// What messages call an input: its name, or "standard input" for "-".
std::string ShownName(const std::string& file);

/// The bytes of an input, "-" for standard input. Throws Failure, and RunTimeError 6 for more than the most
/// bytes.
std::string ReadInput(const std::string& file, std::uintmax_t most);

/// A table without faults. Throws Failure for one with some, which have been told a line each.
TableContents TableOf(const std::string& file);

/// Tells the faults of an input, a line each, and throws Failure if there are any.
void RefuseFaults(const std::vector<TableError>& errors, const std::string& file);
