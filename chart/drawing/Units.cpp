#include "chart/drawing/Units.h"

#include "partdata/RunTimeError.h"

#include <array>

struct NamedUnit
{
    QLatin1StringView Name;
    QLatin1StringView Unit;
};

static constexpr std::array<NamedUnit, 8> namedUnits = {{
    {QLatin1StringView("Current"), QLatin1StringView("[Arms]")},
    {QLatin1StringView("Voltage"), QLatin1StringView("[Vrms]")},
    {QLatin1StringView("Apparent Power"), QLatin1StringView("[VA]")},
    {QLatin1StringView("Effective Power"), QLatin1StringView("[W]")},
    {QLatin1StringView("Frequency"), QLatin1StringView("[kHz]")},
    {QLatin1StringView("DC Bias Voltage"), QLatin1StringView("[V]")},
    {QLatin1StringView("Capacitance"), QLatin1StringView("[pF]")},
    {QLatin1StringView("Capacitance Change"), QLatin1StringView("[%]")},
}};

QString GetUnit(const QString& name, const QString& degreeSign)
{
    if (name == QLatin1StringView("Temperature Rise") || name == QLatin1StringView("Temperature"))
    {
        return QLatin1Char('[') + degreeSign + QLatin1StringView("C]");
    }
    for (const auto& named : namedUnits)
    {
        if (name == named.Name)
        {
            return named.Unit;
        }
    }
    constexpr auto number = RunTimeErrorNumber::InvalidProcedureCall;
    throw RunTimeError(number, std::string(DescriptionOf(number)) + ": no unit of " + name.toStdString());
}
