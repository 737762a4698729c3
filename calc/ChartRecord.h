#pragma once

/// One plotted line: what was asked for, and the curve that answers it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

inline constexpr std::size_t CurvePoints = 200;
using CurveValues = std::array<float, CurvePoints>;

/// Stands in `YData` for a point at which the law has no value; not a number.
inline constexpr float NoValue = std::numeric_limits<float>::quiet_NaN();

/// One line of a chart. Voltages in V, frequency in kHz, temperatures in °C, heat resistance in °C/W;
/// X and Y in the unit of their axis, except that an X of frequency is in Hz.
struct ChartRecord
{
    /// The number of the chart type, the index of its button.
    std::int16_t ChartType = 0;
    std::string XAxisName;
    std::string YAxisName;
    std::int32_t PartDataIndex = 0;
    float DCBiasVoltage = 0;
    float HeatResistance = 0;
    float Frequency = 0;
    float AmbientTemp = 0;
    /// "Current", "Voltage", "Effective Power" or "Apparent Power".
    std::string ParameterName;
    float ParameterValue = 0;
    CurveValues XData{};
    CurveValues YData{};
    /// Where each point lies in the plot area, 0 to 100 from left to right and from bottom to top.
    CurveValues XPos{};
    CurveValues YPos{};
    /// Default axis limits of this line.
    float XMax = 0;
    float YMax = 0;
    float XMin = 0;
    float YMin = 0;
    /// The largest allowable load of the curve; 0 for every chart type but allowable power.
    float ExtraValue = 0;
};
