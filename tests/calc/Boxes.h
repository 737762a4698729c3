#pragma once

/// Parts and boxes at random, and how many of them a test tries.

#include "calc/Box.h"
#include "files/PartLoading.h"
#include "partdata/Characteristic.h"

#include <algorithm>
#include <cstdlib>
#include <random>

/// True when TAVIK_ALL_PARTS in the environment asks for every part and fine scans, which take minutes.
inline bool TriesAllParts()
{
    return std::getenv("TAVIK_ALL_PARTS") != nullptr;
}

inline const PartTable& SampleParts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

inline double Uniform(std::mt19937& random, double from, double to)
{
    return std::uniform_real_distribution<double>(from, to)(random);
}

/// A part of a range of values.
inline ConditionRange RandomRange(std::mt19937& random, float from, float to)
{
    const auto a = static_cast<float>(Uniform(random, from, to));
    const auto b = static_cast<float>(Uniform(random, from, to));
    return {std::min(a, b), std::max(a, b)};
}

/// The place `i` of `count` from one end of a range to the other.
inline double Step(double from, double to, int i, int count)
{
    return i + 1 == count ? to : from + (to - from) * i / (count - 1);
}
