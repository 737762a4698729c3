/// Extremes of capacitance over boxes, which dense scans try to beat.

#include "calc/CornerCapacitance.h"

#include "calc/TurningPoints.h"
#include "tests/Seed.h"
#include "tests/calc/Boxes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
constexpr auto view = CodeView::Eia;

CapacitanceExtremes ExtremesIn(const PartRecord& part, const ConditionBox& box)
{
    return CapacitanceExtremesIn(part, box, view).value();
}

double PicoFaradsAt(const PartRecord& part, double volts, double celsius)
{
    return CapacitancePointAt(part, volts, celsius, view).value().PicoFarads;
}

/// By how much, of the nominal capacitance, any place of a grid lies outside the extremes.
double BeatenBy(const PartRecord& part, const ConditionBox& box, int count)
{
    const auto extremes = ExtremesIn(part, box);
    double beyond = 0;
    for (int i = 0; i < count; ++i)
    {
        const double volts = Step(box.BiasVolts.Low, box.BiasVolts.High, i, count);
        for (int k = 0; k < count; ++k)
        {
            const double value =
                PicoFaradsAt(part, volts, Step(box.AmbientC.Low, box.AmbientC.High, k, count));
            beyond = std::max(
                {beyond, extremes.Least.Point.PicoFarads - value, value - extremes.Most.Point.PicoFarads});
        }
    }
    return beyond / std::abs(part.Data[Value::NominalCapacitance]);
}

ConditionBox WholeBox(const PartRecord& part)
{
    const auto range = FindCharacteristic(part.Tcc[0])->RangeIn(view);
    return {{0, part.Data[Value::RatedVoltage]}, {range.MinC, range.MaxC}};
}

bool HasModel(const PartRecord& part)
{
    return CapacitanceModelOf(part) != CapacitanceModel::None && part.Data[Value::NominalCapacitance] > 0 &&
           FindCharacteristic(part.Tcc[0]) != nullptr;
}

TEST(CornerCapacitance, IsBeatenNowhereInTheBoxesOfTheRange)
{
    std::mt19937 random(TestSeed(241));
    double worst = 0;
    int tried = 0;
    for (std::size_t i = 0; i < SampleParts().PartData.size(); i += TriesAllParts() ? 1 : 11)
    {
        const PartRecord& part = SampleParts().PartData[i];
        if (!HasModel(part))
        {
            continue;
        }
        const ConditionBox whole = WholeBox(part);
        worst = std::max(worst, BeatenBy(part, whole, TriesAllParts() ? 401 : 101));
        for (int k = 0; k < 7; ++k)
        {
            worst = std::max(worst, BeatenBy(part,
                                             {RandomRange(random, whole.BiasVolts.Low, whole.BiasVolts.High),
                                              RandomRange(random, whole.AmbientC.Low, whole.AmbientC.High)},
                                             TriesAllParts() ? 62 : 25));
        }
        ++tried;
    }
    EXPECT_GT(tried, 90);
    EXPECT_LT(worst, 1e-13);
    RecordProperty("worst", std::to_string(worst * 1e15) + "e-15");
}

/// A part of 25 V whose change over the bias has turns anywhere.
PartRecord WigglingPart(std::mt19937& random)
{
    PartRecord part;
    part.Data[Value::NominalCapacitance] = 1e6;
    part.Data[Value::RatedVoltage] = 25;
    // The integral of a quintic with its zeros around the range of bias.
    Polynomial<6> slope = {1};
    for (int k = 0; k < 5; ++k)
    {
        const auto product = Product(slope, Polynomial<2>{-Uniform(random, -8, 33) / 25, 1.0 / 25});
        std::copy_n(product.begin(), slope.size(), slope.begin());
    }
    const double size = Uniform(random, -20, 20);
    for (std::size_t power = 1; power <= 6; ++power)
    {
        part.Data[Value::BiasV + 1 - power] =
            static_cast<float>(size * slope[power - 1] / static_cast<double>(power));
    }
    return part;
}

PartRecord WigglingProduct(std::mt19937& random)
{
    PartRecord part = WigglingPart(random);
    part.Tcc = {"X7R", "R"};
    for (std::size_t power = 1; power <= 6; ++power)
    {
        part.Data[Value::TemperatureX + 1 - power] =
            static_cast<float>(Uniform(random, -15, 15) / std::pow(100.0, static_cast<double>(power)));
    }
    return part;
}

