#include "find/FoundColumns.h"

#include <array>

/// In the order of `FoundColumn`.
static constexpr std::array<FoundColumnKind, FoundColumnCount> columns = {{
    {FoundColumn::Part, "part", "", ColumnNeed::Nothing},
    {FoundColumn::Size, "size", "", ColumnNeed::Nothing},
    {FoundColumn::Characteristic, "characteristic", "", ColumnNeed::Nothing},
    {FoundColumn::Capacitance, "capacitance", "pF", ColumnNeed::Nothing},
    {FoundColumn::RatedVoltage, "rated-voltage", "V", ColumnNeed::Nothing},
    {FoundColumn::EffectiveCapacitance, "effective-capacitance", "pF", ColumnNeed::Nothing},
    {FoundColumn::Left, "left", "%", ColumnNeed::Nothing},
    {FoundColumn::PermittedRise, "permitted-rise", "\u00B0C", ColumnNeed::Frequency},
    {FoundColumn::LossResistance, "loss-resistance", "mOhm", ColumnNeed::Frequency},
    {FoundColumn::Current, "current", "Arms", ColumnNeed::Frequency},
    {FoundColumn::Voltage, "voltage", "Vrms", ColumnNeed::Frequency},
    {FoundColumn::ApparentPower, "apparent-power", "VA", ColumnNeed::Frequency},
    {FoundColumn::EffectivePower, "effective-power", "W", ColumnNeed::Frequency},
    {FoundColumn::Rise, "rise", "\u00B0C", ColumnNeed::Load},
    {FoundColumn::Body, "body", "\u00B0C", ColumnNeed::Load},
    {FoundColumn::Ripple, "ripple", "Vrms", ColumnNeed::CurrentLoad},
    {FoundColumn::Count, "count", "", ColumnNeed::Bank},
    {FoundColumn::Total, "total", "pF", ColumnNeed::Bank},
    {FoundColumn::Area, "area", "mm\u00B2", ColumnNeed::Nothing},
    {FoundColumn::MostCapacitance, "most-capacitance", "pF", ColumnNeed::Nothing},
    {FoundColumn::Margin, "margin", "\u00B0C", ColumnNeed::Load},
    {FoundColumn::WarmCapacitance, "warm-capacitance", "pF", ColumnNeed::Load},
}};

/// In the order of `FoundPlace`.
static constexpr std::array<FoundPlaceKind, FoundPlaceCount> places = {{
    {FoundPlace::Least,
     FoundColumn::EffectiveCapacitance,
     "least",
     {Quantity::DCVoltage, Quantity::Temperature}},
    {FoundPlace::Most, FoundColumn::MostCapacitance, "most", {Quantity::DCVoltage, Quantity::Temperature}},
    {FoundPlace::Rise, FoundColumn::Rise, "rise", {Quantity::Temperature, Quantity::Frequency}},
    {FoundPlace::Margin, FoundColumn::Margin, "margin", {Quantity::Temperature, Quantity::Frequency}},
}};

std::span<const FoundPlaceKind, FoundPlaceCount> FoundPlaces()
{
    return places;
}

const FoundPlaceKind& KindOf(FoundPlace place)
{
    return places.at(static_cast<std::size_t>(place));
}

std::span<const FoundColumnKind, FoundColumnCount> FoundColumns()
{
    return columns;
}

const FoundColumnKind& KindOf(FoundColumn column)
{
    return columns.at(static_cast<std::size_t>(column));
}

bool Applies(ColumnNeed need, const FindQuestion& question)
{
    const auto& load = question.At.Load;
    switch (need)
    {
    case ColumnNeed::Frequency:
        return question.At.Kilohertz.has_value();
    case ColumnNeed::Load:
        return load.has_value();
    case ColumnNeed::CurrentLoad:
        return load && load->Kind == Quantity::Current;
    case ColumnNeed::Bank:
        return question.Wanted.Parallel.has_value();
    case ColumnNeed::Nothing:
        break;
    }
    return true;
}
