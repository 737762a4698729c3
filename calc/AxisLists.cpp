#include "calc/AxisLists.h"

#include <array>

static constexpr std::array<std::string_view, 5> Loads = {"Current", "Voltage", "Apparent Power",
                                                          "Effective Power", "Frequency"};
static constexpr std::array<std::string_view, 1> TemperatureRise = {"Temperature Rise"};
static constexpr std::array<std::string_view, 1> Frequency = {"Frequency"};
static constexpr std::array<std::string_view, 1> Temperature = {"Temperature"};
static constexpr std::array<std::string_view, 1> DCBiasVoltage = {"DC Bias Voltage"};
static constexpr std::array<std::string_view, 2> Capacitances = {"Capacitance", "Capacitance Change"};

AxisLists AxisListsOf(std::int16_t chartType)
{
    switch (chartType)
    {
    case 0:
        return {Loads, TemperatureRise};
    case 1:
        return {Frequency, std::span(Loads).first(4)};
    case 2:
        return {Temperature, Capacitances};
    case 3:
        return {DCBiasVoltage, Capacitances};
    default:
        return {};
    }
}
