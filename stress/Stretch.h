#pragma once

/// The whole periods of a record that count.

#include "stress/Waveform.h"

#include <cstddef>
#include <optional>

/// What is asked of a record; what is left out is found.
struct StretchWishes
{
    /// In s; the record's own ends.
    std::optional<double> From = {};
    std::optional<double> To = {};
    /// In s; taken as given.
    std::optional<double> Period = {};
    /// So many, the last ones.
    std::optional<std::size_t> Periods = {};
    /// All from `From` to `To` is one period.
    bool IsWhole = false;
};

/// How the periods of a stretch are alike.
enum class Likeness
{
    /// They repeat the last one.
    Repeats,
    /// They do not repeat, but heat alike: jitter, spread spectrum, noise.
    HeatsAlike,
    /// All is one period, or more periods than are alike were asked for.
    AsAsked,
};

/// The stretch that counts.
struct Stretch
{
    TimeSpan Span;
    /// What was looked at.
    TimeSpan Record;
    double Period;
    std::size_t Periods;
    /// The r.m.s. of x(t) - x(t-T) as a share of the r.m.s. of x; 0 of a single period.
    double Repeat;
    Likeness Alike;
    /// So many periods were asked for.
    bool IsCountAsked = false;

    TimeSpan LastPeriod() const { return {Span.To - Period, Span.To}; }
    double PeriodsInRecord() const { return Record.Length() / Period; }
    /// The share of the record that counts.
    double Share() const { return Span.Length() / Record.Length(); }
};

/// The stretch of a record that counts: the periods that repeat the last one, counted back from the end.
///
/// Throws WaveformError for a current that does not change, wishes that the record cannot meet, less than two
/// periods where none is given, a current that does not repeat or is not settled, and a stretch that is too
/// long.
Stretch StretchOf(const Waveform& current, const StretchWishes& wishes);
