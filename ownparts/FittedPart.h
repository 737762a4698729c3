#pragma once

/// A part that was fitted to its measurements, and how well it follows them.

#include "ownparts/MeasuredPart.h"
#include "partfiles/TableReader.h"

#include <optional>
#include <string>
#include <vector>

/// A point that was measured, and what the charts of the part show there.
struct FittedPoint
{
    std::size_t Line = 0;
    double Measured = 0;
    double Fitted = 0;

    /// Relative to what was measured.
    double Residual() const { return Fitted / Measured - 1; }
};

/// How far some points are off, relative.
struct Residuals
{
    std::size_t Points = 0;
    double Rms = 0;
    /// The largest, with its sign, and where it was measured.
    double Largest = 0;
    std::size_t Line = 0;
};

/// A law, or a sweep that shows it: one line of the report.
struct FitGroup
{
    std::string Name;
    /// What the measurements tell of it: "10 biases to 25 V".
    std::string Told;
    std::size_t Points = 0;
    /// The values of the part that it stands for.
    std::vector<ValueGroup> Values = {};
    /// The part that lent data to it.
    std::string BorrowedFrom = {};
    std::optional<Residuals> Residual = {};
    /// It belongs to the group above it.
    bool IsSweep = false;
};

struct FittedPart
{
    MeasuredPart Measured;
    /// The row of the part table.
    TablePart Row;
    std::vector<FitGroup> Groups;
    std::vector<std::string> Warnings;
    /// In the order of the measurements; points that were left out are missing.
    std::vector<FittedPoint> Capacitances;
    std::vector<FittedPoint> RisesByCurrent;
    std::vector<FittedPoint> RisesByVoltage;
};

/// Of all these points; nothing where there are none.
std::optional<Residuals> ResidualsOf(const std::vector<FittedPoint>& points);
