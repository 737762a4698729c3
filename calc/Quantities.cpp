#include "calc/Quantities.h"

#include "partdata/RunTimeError.h"

#include <algorithm>
#include <array>

/// In the order of `Quantity`.
static constexpr std::array<QuantityKind, 14> quantities = {{
    {.Id = Quantity::Current, .Name = "Current", .Unit = "Arms", .PrefixedUnit = "Arms"},
    {.Id = Quantity::RmsVoltage, .Name = "Voltage", .Unit = "Vrms", .PrefixedUnit = "Vrms"},
    {.Id = Quantity::ApparentPower, .Name = "Apparent Power", .Unit = "VA", .PrefixedUnit = "VA"},
    {.Id = Quantity::EffectivePower, .Name = "Effective Power", .Unit = "W", .PrefixedUnit = "W"},
    {.Id = Quantity::Frequency,
     .Name = "Frequency",
     .Unit = "kHz",
     .StoredUnit = "Hz",
     .StoredPerShown = 1000,
     .PrefixedUnit = "Hz"},
    {.Id = Quantity::Temperature,
     .Name = "Temperature",
     .Unit = "C",
     .HasDegrees = true,
     .CanBeNegative = true},
    {.Id = Quantity::TemperatureRise, .Name = "Temperature Rise", .Unit = "C", .HasDegrees = true},
    {.Id = Quantity::DCVoltage, .Name = "DC Bias Voltage", .Unit = "V", .PrefixedUnit = "V"},
    {.Id = Quantity::Capacitance,
     .Name = "Capacitance",
     .Unit = "pF",
     .PrefixedUnit = "F",
     .PrefixedExponent = -12},
    {.Id = Quantity::CapacitanceChange, .Name = "Capacitance Change", .Unit = "%", .CanBeNegative = true},
    {.Id = Quantity::HeatResistance, .Name = "Heat Resistance", .Unit = "C/W", .HasDegrees = true},
    {.Id = Quantity::LossResistance,
     .Name = "Loss Resistance",
     .Unit = "mOhm",
     .PrefixedUnit = "\u03A9",
     .PrefixedExponent = -3},
    {.Id = Quantity::Time, .Name = "Time", .Unit = "s", .CanBeNegative = true, .PrefixedUnit = "s"},
    {.Id = Quantity::Inductance, .Name = "Inductance", .Unit = "H", .PrefixedUnit = "H"},
}};

const QuantityKind& KindOf(Quantity quantity)
{
    return quantities.at(static_cast<std::size_t>(quantity));
}

std::optional<Quantity> FindQuantity(std::string_view name)
{
    const auto found = std::ranges::find(quantities, name, &QuantityKind::Name);
    return found != quantities.end() ? std::optional(found->Id) : std::nullopt;
}

[[noreturn]] static void Fail(std::string_view what, std::string_view name)
{
    constexpr auto number = RunTimeErrorNumber::InvalidProcedureCall;
    std::string description = DescriptionOf(number);
    throw RunTimeError(number, description.append(": ").append(what).append(" ").append(name));
}

Quantity QuantityNamed(std::string_view name)
{
    const auto quantity = FindQuantity(name);
    if (!quantity)
    {
        Fail("no quantity", name);
    }
    return *quantity;
}

void FailOn(Quantity quantity)
{
    Fail("no law for", NameOf(quantity));
}

float ShownValue(Quantity quantity, double stored)
{
    return static_cast<float>(stored / double{KindOf(quantity).StoredPerShown});
}

static std::string WithDegrees(const QuantityKind& kind, std::string_view unit, std::string_view degreeSign)
{
    return std::string(kind.HasDegrees ? degreeSign : std::string_view()) + std::string(unit);
}

std::string UnitOf(Quantity quantity, std::string_view degreeSign)
{
    return '[' + ShownUnitOf(quantity, degreeSign) + ']';
}

std::string ShownUnitOf(Quantity quantity, std::string_view degreeSign)
{
    const QuantityKind& kind = KindOf(quantity);
    return WithDegrees(kind, kind.Unit, degreeSign);
}

std::string StoredUnitOf(std::string_view axisName)
{
    const QuantityKind& kind = KindOf(QuantityNamed(axisName));
    return WithDegrees(kind, kind.StoredUnit, defaultDegreeSign);
}

std::string GetUnit(std::string_view name, std::string_view degreeSign)
{
    return UnitOf(QuantityNamed(name), degreeSign);
}
