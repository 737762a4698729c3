#pragma once

/// After which time a current repeats.

#include "stress/Waveform.h"

#include <cstddef>
#include <optional>
#include <vector>

/// What two neighbouring periods may differ by, as a share of the current's r.m.s. value.
inline constexpr double RepeatTolerance = 0.05;

/// A period in s, and how well the stretch that it was found in repeats after it: the r.m.s. of x(t) - x(t-T)
/// as a share of the r.m.s. of x.
struct FoundPeriod
{
    double Seconds;
    double Repeat;
};

/// The r.m.s. of x(t) - x(t-lag) as a share of the r.m.s. of x without its mean; 0 for a current that does
/// not change. The lag lies within the stretch.
double DifferenceAfter(const Waveform& current, TimeSpan stretch, double lag);

/// The shortest period after which the stretch repeats within the tolerance, or nothing. A part of it that
/// looks alike, as the cycles of a burst do, is no period.
std::optional<FoundPeriod> FindPeriod(const Waveform& current, TimeSpan stretch);

/// The lag in s after which a stretch that does not repeat is most like itself: the shortest of about the
/// best. Nothing for a current that does not swing.
std::optional<double> LikeliestPeriod(const Waveform& current, TimeSpan stretch);
