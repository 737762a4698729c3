#pragma once

/// Where a test's random numbers start.

#include <cstdio>
#include <cstdlib>

/// The seed of a random test: the same in every run, unless TAVIK_TEST_SEED in the environment gives another.
/// It is printed, so that a failure can be seen again.
inline unsigned TestSeed(unsigned usual)
{
    const char* const asked = std::getenv("TAVIK_TEST_SEED");
    const auto seed = asked != nullptr ? static_cast<unsigned>(std::strtoul(asked, nullptr, 10)) : usual;
    std::fprintf(stderr, "TAVIK_TEST_SEED=%u\n", seed);
    return seed;
}
