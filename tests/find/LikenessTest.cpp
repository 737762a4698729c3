/// Which parts may stand for a part, by hand and over the sample range.

#include "find/LikenessRules.h"

#include "calc/Capacitance.h"
#include "calc/PowerModel.h"
#include "find/CapacitanceRatio.h"
#include "find/KindsOfData.h"
#include "find/LossRatio.h"
#include "tests/Seed.h"
#include "tests/calc/Boxes.h"
#include "tests/find/FindParts.h"

#include <gtest/gtest.h>

namespace
{
using Reason = UnlikeReason;

/// Candidates for the first of them.
LikeParts Like(const std::vector<PartRecord>& parts, LikeQuestion question = {})
{
    question.Original = parts.data();
    std::vector<const PartRecord*> candidates;
    for (const PartRecord& part : parts)
    {
        candidates.push_back(&part);
    }
    return FindLike(candidates, question);
}

/// The reason why a part may not stand for the plain one.
std::optional<Reason> ReasonAgainst(const PartRecord& part, const LikeQuestion& question = {})
{
    const auto found = Like({PlainPart(), part}, question);
    for (std::size_t i = 0; i < UnlikeReasons; ++i)
    {
        if (found.LeftOut[i] > 0)
        {
            return static_cast<Reason>(i);
        }
    }
    return std::nullopt;
}

template <class Change> PartRecord Changed(Change change)
{
    PartRecord part = PlainPart();
    change(part);
    return part;
}

TEST(Likeness, OfACopyIsWhole)
{
    const auto found = Like({PlainPart(), PlainPart()});
    ASSERT_EQ(found.Parts.size(), 1U);
    EXPECT_EQ(found.Parts[0].Least.Value, 0);
    EXPECT_EQ(found.Parts[0].Most.Value, 0);
    EXPECT_EQ(found.Parts[0].Loss.value().Value, 0);
    EXPECT_TRUE(found.Nearest.empty());
}

TEST(Likeness, TellsTheRatiosWithTheirPlaces)
{
    // 5 % fuller, and loses nothing over the bias: at 10 V 1050 against 900 pF.
    const auto part = Changed(
        [](PartRecord& changed)
        {
            changed.Data[Value::NominalCapacitance] = 1050;
            changed.Data[Value::BiasV] = 0;
            changed.Data[Value::BiasV2] = 1e-6F;
        });
    const auto found = Like({PlainPart(), part}, {.BiasVolts = ConditionRange(0, 10)});
    ASSERT_EQ(found.Parts.size(), 1U);
    EXPECT_NEAR(found.Parts[0].Least.Value, 5, 1e-6);
    EXPECT_EQ(found.Parts[0].Least.At.BiasVolts, 0);
    EXPECT_NEAR(found.Parts[0].Most.Value, 100 * (1050 / 900.0 - 1), 1e-3);
    EXPECT_EQ(found.Parts[0].Most.At.BiasVolts, 10);
}

struct Row
{
    const char* Name;
    std::optional<Reason> Expected;
    void (*Change)(PartRecord& part);
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.Name;
}

class LikenessReason : public testing::TestWithParam<Row>
{
};

TEST_P(LikenessReason, IsTheFirstThatHolds)
{
    EXPECT_EQ(ReasonAgainst(Changed(GetParam().Change)), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Parts, LikenessReason,
    testing::Values(
        Row{"a smaller case will do", std::nullopt, [](PartRecord& part) { part.SizeCode[1] = "2012"; }},
        Row{"a larger one will not", Reason::TooLarge, [](PartRecord& part) { part.SizeCode[1] = "3225"; }},
        Row{"a higher rating will do", std::nullopt,
            [](PartRecord& part) { part.Data[Value::RatedVoltage] = 16; }},
        Row{"a lower one will not", Reason::RatedVoltageTooLow,
            [](PartRecord& part) { part.Data[Value::RatedVoltage] = 6.3F; }},
        Row{"size counts before rating", Reason::TooLarge,
            [](PartRecord& part)
            {
                part.SizeCode[1] = "3225";
                part.Data[Value::RatedVoltage] = 6.3F;
            }},
        Row{"without capacitance data", Reason::NoCapacitanceData,
            [](PartRecord& part) { part.Data[Value::BiasV] = 0; }},
        Row{"a narrower characteristic", Reason::TemperatureOutOfRange,
            [](PartRecord& part) {
                part.Tcc = {"X5R", "B"};
            }},
        Row{"a smaller permitted rise", Reason::TemperatureOutOfRange,
            [](PartRecord& part) { part.Data[Value::UpperTemperature] = 105; }},
        Row{"5 % less capacitance will do", std::nullopt,
            [](PartRecord& part) { part.Data[Value::NominalCapacitance] = 950; }},
        Row{"more than 5 % less will not", Reason::LessCapacitance,
            [](PartRecord& part) { part.Data[Value::NominalCapacitance] = 949; }},
        Row{"without heating data", Reason::NoHeatingData,
            [](PartRecord& part)
            {
                for (auto i = Values::OfPower.First; i <= Values::OfPower.Last; ++i)
                {
                    part.Data[i] = 0;
                }
            }},
        Row{"5 % more heating will do", std::nullopt,
            [](PartRecord& part) { part.Data[Value::Current] = 4.2F; }},
        Row{"more than 5 % more will not", Reason::MoreLoss,
            [](PartRecord& part) { part.Data[Value::Current] = 4.21F; }}),
    [](const auto& row) { return "Row" + std::to_string(row.index); });

TEST(Likeness, JudgesTheRangesAlone)
{
    const auto narrow = Changed([](PartRecord& part) { part.Tcc = {"X5R", "B"}; });
    EXPECT_EQ(ReasonAgainst(narrow, {.AmbientC = ConditionRange(-10, 85)}), std::nullopt);
    EXPECT_EQ(ReasonAgainst(narrow, {.AmbientC = ConditionRange(-10, 86)}), Reason::TemperatureOutOfRange);
    // The permitted rise is as large up to 65 °C.
    const auto cool = Changed([](PartRecord& part) { part.Data[Value::UpperTemperature] = 85; });
    EXPECT_EQ(ReasonAgainst(cool, {.AmbientC = ConditionRange(20, 65)}), std::nullopt);
    EXPECT_EQ(ReasonAgainst(cool, {.AmbientC = ConditionRange(20, 66)}), Reason::TemperatureOutOfRange);
}

TEST(Likeness, LimitsWhatIsMore)
{
    const auto fuller = Changed([](PartRecord& part) { part.Data[Value::NominalCapacitance] = 1300; });
    EXPECT_EQ(ReasonAgainst(fuller, {.Most = 30.0F}), std::nullopt);
    EXPECT_EQ(ReasonAgainst(fuller, {.Most = 29.0F}), Reason::MoreCapacitance);
}

TEST(Likeness, ComparesHeatingByTheLossWithOneHeatResistance)
{
    // As hot by its own resistance, which is twice as large: half the loss.
    const auto part = Changed([](PartRecord& changed) { changed.Data[Value::HeatResistance] = 100; });
    const auto own = Like({PlainPart(), part});
    EXPECT_NEAR(own.Parts.at(0).Loss.value().Value, 0, 1e-9);
    const auto same = Like({PlainPart(), part}, {.HeatResistance = 50.0F});
    EXPECT_NEAR(same.Parts.at(0).Loss.value().Value, -50, 1e-9);
}

TEST(Likeness, SaysWhereLossIsNotJudged)
{
    const LikeQuestion cold{.AmbientC = ConditionRange(-40, 10)};
    const auto parts = std::vector{PlainPart(), PlainPart()};
    auto asked = cold;
    asked.Original = parts.data();
    const auto found = Like(parts, cold);
    EXPECT_FALSE(found.Parts.at(0).Loss);
    EXPECT_EQ(LikeText(found, asked),
              "1 part fits; loss not judged: below 20 C, where the heating data begins");
}

TEST(Likeness, ListsTheNearestWhereNoneFits)
{
    std::vector<PartRecord> parts = {PlainPart()};
    for (const float capacitance : {500.0F, 900.0F, 700.0F, 800.0F})
    {
        parts.push_back(PlainPart());
        parts.back().Data[Value::NominalCapacitance] = capacitance;
    }
    const auto found = Like(parts);
    EXPECT_TRUE(found.Parts.empty());
    ASSERT_EQ(found.Nearest.size(), 3U);
    EXPECT_NEAR(found.Nearest[0].Least.Value, -10, 1e-4);
    EXPECT_NEAR(found.Nearest[1].Least.Value, -20, 1e-4);
    EXPECT_NEAR(found.Nearest[2].Least.Value, -30, 1e-4);
    LikeQuestion question{.Original = parts.data()};
    EXPECT_EQ(LikeText(found, question), "no part fits; left out: 4 less capacitance");
}

TEST(Likeness, BeginsWithThePartThatChangesLeast)
{
    std::vector<PartRecord> parts(4, PlainPart());
    parts[1].Data[Value::NominalCapacitance] = 1200;
    parts[2].Data[Value::NominalCapacitance] = 960;
    const auto found = Like(parts);
    ASSERT_EQ(found.Parts.size(), 3U);
    EXPECT_NEAR(found.Parts[0].Most.Value, 0, 1e-9);
    EXPECT_NEAR(found.Parts[1].Most.Value, -4, 1e-4);
    EXPECT_NEAR(found.Parts[2].Most.Value, 20, 1e-4);
}

TEST(LikenessRules, RefuseInTheWordsOfTheForm)
{
    const auto part = PlainPart();
    const auto keyOf = [&](LikeQuestion question)
    {
        question.Original = question.Original != nullptr ? question.Original : &part;
        const auto refused = RefuseLikeQuestion(question);
        return refused ? std::string(refused->Key) : "";
    };
    EXPECT_EQ(keyOf({}), "");
    EXPECT_EQ(keyOf({.BiasVolts = ConditionRange(0, 10)}), "");
    EXPECT_EQ(keyOf({.BiasVolts = ConditionRange(0, 10.1F)}), "dcBias");
    EXPECT_EQ(keyOf({.BiasVolts = ConditionRange(-1, 5)}), "dcBias");
    EXPECT_EQ(keyOf({.AmbientC = ConditionRange(-56, 25)}), "ambient");
    EXPECT_EQ(keyOf({.Worse = -1}), "worse");
    EXPECT_EQ(keyOf({.Worse = 99.5F}), "worse");
    EXPECT_EQ(keyOf({.Most = -1.0F}), "most");
    EXPECT_EQ(keyOf({.HeatResistance = 0.0F}), "heatResistance");
    const auto empty = WithoutCapacitanceData();
    EXPECT_EQ(keyOf({.Original = &empty}), "part");
    const auto nothingLeft = Changed([](PartRecord& changed) { changed.Data[Value::BiasV] = -10; });
    EXPECT_EQ(keyOf({.Original = &nothingLeft}), "part");
}

// ---- Over the sample range ----

/// Pairs of parts that both have data, and a box that both permit.
struct Pair
{
    const PartRecord* Part;
    const PartRecord* Original;
    ConditionBox Box;
};

std::vector<Pair> RandomPairs(std::size_t count)
{
    std::mt19937 random(TestSeed(245));
    std::vector<const PartRecord*> parts;
    for (const PartRecord& part : SampleParts().PartData)
    {
        if (HasCapacitanceData(part) && HasHeatingData(part))
        {
            parts.push_back(&part);
        }
    }
    std::vector<Pair> pairs;
    while (pairs.size() < count)
    {
        const auto* const part = parts[random() % parts.size()];
        const auto* const original = parts[random() % parts.size()];
        const float rated = std::min(part->Data[Value::RatedVoltage], original->Data[Value::RatedVoltage]);
        pairs.push_back({part, original, {RandomRange(random, 0, rated), RandomRange(random, -25, 85)}});
    }
    return pairs;
}

TEST(CapacitanceRatio, IsBeatenNowhereByPairsOfTheRange)
{
    const int steps = TriesAllParts() ? 201 : 41;
    for (const Pair& pair : RandomPairs(TriesAllParts() ? 2500 : 120))
    {
        const auto extremes = CapacitanceRatio(*pair.Part, *pair.Original, pair.Box).Extremes();
        for (int i = 0; i < steps * steps; ++i)
        {
            const double volts = Step(pair.Box.BiasVolts.Low, pair.Box.BiasVolts.High, i % steps, steps);
            const double celsius = Step(pair.Box.AmbientC.Low, pair.Box.AmbientC.High, i / steps, steps);
            const auto at = [&](const PartRecord* part)
            { return CapacitancePointAt(*part, volts, celsius, CodeView::Eia).value().PicoFarads; };
            const double ratio = at(pair.Part) / at(pair.Original);
            ASSERT_GE(ratio, extremes.Least.Value * (1 - 1e-9)) << pair.Part->PartNum[0];
            ASSERT_LE(ratio, extremes.Most.Value * (1 + 1e-9)) << pair.Part->PartNum[0];
        }
    }
}

TEST(LossRatio, IsBeatenNowhereByPairsOfTheRange)
{
    const int steps = TriesAllParts() ? 61 : 21;
    for (const Pair& pair : RandomPairs(TriesAllParts() ? 3000 : 200))
    {
        const double most = MostLossRatio({*pair.Part, *pair.Original}, {20, 85}).Value;
        for (int i = 0; i < steps; ++i)
        {
            const double celsius = Step(20, 85, i, steps);
            const auto modelOf = [&](const PartRecord* part)
            { return CurrentModelOf(*part, celsius, part->Data[Value::HeatResistance]); };
            for (int k = 0; k < 2 * steps; ++k)
            {
                const double hertz = std::pow(10, Step(4, 6, k, 2 * steps));
                const double ratio = modelOf(pair.Part).kI(hertz) / modelOf(pair.Original).kI(hertz);
                ASSERT_LE(ratio, most * (1 + 1e-9)) << pair.Part->PartNum[0];
            }
        }
    }
}

/// Whoever may stand for another one, and the other way round, is equal to it within what may be worse.
TEST(Likeness, HoldsBothWaysOnlyForEquals)
{
    std::vector<const PartRecord*> candidates;
    for (const PartRecord& part : SampleParts().PartData)
    {
        candidates.push_back(&part);
    }
    const auto likeOf = [&](const PartRecord* part)
    {
        const LikeQuestion question{.Original = part};
        return RefuseLikeQuestion(question) ? LikeParts() : FindLike(candidates, question);
    };
    int seen = 0;
    for (std::size_t i = 0; i < candidates.size(); i += TriesAllParts() ? 1 : 60)
    {
        for (const LikePart& like : likeOf(candidates[i]).Parts)
        {
            EXPECT_GE(like.Least.Value, -5 - 1e-6);
            EXPECT_GE(like.Most.Value, like.Least.Value);
            ++seen;
            const auto back = likeOf(like.Part).Parts;
            if (std::ranges::find(back, candidates[i], &LikePart::Part) != back.end())
            {
                EXPECT_LT(like.Most.Value, 100 / 0.95 - 100 + 1e-6);
            }
        }
    }
    EXPECT_GT(seen, 50);
}
} // namespace
