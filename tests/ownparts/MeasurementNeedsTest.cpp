/// Each rule of what has to be measured, just met and just missed. The bias sweep's 25 °C is a temperature,
/// too.

#include "ownparts/PartFit.h"
#include "tests/calc/NamedRow.h"
#include "tests/ownparts/SampleMeasurements.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
constexpr const char* X5r = "KTS31NB51E106MA01";
constexpr const char* Y5v = "KTS31NF50J336ZA01";

struct Need
{
    std::string Name;
    const char* Part;
    Rig Met;
    Rig Missed;
    std::string Refusal;
};

class Needs : public testing::TestWithParam<Need>
{
};

TEST_P(Needs, AreMetOrTold)
{
    const auto& need = GetParam();
    EXPECT_THAT(FitPart(MeasuredOn(SamplePart(need.Part), need.Met), nullptr).Refusals, IsEmpty());
    EXPECT_THAT(FitPart(MeasuredOn(SamplePart(need.Part), need.Missed), nullptr).Refusals,
                testing::ElementsAre(HasSubstr(need.Refusal)));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Needs,
    testing::Values(
        Need{"biases", X5r, {.Biases = 7}, {.Biases = 6}, "bias: 6 biases of 7 at one temperature"},
        Need{
            "top bias",
            X5r,
            {.TopBias = 0.971},
            {.TopBias = 0.969},
            "bias: measured up to 24.22 V of 25 V: measure up to 24.25 V, lower the rated voltage, or name a "
            "part with --like"},
        Need{"temperatures",
             X5r,
             {.Temperatures = 4},
             {.Temperatures = 3},
             "temperature: 4 temperatures of 5 without bias"},
        Need{"temperatures of a peak",
             Y5v,
             {.Temperatures = 6},
             {.Temperatures = 5},
             "temperature: 6 temperatures of 7 without bias"},
        Need{"ends of the temperatures",
             X5r,
             {.TemperatureShare = 0.82},
             {.TemperatureShare = 0.8},
             "temperature: measured from -39 C, -40 C needed"},
        Need{"frequencies",
             X5r,
             {.Hertz = {1e5, 3e5}},
             {.Hertz = {1e5, 2.9e5}},
             "rise: measured from 100 to 290 kHz alone"},
        Need{"one frequency",
             X5r,
             {.Hertz = {1e5, 1e6}},
             {.Hertz = {1e5}},
             "rise: measured at 100 kHz alone"}),
    [](const auto& info) { return RowName(info); });

MeasuredPart Measured(const char* part, const Rig& rig = {})
{
    return MeasuredOn(SamplePart(part), rig);
}

TEST(Needs, OfAPartWithoutMeasurements)
{
    auto part = Measured(X5r);
    part.Measured = {};
    EXPECT_THAT(FitPart(part, nullptr).Refusals,
                testing::ElementsAre("no capacitance and no rise: measure one of them"));
}

TEST(Needs, APointWithoutBias)
{
    auto part = Measured(X5r);
    std::erase_if(part.Measured.Capacitances, [](const auto& point) { return point.Volts == 0; });
    EXPECT_THAT(FitPart(part, nullptr).Refusals, testing::Contains(HasSubstr("no point without bias")));
}

TEST(Needs, RisesOverCurrent)
{
    auto part = Measured(X5r);
    part.Measured.RisesByVoltage = part.Measured.RisesByCurrent;
    part.Measured.RisesByCurrent.clear();
    EXPECT_THAT(FitPart(part, nullptr).Refusals, testing::ElementsAre(HasSubstr("over voltage alone")));
}

TEST(Needs, ATemperatureSweepOfAPeakAlone)
{
    auto flat = Measured(X5r);
    const auto isWarm = [](const auto& point) { return point.Celsius != 25; };
    std::erase_if(flat.Measured.Capacitances, isWarm);
    const auto fit = FitPart(flat, nullptr);
    EXPECT_THAT(fit.Refusals, IsEmpty());
    EXPECT_THAT(fit.Fitted.Warnings,
                testing::Contains("capacitance over temperature not measured: taken as the same everywhere"));
    auto peaked = Measured(Y5v);
    std::erase_if(peaked.Measured.Capacitances, isWarm);
    EXPECT_THAT(FitPart(peaked, nullptr).Refusals, testing::Contains(HasSubstr("of 7 without bias")));
}

std::string LineNamed(const FittedPart& fitted, std::string_view name)
{
    const auto group = std::ranges::find(fitted.Groups, name, &FitGroup::Name);
    return group == fitted.Groups.end() ? "none" : group->Told;
}

TEST(Needs, OfTheTermsOfHeating)
{
    const auto told = [](const Rig& rig, std::string_view line)
    { return LineNamed(FitPart(Measured(X5r, rig), nullptr).Fitted, line); };
    EXPECT_EQ(told({.Hertz = {1e5, 3e5, 1e6}}, "terms 1/f, 1, f"), "all seen");
    EXPECT_EQ(told({.Hertz = {1e5, 3e5, 9e5}}, "terms 1/f, 1, f"), "1/f, 1 seen");
    EXPECT_EQ(told({.Ambients = {25, 54}}, "over ambient"), "the same everywhere");
    EXPECT_EQ(told({.Ambients = {25, 55}}, "over ambient"), "a line");
    EXPECT_EQ(told({.Ambients = {25, 40, 59}}, "over ambient"), "a line");
    EXPECT_EQ(told({.Ambients = {25, 40, 60}}, "over ambient"), "a parabola");
}

TEST(Needs, OfThePeakUnderBias)
{
    const auto told = [](const Rig& rig)
    { return LineNamed(FitPart(Measured(Y5v, rig), nullptr).Fitted, "over temperature"); };
    EXPECT_THAT(told({.TemperaturesAtRated = 3}), HasSubstr("not moved by bias"));
    EXPECT_THAT(told({.TemperaturesAtRated = 4}), testing::Not(HasSubstr("moved by bias")));
}
} // namespace
