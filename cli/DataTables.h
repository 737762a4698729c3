#pragma once

/// Part tables and other texts that the commands on part files read.

#include "partfiles/TableReader.h"

#include <string>

/// A table without faults. Throws Failure for one with some, which have been told a line each.
TableContents TableOf(const std::string& file);

/// Tells the faults of an input, a line each, and throws Failure if there are any.
void RefuseFaults(const std::vector<TableError>& errors, const std::string& file);
