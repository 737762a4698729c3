#pragma once

/// Conditions that may stand anywhere between two ends: a rail with its tolerance, an ambient from winter to
/// summer.

#include <tuple>

/// From the lower to the higher end, both included; both alike for a single value.
struct ConditionRange
{
    ConditionRange() = default;
    /// A value is a range of no width wherever a range is taken.
    ConditionRange(float value)
        : ConditionRange(value, value)
    {
    }
    ConditionRange(float low, float high)
        : Low(low)
        , High(high)
    {
    }

    bool IsPoint() const { return Low == High; }
    bool operator==(const ConditionRange&) const = default;

    float Low = 0;
    float High = 0;
};

/// Every bias and temperature in their ranges.
struct ConditionBox
{
    ConditionRange BiasVolts;
    ConditionRange AmbientC;
};

/// Every temperature and frequency at which a part heats up; the bias bears on voltages alone.
struct HeatingBox
{
    ConditionRange BiasVolts;
    ConditionRange AmbientC;
    /// The frequencies' ends in Hz.
    double LowestHertz = 0;
    double HighestHertz = 0;
};

/// Where in a box a value occurs.
struct Place
{
    double BiasVolts = 0;
    double AmbientC = 0;
    /// Of heating alone.
    double Hertz = 0;

    bool operator==(const Place&) const = default;
    /// By the bias, then by the temperature, then by the frequency.
    bool operator<(const Place& other) const
    {
        return std::tie(BiasVolts, AmbientC, Hertz) < std::tie(other.BiasVolts, other.AmbientC, other.Hertz);
    }
};

/// A value and where it occurs.
struct Extreme
{
    double Value = 0;
    Place At;

    /// True when this value lies beyond the best one, upwards for a `sign` of 1, downwards for -1; of equals
    /// the lower place does.
    bool IsBeyond(const Extreme& best, int sign) const
    {
        const double beyond = sign * (Value - best.Value);
        return beyond > 0 || (beyond == 0 && At < best.At);
    }
};
