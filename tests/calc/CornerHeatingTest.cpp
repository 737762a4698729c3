/// Extremes of the heating laws over boxes, which dense scans try to beat.

#include "calc/AllowablePower.h"
#include "calc/CornerCurrent.h"
#include "calc/CornerVoltage.h"
#include "calc/TemperatureRise.h"
#include "partdata/Availability.h"
#include "partdata/RunTimeError.h"
#include "tests/Seed.h"
#include "tests/calc/Boxes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
/// One part, its box, and what it is asked for.
struct Case
{
    const PartRecord* Part;
    HeatingBox Box;
    PermittedRise Permitted;
    double Amperes;
    double Volts;

    double HeatResistance() const { return Part->Data[Value::HeatResistance]; }
};

double Between(const ConditionRange& range, int i, int count)
{
    return Step(range.Low, range.High, i, count);
}

std::vector<Case> RandomCases()
{
    std::mt19937 random(TestSeed(244));
    std::vector<Case> cases;
    for (std::size_t i = 0; i < SampleParts().PartData.size(); i += TriesAllParts() ? 1 : 11)
    {
        const PartRecord& part = SampleParts().PartData[i];
        if (!HasData(part, Values::OfPower) || part.Data[Value::RatedVoltage] <= 0)
        {
            continue;
        }
        const float maxC = part.Data[Value::UpperTemperature];
        for (int k = 0; k < (TriesAllParts() ? 8 : 3); ++k)
        {
            const auto kilohertz = RandomRange(random, 10, 1000);
            cases.push_back({&part,
                             {RandomRange(random, 0, 0.99F * part.Data[Value::RatedVoltage]),
                              RandomRange(random, 20, k % 2 == 0 ? maxC : maxC - 5), kilohertz.Low * 1e3,
                              kilohertz.High * 1e3},
                             {maxC, k % 3 == 0 ? std::optional(12.0F) : std::nullopt},
                             Uniform(random, 0.1, 4),
                             Uniform(random, 0.05, 1)});
        }
    }
    return cases;
}

const std::vector<Case>& Cases()
{
    static const auto cases = RandomCases();
    return cases;
}

constexpr int steps = 13;

/// Hands every place of a grid over the box to `visit`.
template <class Visit> void Scan(const Case& tried, bool overBias, const Visit& visit)
{
    const auto& box = tried.Box;
    const int count = TriesAllParts() && !overBias ? 61 : steps;
    for (int v = 0; v < (overBias ? count : 1); ++v)
    {
        const double volts = Step(box.BiasVolts.Low, box.BiasVolts.High, v, count);
        for (int c = 0; c < count; ++c)
        {
            const double celsius = Step(box.AmbientC.Low, box.AmbientC.High, c, count);
            const auto model = overBias ? PowerModelOf(*tried.Part, volts, celsius, tried.HeatResistance())
                                        : CurrentModelOf(*tried.Part, celsius, tried.HeatResistance());
            for (int f = 0; f < count; ++f)
            {
                visit(model, volts, celsius, Step(box.LowestHertz, box.HighestHertz, f, count));
            }
        }
    }
}

constexpr double share = 1e-12;

TEST(CornerCurrent, IsBeatenNowhereInTheBoxesOfTheRange)
{
    ASSERT_GT(Cases().size(), 250U);
    for (const Case& tried : Cases())
    {
        const CurrentCorners corners(*tried.Part, tried.Box, tried.Permitted, tried.HeatResistance());
        const double rise = corners.MostRise(tried.Amperes).Value;
        const double body = corners.MostBody(tried.Amperes).Value;
        const double margin = corners.LeastMargin(tried.Amperes).Value;
        const double current = corners.LeastCurrent();
        const double loss = corners.MostLossResistance();
        Scan(tried, false,
             [&](const PowerModel& model, double, double celsius, double hertz)
             {
                 const double here = RiseAt(model, Quantity::Current, tried.Amperes, hertz);
                 const double permitted = tried.Permitted.At(celsius);
                 ASSERT_LE(here, rise * (1 + share));
                 ASSERT_LE(celsius + here, body * (1 + share));
                 ASSERT_GE(permitted - here, margin - share * (std::abs(margin) + permitted));
                 ASSERT_GE(CurrentOfRise(permitted, model.kI(hertz)), current * (1 - share));
                 ASSERT_LE(model.LossResistance(hertz).value(), loss * (1 + share));
             });
        if (HasFatalFailure())
        {
            return;
        }
    }
}

