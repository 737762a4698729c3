#include "calc/Units.h"

#include "partdata/RunTimeError.h"

#include <array>

struct NamedUnit
{
    std::string_view Name;
    std::string_view Unit;
};

static constexpr std::array<NamedUnit, 8> namedUnits = {{
    {"Current", "[Arms]"},
    {"Voltage", "[Vrms]"},
    {"Apparent Power", "[VA]"},
    {"Effective Power", "[W]"},
    {"Frequency", "[kHz]"},
    {"DC Bias Voltage", "[V]"},
    {"Capacitance", "[pF]"},
    {"Capacitance Change", "[%]"},
}};

std::string GetUnit(std::string_view name, std::string_view degreeSign)
{
    if (name == "Temperature Rise" || name == "Temperature")
    {
        return '[' + std::string(degreeSign) + "C]";
    }
    for (const auto& named : namedUnits)
    {
        if (name == named.Name)
        {
            return std::string(named.Unit);
        }
    }
    constexpr auto number = RunTimeErrorNumber::InvalidProcedureCall;
    throw RunTimeError(number, std::string(DescriptionOf(number)) + ": no unit of " + std::string(name));
}
