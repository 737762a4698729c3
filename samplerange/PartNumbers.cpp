#include "samplerange/PartNumbers.h"

#include <cmath>
#include <stdexcept>
#include <utility>

namespace
{

template <std::size_t N>
std::string CodeOf(const std::array<std::pair<int, std::string_view>, N>& codes, int value)
{
    for (const auto& [key, code] : codes)
    {
        if (key == value)
        {
            return std::string(code);
        }
    }
    throw std::runtime_error("no part-number code for " + std::to_string(value));
}

/// By thickness in hundredths of a millimetre.
constexpr std::array<std::pair<int, std::string_view>, 10> ThicknessCodes = {{
    {30, "3"},
    {50, "5"},
    {60, "6"},
    {80, "8"},
    {85, "9"},
    {115, "H"},
    {125, "J"},
    {160, "N"},
    {180, "R"},
    {250, "X"},
}};

/// By tenths of a volt.
constexpr std::array<std::pair<int, std::string_view>, 10> VoltageCodes = {{
    {40, "0G"},
    {63, "0J"},
    {100, "1A"},
    {160, "1C"},
    {250, "1E"},
    {350, "1V"},
    {500, "1H"},
    {1000, "2A"},
    {2500, "2E"},
    {6300, "2J"},
}};

std::string ThicknessCode(double thicknessMm)
{
    return CodeOf(ThicknessCodes, static_cast<int>(std::lround(thicknessMm * 100)));
}

/// Two significant digits and the number of zeros: 2200 pF is "222".
std::string CapacitanceCode(std::int64_t picofarads)
{
    int zeros = 0;
    while (picofarads >= 100)
    {
        picofarads /= 10;
        ++zeros;
    }
    return std::to_string(picofarads) + std::to_string(zeros);
}

char ToleranceCode(const PartDesign& part)
{
    const Ceramic& ceramic = CeramicOf(part.Characteristic);
    return part.Picofarads >= 1000000 ? ceramic.LargeTolerance : ceramic.Tolerance;
}

/// Three places: "050", "6R3".
std::string PreviousVoltageCode(double volts)
{
    const auto tenths = std::lround(volts * 10);
    if (tenths % 10 != 0)
    {
        return std::to_string(tenths / 10) + "R" + std::to_string(tenths % 10);
    }
    const auto digits = std::to_string(tenths / 10);
    return std::string(3 - digits.size(), '0') + digits;
}

} // namespace

std::array<std::string, PartNumForms> PartNumbers(const PartDesign& part)
{
    const auto& size = *part.Size;
    const auto& eia = part.Characteristic;
    const std::string jis(CharacteristicNamed(eia).Names[1]);
    const auto capacitance = CapacitanceCode(part.Picofarads);
    const auto tolerance = ToleranceCode(part);

    const auto head = size.Series + size.Number + ThicknessCode(part.ThicknessMm) + jis;
    const auto tail = CodeOf(VoltageCodes, static_cast<int>(std::lround(part.Volts * 10))) + capacitance +
                      tolerance + "A01";
    const auto previousTail = capacitance + tolerance + PreviousVoltageCode(part.Volts);
    return {head + eia[1] + tail, head + "0" + tail, "HC" + size.Eia + eia + previousTail,
            "HC" + size.Jis + jis + previousTail};
}
