/// What a user types into a box: a number that reads back from its own text, or none; judged without a fault.

#include "calc/ChartNames.h"
#include "calc/Conditions.h"
#include "calc/NumberText.h"
#include "fuzz/Require.h"
#include "partdata/Windows1252.h"

#include <cmath>
#include <cstdint>
#include <string_view>

static void TryRules(std::string_view entry, EntryLocale locale, std::optional<float> value)
{
    PartRecord part;
    part.Tcc = {"Y5V", "F"};
    part.Data[Value::RatedVoltage] = 50;
    part.Data[Value::UpperTemperature] = 85;
    const bool permitted = value && *value >= 0 && *value <= 50;
    Require(!RefuseDCBias(entry, part, CodeView::Eia, locale) == permitted,
            "a bias is permitted from 0 to the rating");
    Require(!RefuseFrequency(entry, part, CodeView::Eia, locale) == (value && *value >= 10 && *value <= 1000),
            "a frequency is permitted from 10 to 1000");
    Require(!RefuseHeatResistance(entry, part, CodeView::Eia, locale) ==
                (value && *value > 0 && std::isfinite(*value)),
            "a heat resistance is permitted above 0");
    Require(!RefuseHeatingAmbient(entry, part, CodeView::Eia, locale) ==
                (value && *value >= 20 && *value <= 85),
            "an ambient temperature is permitted from 20 to the part's limit");
    Require(!RefuseClassAmbient(entry, part, CodeView::Jis, locale) ==
                (value && *value >= -25 && *value <= 85),
            "an ambient temperature is permitted within the characteristic's range");
    Require(!RefuseNoNumber(entry, part, CodeView::Eia, locale) == value.has_value(),
            "a parameter is any number");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view entry(reinterpret_cast<const char*>(data), size);
    for (const bool comma : {false, true})
    {
        const auto value = ReadEntry(entry, comma);
        if (value && std::isfinite(*value))
        {
            Require(ReadEntry(NumberText(*value)) == *value, "a number reads back from its text");
            for (const auto format : {NumberFormat::ScientificTwo, NumberFormat::ScientificShort,
                                      NumberFormat::ReadOut, NumberFormat::WholeTick})
            {
                Require(ReadEntry(FormatNumber(*value, format)).has_value(), "a formatted number is numeric");
            }
        }
        TryRules(entry, {.CommaIsDecimal = comma}, value);
    }
    const auto back = Windows1252FromUtf8(Utf8FromWindows1252(entry));
    Require(back == entry, "every byte of the code page survives");
    const auto ansi = Windows1252FromUtf8(entry);
    Require(ansi.find('?') != std::string::npos || Utf8FromWindows1252(ansi) == entry,
            "what the code page cannot tell has a question mark");
    Require(ChartOfCaption(entry).ChartType <= 3, "any caption names a chart type");
    return 0;
}
