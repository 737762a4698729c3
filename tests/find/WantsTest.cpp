/// Which parts do what is wanted, and how many of them in parallel.

#include "tests/find/FindParts.h"

#include <gtest/gtest.h>

namespace
{
using enum FoundColumn;

constexpr Bank fewest = {.IsFewest = true};

/// True when the part fits; it is never one that cannot be judged.
bool Fits(const OperatingPoint& at, const Wants& wanted)
{
    const auto found = Find({PlainPart()}, at, wanted);
    EXPECT_EQ(found.LeftOut.Total(), 0U);
    return !found.Parts.empty();
}

TEST(Wants, AreMetUpToTheLimitItself)
{
    EXPECT_TRUE(Fits(At(5), {.LeastCapacitance = 950.0F}));
    EXPECT_FALSE(Fits(At(5), {.LeastCapacitance = 950.001F}));
    EXPECT_TRUE(Fits(At(5), {.LeastLeft = 95.0F}));
    EXPECT_FALSE(Fits(At(5), {.LeastLeft = 95.001F}));
    EXPECT_TRUE(Fits(At(5), {.MostLossResistance = 80.0F}));
    EXPECT_FALSE(Fits(At(5), {.MostLossResistance = 79.999F}));
}

TEST(Wants, LeaveOutLoadsThatHeatTooMuch)
{
    EXPECT_TRUE(Fits(With(At(5), Quantity::Current, 2.236F), {}));
    EXPECT_FALSE(Fits(With(At(5), Quantity::Current, 2.237F), {}));
    EXPECT_TRUE(Fits(With(At(5), Quantity::Current, 2.237F), {.MostRise = 25.0F}));
    EXPECT_FALSE(Fits(With(At(5), Quantity::Current, 2), {.MostRise = 15.0F}));
    EXPECT_FALSE(Fits(With(At(10), Quantity::Current, 2.237F), {}));
    EXPECT_TRUE(Fits(With(At(5), Quantity::Current, 0), {}));
}

TEST(Wants, LeaveOutVoltagesAboveWhatTheBiasLeaves)
{
    // 0.707·(10 - 8) V, far below the voltage that would heat too much.
    EXPECT_TRUE(Fits(With(At(8), Quantity::RmsVoltage, 1.414F), {}));
    EXPECT_FALSE(Fits(With(At(8), Quantity::RmsVoltage, 1.415F), {}));
}

TEST(Wants, TakeWhatWasReadOffTheList)
{
    for (const float bias : {0.1F, 3.3F, 7.7F})
    {
        const auto found = Find({PlainPart()}, At(bias));
        const auto told = [&](FoundColumn column) { return static_cast<float>(*::ValueOf(found, column)); };
        EXPECT_TRUE(Fits(At(bias), {.LeastCapacitance = told(EffectiveCapacitance)}));
        EXPECT_TRUE(Fits(At(bias), {.LeastLeft = told(Left)}));
        EXPECT_TRUE(Fits(At(bias), {.MostLossResistance = told(LossResistance)}));
        EXPECT_TRUE(Fits(With(At(bias), Quantity::Current, told(Current)), {}));
        EXPECT_TRUE(Fits(With(At(bias), Quantity::RmsVoltage, told(Voltage)), {}));
        EXPECT_TRUE(Fits(With(At(bias), Quantity::ApparentPower, told(ApparentPower)), {}));
        EXPECT_TRUE(Fits(With(At(bias), Quantity::EffectivePower, told(EffectivePower)), {}));
    }
}

TEST(Wants, OfARiseAloneLeaveNoPartOut)
{
    EXPECT_TRUE(Fits(At(5), {.MostRise = 0.001F}));
    EXPECT_TRUE(Fits(At(5, 25, std::nullopt), {.MostRise = 0.001F}));
}

// ---- Banks ----

int CountOf(const OperatingPoint& at, const Wants& wanted)
{
    const auto found = Find({PlainPart()}, at, wanted);
    EXPECT_EQ(found.LeftOut.Total(), 0U);
    return found.Parts.empty() ? 0 : static_cast<int>(*::ValueOf(found, Count));
}

int FewestFor(float leastCapacitance)
{
    return CountOf(At(0), {.LeastCapacitance = leastCapacitance, .Parallel = fewest});
}

TEST(Bank, IsAsSmallAsWillDo)
{
    EXPECT_EQ(FewestFor(0), 1);
    EXPECT_EQ(FewestFor(1), 1);
    EXPECT_EQ(FewestFor(1000), 1);
    EXPECT_EQ(FewestFor(1001), 2);
    EXPECT_EQ(FewestFor(3000), 3);
    EXPECT_EQ(FewestFor(3001), 4);
    EXPECT_EQ(FewestFor(100000), 100);
    EXPECT_EQ(FewestFor(100001), 0);
    EXPECT_EQ(FewestFor(3e38F), 0);
}

TEST(Bank, TakesAQuotientJustAboveAWholeNumberForThatNumber)
{
    EXPECT_EQ(FewestFor(2000.0005F), 2);
    EXPECT_EQ(FewestFor(2000.01F), 3);
}

TEST(Bank, SharesTheLoadEqually)
{
    const auto fewestFor = [](Quantity kind, float load)
    { return CountOf(With(At(8), kind, load), {.Parallel = fewest}); };
    const auto found = Find({PlainPart()}, At(8));
    for (const auto& [kind, column] :
         {std::pair(Quantity::Current, Current), std::pair(Quantity::ApparentPower, ApparentPower),
          std::pair(Quantity::EffectivePower, EffectivePower)})
    {
        const auto allowed = static_cast<float>(*::ValueOf(found, column));
        EXPECT_EQ(fewestFor(kind, 0), 1);
        EXPECT_EQ(fewestFor(kind, allowed), 1);
        EXPECT_EQ(fewestFor(kind, 2.01F * allowed), 3);
        EXPECT_EQ(fewestFor(kind, 3 * allowed), 3);
        EXPECT_EQ(fewestFor(kind, 101 * allowed), 0);
    }
}

TEST(Bank, BearsTheWholeVoltageInEachPart)
{
    EXPECT_EQ(CountOf(With(At(8), Quantity::RmsVoltage, 1.4F), {.Parallel = fewest}), 1);
    EXPECT_EQ(CountOf(With(At(8), Quantity::RmsVoltage, 1.5F), {.Parallel = fewest}), 0);
}

TEST(Bank, DoesWhatThePartsDoTogether)
{
    const auto found = Find({PlainPart()}, With(At(5), Quantity::Current, 4),
                            {.LeastCapacitance = 2500.0F, .Parallel = fewest});
    EXPECT_EQ(::ValueOf(found, Count), 3);
    EXPECT_NEAR(*::ValueOf(found, Total), 3 * 950, 1e-9);
    EXPECT_NEAR(*::ValueOf(found, Area), 3 * 5.12, 1e-9);
    EXPECT_NEAR(*::ValueOf(found, Rise), 4 * 16 / 9.0, 1e-9);
    EXPECT_NEAR(*::ValueOf(found, EffectiveCapacitance), 950, 1e-9);
    EXPECT_NEAR(*::ValueOf(found, Ripple), 4 / 3.0 / (2 * 3.14159265358979 * 1e5 * 950e-12), 1e-6);
}

TEST(Bank, OfAFixedNumberIsJudgedAsAWhole)
{
    const auto of = [](int count) { return Bank{.Count = count}; };
    EXPECT_TRUE(Fits(At(5), {.LeastCapacitance = 1900.0F, .Parallel = of(2)}));
    EXPECT_FALSE(Fits(At(5), {.LeastCapacitance = 1901.0F, .Parallel = of(2)}));
    EXPECT_TRUE(Fits(With(At(5), Quantity::Current, 4.47F), {.Parallel = of(2)}));
    EXPECT_FALSE(Fits(With(At(5), Quantity::Current, 4.48F), {.Parallel = of(2)}));
    // The voltage of an apparent power is bounded too: at 8 V each part bears 1.25 VA.
    EXPECT_TRUE(Fits(With(At(8), Quantity::ApparentPower, 2.4F), {.Parallel = of(2)}));
    EXPECT_FALSE(Fits(With(At(8), Quantity::ApparentPower, 2.6F), {.Parallel = of(2)}));
    // What a single part loses does not fall with their number.
    EXPECT_FALSE(Fits(At(5), {.MostLossResistance = 79.0F, .Parallel = of(2)}));
}

TEST(Bank, OfPartsWithoutCapacitanceLeftHasNoCount)
{
    PartRecord part = PlainPart();
    part.Data[Value::BiasV] = -20;
    const auto found = Find({part}, At(5), {.LeastCapacitance = 1.0F, .Parallel = fewest});
    EXPECT_EQ(found.Parts.size(), 0U);
    EXPECT_EQ(found.LeftOut.Total(), 0U);
}
} // namespace
