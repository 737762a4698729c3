#pragma once

/// The settings that a sweep was measured at, told from readings that scatter about them.

#include <cstddef>
#include <vector>

/// Readings that were meant to be one setting.
struct Step
{
    double Least;
    double Most;
    std::size_t Count;

    bool Holds(double value) const { return value >= Least && value <= Most; }
};

/// The steps of readings from the least on: one begins where a reading lies more than `width` above the
/// first of the step before.
///
///     StepsOf({25.1, 85, 24.8}, 2)   // 24.8 to 25.1, 85
std::vector<Step> StepsOf(std::vector<double> readings, double width);

/// As above, for readings that count by their ratio: a step's most is at most `ratio` times its least.
std::vector<Step> RatioStepsOf(std::vector<double> readings, double ratio);
