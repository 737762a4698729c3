#pragma once

/// Watches how much memory a fuzz target asks for at once.

#include <cstddef>

/// Forgets what was asked for so far.
void ForgetAllocations();

/// Bytes of the largest piece of memory that was asked for since.
std::size_t LargestAllocation();
