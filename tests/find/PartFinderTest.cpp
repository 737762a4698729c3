/// What is told of a part at an operating point, and why parts are left out.

#include "tests/find/FindParts.h"

#include <gtest/gtest.h>

namespace
{
using enum FoundColumn;
using Reason = LeftOutReason;

void ExpectValue(const FoundParts& found, FoundColumn column, double expected)
{
    const auto value = ::ValueOf(found, column);
    ASSERT_TRUE(value) << KindOf(column).Key;
    EXPECT_NEAR(*value, expected, 1e-6 * expected) << KindOf(column).Key;
}

// ---- Columns ----

TEST(FoundPart, TellsItsCapacitance)
{
    const auto found = Find({PlainPart()}, At(5, 25, std::nullopt));
    ExpectValue(found, Capacitance, 1000);
    ExpectValue(found, RatedVoltage, 10);
    ExpectValue(found, EffectiveCapacitance, 950);
    ExpectValue(found, Left, 95);
    ExpectValue(found, Area, 5.12);
    EXPECT_EQ(::ValueOf(found, PermittedRise), std::nullopt);
    EXPECT_EQ(::ValueOf(found, Part), std::nullopt);
}

TEST(FoundPart, TellsItsHeatingAtAFrequency)
{
    const auto found = Find({PlainPart()}, At(5));
    ExpectValue(found, PermittedRise, 20);
    ExpectValue(found, LossResistance, 80);
    ExpectValue(found, Current, std::sqrt(5));
    ExpectValue(found, Voltage, std::pow(16, 0.4));
    ExpectValue(found, ApparentPower, std::pow(16, 0.4) * std::sqrt(5));
    ExpectValue(found, EffectivePower, 0.4);
    EXPECT_EQ(::ValueOf(found, Rise), std::nullopt);
}

TEST(FoundPart, BearsWhatTheBiasLeaves)
{
    const auto found = Find({PlainPart()}, At(8));
    const double bound = 0.707 * 2;
    const double rise = 1.25 * std::pow(bound, 2.5);
    ExpectValue(found, Voltage, bound);
    ExpectValue(found, ApparentPower, bound * std::sqrt(rise / 4));
    ExpectValue(found, EffectivePower, rise / 50);
    ExpectValue(found, Current, std::sqrt(5));
}

TEST(FoundPart, TellsWhatALoadDoes)
{
    const auto current = Find({PlainPart()}, With(At(5), Quantity::Current, 2));
    ExpectValue(current, Rise, 16);
    ExpectValue(current, Body, 41);
    ExpectValue(current, Ripple, 2 / (2 * 3.14159265358979 * 1e5 * 950e-12));

    const auto voltage = Find({PlainPart()}, With(At(5), Quantity::RmsVoltage, 1));
    ExpectValue(voltage, Rise, 1.25);
    EXPECT_EQ(::ValueOf(voltage, Ripple), std::nullopt);
    ExpectValue(Find({PlainPart()}, With(At(5), Quantity::EffectivePower, 0.125F)), Rise, 6.25);
    // Current and voltage of a rise of 5 °C.
    const double product = std::sqrt(5.0 / 4) * std::pow(5.0 / 1.25, 0.4);
    const auto apparent =
        Find({PlainPart()}, With(At(5), Quantity::ApparentPower, static_cast<float>(product)));
    ExpectValue(apparent, Rise, 5);
}

TEST(FoundPart, HeatsByTheHeatResistanceGiven)
{
    auto at = With(At(5), Quantity::Current, 2);
    at.HeatResistance = 25.0F;
    const auto found = Find({PlainPart()}, at);
    ExpectValue(found, Rise, 8);
    ExpectValue(found, LossResistance, 80);
}

TEST(FoundPart, PermitsTheRiseThatIsWantedUpToItsTemperature)
{
    const auto permitted = [](float ambientC, float mostRise)
    { return ::ValueOf(Find({PlainPart()}, At(5, ambientC), {.MostRise = mostRise}), PermittedRise); };
    EXPECT_EQ(permitted(25, 60), 60);
    EXPECT_EQ(permitted(110, 60), 15);
    EXPECT_EQ(permitted(110, 10), 10);
    EXPECT_EQ(::ValueOf(Find({PlainPart()}, At(5, 110)), PermittedRise), 15);
}

TEST(FoundPart, LeavesOfTheCapacitanceAt20DegreesInTheJisView)
{
    PartRecord part = PlainPart();
    part.Data[Value::TemperatureX] = 1;
    auto at = At(0, 20, std::nullopt);
    // 5 °C below 25 °C it has 5 % less.
    ExpectValue(Find({part}, at), Left, 95);
    at.View = CodeView::Jis;
    ExpectValue(Find({part}, at), Left, 100);
    ExpectValue(Find({part}, at), EffectiveCapacitance, 950);
}

TEST(FoundPart, HasNoAreaWithoutMeasures)
{
    PartRecord part = PlainPart();
    part.SizeCode = {"1206", "32L"};
    EXPECT_EQ(::ValueOf(Find({part}, At(0)), Area), std::nullopt);
    ExpectValue(Find({part}, At(0)), EffectiveCapacitance, 1000);
}

TEST(FoundPart, HasEmptyColumnsWhereTheRulesRefuseThem)
{
    // At the rated voltage only the allowed loads are empty.
    const auto atRated = Find({PlainPart()}, At(10));
    ExpectValue(atRated, EffectiveCapacitance, 900);
    ExpectValue(atRated, PermittedRise, 20);
    EXPECT_EQ(::ValueOf(atRated, Current), std::nullopt);
    ExpectValue(Find({PlainPart()}, With(At(10), Quantity::Current, 1)), Rise, 4);
    // Below 20 °C nothing is known of heating.
    const auto cold = Find({PlainPart()}, At(5, -20));
    ExpectValue(cold, EffectiveCapacitance, 950);
    EXPECT_EQ(::ValueOf(cold, PermittedRise), std::nullopt);
    ExpectValue(Find({WithoutCapacitanceData()}, At(5)), PermittedRise, 20);
    ExpectValue(Find({WithoutHeatingData()}, At(5)), EffectiveCapacitance, 950);
}

// ---- Who is left out ----

struct LeftOutRow
{
    const char* Name;
    PartRecord Part;
    OperatingPoint At;
    Wants Wanted;
    Reason Expected;
};

PartRecord Changed(Value::Index index, float value)
{
    PartRecord part = PlainPart();
    part.Data[index] = value;
    return part;
}

PartRecord Unlisted()
{
    PartRecord part = PlainPart();
    part.Tcc = {"C0G", "CG"};
    return part;
}

PartRecord WithoutMeasures()
{
    PartRecord part = PlainPart();
    part.SizeCode[1] = "A";
    return part;
}

PartRecord WithoutData()
{
    PartRecord part = PlainPart();
    part.Data.fill(0);
    return part;
}

/// Its exponent of the voltage law has no reciprocal.
PartRecord Faulty(PartRecord part)
{
    part.Data[Value::VoltageExponent] = 0;
    return part;
}

const Wants leastCapacitance = {.LeastCapacitance = 1.0F};
const Wants mostLoss = {.MostLossResistance = 1000.0F};
const Bank fewest = {.IsFewest = true};

const std::vector<LeftOutRow>& LeftOutRows()
{
    static const std::vector<LeftOutRow> rows = {
        {"no data at all", WithoutData(), At(0), {}, Reason::NoCapacitanceData},
        {"no capacitance data", WithoutCapacitanceData(), At(0), leastCapacitance, Reason::NoCapacitanceData},
        {"no capacitance data and no frequency",
         WithoutCapacitanceData(),
         At(0, 25, std::nullopt),
         {},
         Reason::NoCapacitanceData},
        {"no model", Unlisted(), At(0), {.LeastLeft = 1.0F}, Reason::NoCapacitanceData},
        {"a capacitance that no list can show",
         Changed(Value::Capacitance, INFINITY),
         At(0),
         {},
         Reason::NoCapacitanceData},
        {"no heating data",
         WithoutHeatingData(),
         With(At(0), Quantity::Current, 1),
         {},
         Reason::NoHeatingData},
        {"no heating data, bias too high for the rest",
         WithoutHeatingData(),
         At(11),
         {},
         Reason::NoHeatingData},
        {"no loss resistance without heating data", WithoutHeatingData(), At(0), mostLoss,
         Reason::NoHeatingData},
        {"bias above the rated voltage", PlainPart(), At(10.01F), {}, Reason::BiasTooHigh},
        {"bias above, capacitance wanted", PlainPart(), At(10.01F), leastCapacitance, Reason::BiasTooHigh},
        {"bias above, loss wanted", PlainPart(), At(10.01F), mostLoss, Reason::BiasTooHigh},
        {"no voltage left at the rated voltage",
         PlainPart(),
         With(At(10), Quantity::RmsVoltage, 0.1F),
         {},
         Reason::BiasTooHigh},
        {"no count at the rated voltage",
         PlainPart(),
         With(At(10), Quantity::Current, 1),
         {.Parallel = fewest},
         Reason::BiasTooHigh},
        {"bias before temperature", PlainPart(), At(11, 300), leastCapacitance, Reason::BiasTooHigh},
        {"too hot", PlainPart(), At(0, 126), {}, Reason::TemperatureOutOfRange},
        {"too cold", PlainPart(), At(0, -56), leastCapacitance, Reason::TemperatureOutOfRange},
        {"too cold for a load",
         PlainPart(),
         With(At(0, 19), Quantity::Current, 1),
         {},
         Reason::TemperatureOutOfRange},
        {"no rise left", PlainPart(), With(At(0, 125), Quantity::Current, 1), {}, Reason::NoPermittedRise},
        {"no rise left of the wanted one",
         PlainPart(),
         With(At(0, 125), Quantity::Current, 1),
         {.MostRise = 5.0F},
         Reason::NoPermittedRise},
        {"size asked for", WithoutMeasures(), At(0), {.NeedsMeasures = true}, Reason::SizeWithoutMeasures},
        {"no rise before size",
         WithoutMeasures(),
         With(At(0, 125), Quantity::Current, 1),
         {.NeedsMeasures = true},
         Reason::NoPermittedRise},
        {"size before calculation",
         Faulty(WithoutMeasures()),
         At(0),
         {.NeedsMeasures = true},
         Reason::SizeWithoutMeasures},
        {"division by zero", Faulty(PlainPart()), At(0), {}, Reason::CannotBeCalculated},
        {"overflow", Changed(Value::BiasV6, 3e38F), At(9), leastCapacitance, Reason::CannotBeCalculated},
        {"no heat resistance", Changed(Value::HeatResistance, 0), At(0), {}, Reason::CannotBeCalculated},
        {"no loss resistance", Changed(Value::Current, -1), At(0), mostLoss, Reason::CannotBeCalculated},
        {"whatever else is wanted", PlainPart(), At(11), {.LeastCapacitance = 1e9F}, Reason::BiasTooHigh},
    };
    return rows;
}

TEST(PartFinder, CountsWhoIsLeftOutUnderItsFirstReason)
{
    for (const auto& row : LeftOutRows())
    {
        const auto found = Find({row.Part}, row.At, row.Wanted);
        EXPECT_EQ(found.Parts.size(), 0U) << row.Name;
        EXPECT_EQ(found.LeftOut.Total(), 1U) << row.Name;
        EXPECT_EQ(found.LeftOut[row.Expected], 1U) << row.Name << ": " << FitText(0, found.LeftOut);
    }
}

TEST(PartFinder, KeepsTheOrderOfTheParts)
{
    const auto found = Find({PlainPart(), WithoutCapacitanceData(), Changed(Value::NominalCapacitance, 10)},
                            At(0), leastCapacitance);
    ASSERT_EQ(found.Parts.size(), 2U);
    EXPECT_EQ(found.Parts[0].ValueOf(EffectiveCapacitance), 1000);
    EXPECT_EQ(found.Parts[1].ValueOf(EffectiveCapacitance), 10);
}
} // namespace
