#include "board/BomFields.h"

#include <algorithm>

namespace
{
constexpr std::array<BomFieldKind, BomFieldCount> kinds = {{
    {BomField::Reference,
     "reference",
     "",
     {},
     "reference references refdes ref refs designator designators referencedesignator "
     "referencedesignators"},
    {BomField::Part,
     "part",
     "",
     {},
     "mpn partnumber partno pn part mfrpart mfrpartnumber mfrpartno mfrpn mfgpart mfgpartnumber mfgpartno "
     "mfgpn manufacturerpart manufacturerpartnumber manufacturerpartno manufacturerpn"},
    {BomField::Value, "value", "", {}, "value comment name device libref"},
    {BomField::Quantity, "quantity", "", {}, "qty quantity count pcs"},
    {BomField::NotFitted, "not fitted", "", {}, "notfitted dnp dnf dni donotpopulate donotplace donotfit"},
    {BomField::Fitted, "fitted", "", {}, "fitted populate"},
    {BomField::Net, "net", "", {}, "net netname rail node"},
    {BomField::DCBias, "dc bias", "dcBias", Quantity::DCVoltage,
     "dcbias bias netvoltage railvoltage workingvoltage operatingvoltage vdc"},
    {BomField::Ambient, "ambient", "ambient", Quantity::Temperature, "ambient ambienttemperature ta"},
    {BomField::Current, "current", "parameter", Quantity::Current, "current ripple ripplecurrent irms"},
    {BomField::Frequency, "frequency", "frequency", Quantity::Frequency, "frequency switchingfrequency fsw"},
    {BomField::Converter, "converter", "", {}, "converter"},
    {BomField::Waveform, "waveform", "", {}, "waveform"},
    {BomField::HeatResistance, "heat resistance", "heatResistance", Quantity::HeatResistance,
     "heatresistance"},
    {BomField::Tolerance, "tolerance", "tolerance", Quantity::CapacitanceChange, "tolerance tol"},
    {BomField::Parallel, "parallel", "", {}, "parallel"},
    {BomField::NetCurrent, "net current", "", Quantity::Current, "netcurrent"},
    {BomField::NetFrequency, "net frequency", "", Quantity::Frequency, "netfrequency"},
    {BomField::NetConverter, "net converter", "", {}, "netconverter"},
    {BomField::NetWaveform, "net waveform", "", {}, "netwaveform"},
    {BomField::NetMinCapacitance, "net min capacitance", "", Quantity::Capacitance, "netmincapacitance"},
    {BomField::MinCapacitance, "min capacitance", "minCapacitance", Quantity::Capacitance, "mincapacitance"},
    {BomField::MinLeft, "min left", "minLeft", Quantity::CapacitanceChange, "minleft"},
    {BomField::MinWarmCapacitance, "min warm capacitance", "minWarmCapacitance", Quantity::Capacitance,
     "minwarmcapacitance"},
    {BomField::MaxRise, "max rise", "maxRise", Quantity::TemperatureRise, "maxrise"},
    {BomField::MaxLossResistance, "max loss resistance", "maxLossResistance", Quantity::LossResistance,
     "maxlossresistance"},
    {BomField::MaxBias, "max bias", "", Quantity::CapacitanceChange, "maxbias"},
}};

/// Where the bracket behind a heading opens; its size where none does.
std::size_t StartOfUnit(std::string_view heading)
{
    const auto end = heading.find_last_not_of(' ');
    const bool isClosed = end != std::string_view::npos && (heading[end] == ']' || heading[end] == ')');
    const auto start = isClosed ? heading.find_last_of("[(", end) : std::string_view::npos;
    return std::min(start, heading.size());
}

bool HasWord(std::string_view words, std::string_view word)
{
    for (auto place = words.find(word); place != std::string_view::npos; place = words.find(word, place + 1))
    {
        const auto end = place + word.size();
        if ((place == 0 || words[place - 1] == ' ') && (end == words.size() || words[end] == ' '))
        {
            return !word.empty();
        }
    }
    return false;
}
} // namespace

const BomFieldKind& KindOf(BomField field)
{
    return kinds.at(static_cast<std::size_t>(field));
}

std::string_view UnitOfHeading(std::string_view heading)
{
    const auto start = StartOfUnit(heading);
    if (start == heading.size())
    {
        return {};
    }
    const auto unit = heading.substr(start + 1, heading.find_first_of("])", start) - start - 1);
    return unit == "s" ? std::string_view() : unit;
}

std::string HeadingKey(std::string_view heading)
{
    std::string key;
    for (const char c : heading.substr(0, StartOfUnit(heading)))
    {
        const bool isLarge = c >= 'A' && c <= 'Z';
        if (isLarge || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
        {
            key += isLarge ? static_cast<char>(c - 'A' + 'a') : c;
        }
    }
    return key;
}

std::optional<BomField> FieldOfHeading(std::string_view heading)
{
    const auto key = HeadingKey(heading);
    const auto* const found =
        std::ranges::find_if(kinds, [&](const BomFieldKind& kind) { return HasWord(kind.Headings, key); });
    return found == kinds.end() ? std::nullopt : std::optional(found->Id);
}

bool IsAmbiguousHeading(std::string_view heading)
{
    return HasWord("voltage rating derating", HeadingKey(heading));
}
