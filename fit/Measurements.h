#pragma once

/// What was measured on one part.

#include <cstddef>
#include <vector>

/// Capacitance at one bias and one temperature.
struct MeasuredCapacitance
{
    /// Where it stands in its file, counted from 1; 0 for what was not measured.
    std::size_t Line = 0;
    double Volts = 0;
    double Celsius = 0;
    double Picofarads = 0;
    /// As how many points it counts.
    double Weight = 1;
};

/// Rise of temperature over the ambient under one load.
struct MeasuredRise
{
    std::size_t Line = 0;
    /// Bias in V and ambient temperature in °C.
    double Volts = 0;
    double Celsius = 0;
    double Hz = 0;
    /// Current in Arms or voltage in Vrms, as the list that it stands in says.
    double Load = 0;
    /// In °C.
    double Rise = 0;
};

/// All of one part, in any order.
struct Measurements
{
    std::vector<MeasuredCapacitance> Capacitances;
    std::vector<MeasuredRise> RisesByCurrent;
    std::vector<MeasuredRise> RisesByVoltage;
};