TEST(CornerCurrent, ReproducesEachValueAtItsPlace)
{
    for (const Case& tried : Cases())
    {
        const CurrentCorners corners(*tried.Part, tried.Box, tried.Permitted, tried.HeatResistance());
        const auto riseAt = [&](const Place& at)
        {
            return RiseAt(CurrentModelOf(*tried.Part, at.AmbientC, tried.HeatResistance()), Quantity::Current,
                          tried.Amperes, at.Hertz);
        };
        const auto rise = corners.MostRise(tried.Amperes);
        EXPECT_EQ(riseAt(rise.At), rise.Value);
        const auto margin = corners.LeastMargin(tried.Amperes);
        EXPECT_EQ(tried.Permitted.At(margin.At.AmbientC) - riseAt(margin.At), margin.Value);
    }
}

TEST(CornerVoltage, IsBeatenNowhereInTheBoxesOfTheRange)
{
    for (std::size_t i = 0; i < Cases().size(); i += TriesAllParts() ? 1 : 3)
    {
        const Case& tried = Cases()[i];
        const VoltageCorners corners(*tried.Part, tried.Box, tried.Permitted, tried.HeatResistance());
        const double rise = corners.MostRise(tried.Volts).Value;
        const double body = corners.MostBody(tried.Volts).Value;
        const double margin = corners.LeastMargin(tried.Volts).Value;
        const double voltage = corners.LeastVoltage();
        const double rated = RatedVoltage(*tried.Part);
        Scan(tried, true,
             [&](const PowerModel& model, double volts, double celsius, double hertz)
             {
                 const double here = RiseAt(model, Quantity::RmsVoltage, tried.Volts, hertz);
                 const double permitted = tried.Permitted.At(celsius);
                 ASSERT_LE(here, rise * (1 + share));
                 ASSERT_LE(celsius + here, body * (1 + share));
                 ASSERT_GE(permitted - here, margin - share * (std::abs(margin) + permitted));
                 const double allowed = AllowableLoadAt(model, AllowableVoltageBound(rated, volts), permitted,
                                                        Quantity::RmsVoltage, hertz);
                 ASSERT_GE(allowed, voltage * (1 - share));
             });
        if (HasFatalFailure())
        {
            return;
        }
    }
}

TEST(CornerHeating, OfAPointIsTheLawToTheBit)
{
    for (const Case& tried : Cases())
    {
        const HeatingBox point{tried.Box.BiasVolts.Low, tried.Box.AmbientC.Low, tried.Box.LowestHertz,
                               tried.Box.LowestHertz};
        const auto model =
            PowerModelOf(*tried.Part, point.BiasVolts.Low, point.AmbientC.Low, tried.HeatResistance());
        const double permitted = tried.Permitted.At(point.AmbientC.Low);
        const CurrentCorners current(*tried.Part, point, tried.Permitted, tried.HeatResistance());
        EXPECT_EQ(current.MostRise(tried.Amperes).Value,
                  RiseAt(model, Quantity::Current, tried.Amperes, point.LowestHertz));
        EXPECT_EQ(current.LeastCurrent(), CurrentOfRise(permitted, model.kI(point.LowestHertz)));
        EXPECT_EQ(current.MostLossResistance(), model.LossResistance(point.LowestHertz).value());
        const VoltageCorners voltage(*tried.Part, point, tried.Permitted, tried.HeatResistance());
        const double bound = AllowableVoltageBound(RatedVoltage(*tried.Part), point.BiasVolts.Low);
        EXPECT_EQ(voltage.LeastVoltage(),
                  AllowableLoadAt(model, bound, permitted, Quantity::RmsVoltage, point.LowestHertz));
        EXPECT_EQ(voltage.MostRise(tried.Volts).Value,
                  RiseAt(model, Quantity::RmsVoltage, tried.Volts, point.LowestHertz));
    }
}