PartRecord WigglingPeak(std::mt19937& random)
{
    PartRecord part = WigglingPart(random);
    part.Tcc = {"Y5V", "F"};
    part.Data[Value::PeakAmplitude] = static_cast<float>(Uniform(random, -150, 150));
    part.Data[Value::PeakOffset] = static_cast<float>(Uniform(random, -90, 0));
    const auto set = [&](ValueGroup group, double size, double constant)
    {
        part.Data[group.First] = static_cast<float>(Uniform(random, -size, size) / 625);
        part.Data[group.First + 1] = static_cast<float>(Uniform(random, -size, size) / 25);
        part.Data[group.First + 2] = static_cast<float>(constant);
    };
    set(Values::PeakTemperature, 50, Uniform(random, -20, 60));
    set(Values::DecayBelow, 0.01, Uniform(random, -0.002, 0.02));
    set(Values::DecayAbove, 0.01, Uniform(random, -0.002, 0.02));
    part.Data[Value::ExponentBelow] = static_cast<float>(Uniform(random, 0.7, 1.4));
    part.Data[Value::ExponentAbove] = static_cast<float>(Uniform(random, 0.7, 1.4));
    return part;
}

struct Wiggle
{
    const char* Name;
    PartRecord (*Make)(std::mt19937& random);
};

class CornerCapacitanceOf : public testing::TestWithParam<Wiggle>
{
};

TEST_P(CornerCapacitanceOf, IsBeatenNowhereByPartsThatWiggle)
{
    std::mt19937 random(TestSeed(242));
    double worst = 0;
    int inside = 0;
    for (int i = 0; i < (TriesAllParts() ? 300 : 60); ++i)
    {
        const PartRecord part = GetParam().Make(random);
        const ConditionBox box{{0, 25}, {-30, 85}};
        worst = std::max(worst, BeatenBy(part, box, TriesAllParts() ? 501 : 101));
        const auto least = ExtremesIn(part, box).Least.At;
        inside += least.BiasVolts > 0 && least.BiasVolts < 25 ? 1 : 0;
    }
    EXPECT_GT(inside, 5);
    EXPECT_LT(worst, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(Laws, CornerCapacitanceOf,
                         testing::Values(Wiggle{"Product", WigglingProduct}, Wiggle{"Peak", WigglingPeak}),
                         [](const auto& info) { return std::string(info.param.Name); });

TEST(CornerCapacitance, OfAPointIsTheLawToTheBit)
{
    std::mt19937 random(TestSeed(243));
    for (const PartRecord& part : SampleParts().PartData)
    {
        if (!HasModel(part))
        {
            continue;
        }
        const ConditionBox whole = WholeBox(part);
        const auto volts = static_cast<float>(Uniform(random, 0, whole.BiasVolts.High));
        const auto celsius = static_cast<float>(Uniform(random, whole.AmbientC.Low, whole.AmbientC.High));
        const auto extremes = ExtremesIn(part, {volts, celsius});
        const auto point = CapacitancePointAt(part, volts, celsius, view).value();
        ASSERT_EQ(extremes.Least.Point.PicoFarads, point.PicoFarads);
        ASSERT_EQ(extremes.Least.Point.Change, point.Change);
        ASSERT_EQ(extremes.Most.Point.PicoFarads, point.PicoFarads);
    }
}

TEST(CornerCapacitance, ReproducesEachValueAtItsPlace)
{
    for (std::size_t i = 0; i < SampleParts().PartData.size(); i += 7)
    {
        const PartRecord& part = SampleParts().PartData[i];
        if (HasModel(part))
        {
            const auto extremes = ExtremesIn(part, WholeBox(part));
            for (const auto& each : {extremes.Least, extremes.Most})
            {
                ASSERT_EQ(PicoFaradsAt(part, each.At.BiasVolts, each.At.AmbientC), each.Point.PicoFarads);
            }
        }
    }
}

TEST(CornerCapacitance, TellsTheLowerOfEqualPlaces)
{
    PartRecord part;
    part.Tcc = {"X7R", "R"};
    part.Data[Value::NominalCapacitance] = 1000;
    const auto extremes = ExtremesIn(part, {{0, 10}, {-10, 60}});
    EXPECT_EQ(extremes.Least.At, (Place{0, -10}));
    EXPECT_EQ(extremes.Most.At, (Place{0, -10}));
}

TEST(CornerCapacitance, FindsATurnBesideAFlatStart)
{
    // No linear term, as in all parts: change = -V² + V³/15 turns at 0 V and, least, at 10 V.
    PartRecord part;
    part.Tcc = {"X7R", "R"};
    part.Data[Value::NominalCapacitance] = 1000;
    part.Data[Value::BiasV2] = -1;
    part.Data[Value::BiasV3] = 1.0F / 15;
    const auto extremes = ExtremesIn(part, {{0, 14}, 25});
    EXPECT_NEAR(extremes.Least.At.BiasVolts, 10, 1e-5);
    EXPECT_NEAR(extremes.Least.Point.PicoFarads, 1000 * (1 - 100.0 / 3 / 100), 1e-3);
}

TEST(CornerCapacitance, IsNothingWithoutAModel)
{
    EXPECT_FALSE(CapacitanceExtremesIn({}, {{0, 1}, {20, 30}}, view));
}
} // namespace
