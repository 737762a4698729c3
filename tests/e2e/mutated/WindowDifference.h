#pragma once

/// The main window with a folder's part files, held against the plain reading.

#include "tests/e2e/mutated/PlainPair.h"

#include <filesystem>
#include <string>

/// Opens the window, reads its lists, goes down the cascade to one part, and plots a few, those with odd
/// values first: each gives a chart or a message. Returns what differs from the plain reading, or nothing.
std::string WindowDifference(const std::filesystem::path& folder, const PlainPair& plain, unsigned choice);
