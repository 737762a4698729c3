#pragma once

/// Currents whose heating is known, as records of them would be.

#include "stress/LoadMoments.h"
#include "stress/Waveform.h"

#include <cmath>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <numbers>
#include <random>
#include <utility>
#include <vector>

/// A current in A over the time in s.
using Shape = std::function<double(double seconds)>;

/// The current heating of a 10 µF part in 1210 at 20 °C.
inline PowerModel HeatingOfTenMicrofarads()
{
    return {.Q1 = 61029.582,
            .Q2 = 0.15460527,
            .Q3 = 3.0921052e-9,
            .S1 = 1,
            .S2 = 0,
            .S3 = 2,
            .Rref = 75,
            .Rth = 75};
}

/// The one of a 47 µF part in 1206.
inline PowerModel HeatingOfFortySevenMicrofarads()
{
    return {.Q1 = 26520.588, .Q2 = 0.1575, .Q3 = 3.15e-9, .S1 = 1, .S2 = 0, .S3 = 2, .Rref = 105, .Rth = 105};
}

/// The shape, read off every `step` seconds from 0 to `length`.
inline Waveform EvenRows(const Shape& shape, double length, double step)
{
    std::vector<WavePoint> rows;
    const auto count = static_cast<std::size_t>(std::round(length / step));
    for (std::size_t i = 0; i <= count; ++i)
    {
        const double seconds = static_cast<double>(i) * step;
        rows.push_back({seconds, shape(seconds)});
    }
    return Waveform(std::move(rows));
}

/// Corners of one period, as (share of the period, A), repeated.
inline Waveform Repeated(std::initializer_list<WavePoint> corners, double period, std::size_t periods)
{
    std::vector<WavePoint> rows;
    for (std::size_t i = 0; i < periods; ++i)
    {
        for (const WavePoint& corner : corners)
        {
            rows.push_back({(static_cast<double>(i) + corner.Seconds) * period, corner.Amperes});
        }
    }
    rows.push_back({static_cast<double>(periods) * period, corners.begin()->Amperes});
    return Waveform(std::move(rows));
}

inline Shape Sine(double amperes, double hertz)
{
    return [=](double seconds) { return amperes * std::sin(2 * std::numbers::pi * hertz * seconds); };
}

/// Straight between corners of one period, as (share of the period, A).
inline Shape Straight(std::vector<WavePoint> corners, double hertz)
{
    corners.push_back({1, corners.front().Amperes});
    return [wave = Waveform(std::move(corners)), hertz](double seconds)
    {
        const double turns = seconds * hertz;
        return wave.At(turns - std::floor(turns));
    };
}

/// -1 to 1 and back.
inline Shape Triangle(double hertz)
{
    return Straight({{0, -1}, {0.5, 1}}, hertz);
}

/// 0 and 1 with straight edges of 20 ns.
inline std::vector<WavePoint> TrapezoidCorners(double hertz)
{
    const double edge = 20e-9 * hertz;
    return {{0, 0}, {edge, 1}, {0.3, 1}, {0.3 + edge, 0}};
}

inline Shape Trapezoid(double hertz)
{
    return Straight(TrapezoidCorners(hertz), hertz);
}

/// The moments of lines that are known, as r.m.s. values.
inline LoadMoments MomentsOf(std::initializer_list<SpectralLine> lines)
{
    LoadMoments moments;
    for (const SpectralLine& line : lines)
    {
        moments.Add(line);
    }
    return moments;
}