/// 4 °C per A² at 20 °C, twice that at 120.
PartRecord LinearPart()
{
    PartRecord part;
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::Current] = 4;
    part.Data[Value::CurrentT] = 0.04F;
    part.Data[Value::HeatResistance] = 50;
    part.Data[Value::UpperTemperature] = 85;
    return part;
}

TEST(CornerCurrent, HasTheLeastMarginWhereThePermittedRiseFalls)
{
    // The rise hardly grows from 65 °C on, the permitted one falls by a degree a degree.
    const auto part = LinearPart();
    const CurrentCorners corners(part, {0, {20, 75}, 1e5, 1e5}, {85, {}}, 50);
    const auto margin = corners.LeastMargin(1);
    EXPECT_NEAR(margin.Value, 10 - (4 + 0.04 * 55), 1e-6);
    EXPECT_EQ(margin.At.AmbientC, 75);
}

TEST(CornerCurrent, RefusesALawThatReachesZero)
{
    auto part = LinearPart();
    part.Data[Value::CurrentT] = -0.08F;
    EXPECT_THROW(CurrentCorners(part, {0, {20, 80}, 1e5, 1e5}, {85, {}}, 50), RunTimeError);
    EXPECT_NO_THROW(CurrentCorners(part, {0, {20, 60}, 1e5, 1e5}, {85, {}}, 50));
}

TEST(CornerCurrent, RefusesALawThatIsLargestBetweenTheFrequencies)
{
    auto part = LinearPart();
    part.Data[Value::CurrentPerF] = -1e3F;
    part.Data[Value::CurrentF] = -1e-7F;
    EXPECT_THROW(CurrentCorners(part, {0, 20, 1e4, 1e6}, {85, {}}, 50), RunTimeError);
    EXPECT_NO_THROW(CurrentCorners(part, {0, 20, 1e5, 1e5}, {85, {}}, 50));
}

// ---- The coldest body ----

/// The least body temperature under the current of a case that a scan finds.
double ScannedBody(const Case& tried, int count)
{
    double least = 1e9;
    for (int i = 0; i < count * count; ++i)
    {
        const double celsius = Between(tried.Box.AmbientC, i % count, count);
        const double hertz = Step(tried.Box.LowestHertz, tried.Box.HighestHertz, i / count, count);
        const auto model = CurrentModelOf(*tried.Part, celsius, tried.HeatResistance());
        least = std::min(least, celsius + RiseAt(model, Quantity::Current, tried.Amperes, hertz));
    }
    return least;
}

CurrentCorners CornersOf(const Case& tried)
{
    return {*tried.Part, tried.Box, tried.Permitted, tried.HeatResistance()};
}

TEST(CurrentCorners, FindTheColdestBody)
{
    for (const Case& tried : RandomCases())
    {
        const double told = CornersOf(tried).LeastBody(tried.Amperes);
        const double scanned = ScannedBody(tried, 31);
        EXPECT_LE(told, scanned + 1e-9);
        // What the scan's own steps over the frequency leave.
        EXPECT_GE(told, scanned - 0.02 * (scanned - tried.Box.AmbientC.Low) - 1e-9);
    }
}

/// 1.8 A bring 32.4 °C at 20 °C and a degree and a half less a degree above, up to where the law bends.
TEST(CurrentCorners, FindTheColdestBodyWhereItIsNotTheColdestAmbient)
{
    PartRecord part = SampleParts().PartData[0];
    part.Data[Value::HeatResistance] = 50;
    for (std::size_t i = Values::OfPower.First; i < Value::HeatResistance; ++i)
    {
        part.Data[i] = 0;
    }
    part.Data[Value::Current] = 10;
    part.Data[Value::CurrentT] = -0.5F;
    part.Data[Value::CurrentT2] = 0.01F;
    const Case tried{&part, {0, {20, 60}, 1e5, 1e5}, {125, std::nullopt}, 2, 0};
    // T + 4·(10 - 0.5·(T - 20) + 0.01·(T - 20)²) is least where 1 - 2 + 0.08·(T - 20) = 0.
    EXPECT_NEAR(CornersOf(tried).LeastBody(2), 32.5 + 4 * (10 - 6.25 + 1.5625), 1e-6);
}
} // namespace
