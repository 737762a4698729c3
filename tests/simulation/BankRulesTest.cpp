#include "simulation/BankRules.h"

#include "tests/find/FindParts.h"

#include <gtest/gtest.h>

namespace
{
BankQuestion BankOfParts(const std::vector<const PartRecord*>& parts, OperatingPoint at)
{
    BankQuestion question{.Pieces = {}, .At = at, .Ripple = {{.Kilohertz = 100, .Arms = 1}}};
    for (const PartRecord* part : parts)
    {
        question.Pieces.push_back({.Part = part});
    }
    return question;
}

std::optional<LeftOutReason> ReasonOf(const PartRecord& part, OperatingPoint at)
{
    const auto refusal = RefusePieces(BankOfParts({&part}, at));
    return refusal ? std::optional(refusal->Reason) : std::nullopt;
}

TEST(BankRules, AreThoseOfFoundParts)
{
    EXPECT_EQ(ReasonOf(PlainPart(), At(0)), std::nullopt);
    EXPECT_EQ(ReasonOf(WithoutCapacitanceData(), At(0)), LeftOutReason::NoCapacitanceData);
    EXPECT_EQ(ReasonOf(WithoutHeatingData(), At(0)), LeftOutReason::NoHeatingData);
    EXPECT_EQ(ReasonOf(PlainPart(), At(10)), std::nullopt) << "at the rated voltage";
    EXPECT_EQ(ReasonOf(PlainPart(), At(10.1F)), LeftOutReason::BiasTooHigh);
    EXPECT_EQ(ReasonOf(PlainPart(), At(0, 20)), std::nullopt);
    EXPECT_EQ(ReasonOf(PlainPart(), At(0, 19)), LeftOutReason::TemperatureOutOfRange);
    EXPECT_EQ(ReasonOf(PlainPart(), At(0, 124)), std::nullopt);
    EXPECT_EQ(ReasonOf(PlainPart(), At(0, 125)), LeftOutReason::NoPermittedRise);
}

TEST(BankRules, RefuseAPartWhereNoCurrentCouldBeShared)
{
    PartRecord lossless = PlainPart();
    lossless.Data[Value::Current] = -4;
    EXPECT_EQ(ReasonOf(lossless, At(0)), LeftOutReason::CannotBeCalculated);
    // All capacitance is gone at 10 V, and less than none would be left.
    PartRecord empty = PlainPart();
    empty.Data[Value::BiasV] = -10;
    EXPECT_EQ(ReasonOf(empty, At(10)), LeftOutReason::CannotBeCalculated);
    empty.Data[Value::BiasV] = -11;
    EXPECT_EQ(ReasonOf(empty, At(10)), LeftOutReason::CannotBeCalculated);
    EXPECT_EQ(ReasonOf(empty, At(5)), std::nullopt);
}

TEST(BankRules, NameTheFirstPieceThatIsRefused)
{
    const PartRecord plain = PlainPart();
    const PartRecord cold = WithoutHeatingData();
    const PartRecord bare = WithoutCapacitanceData();
    const auto refusal = RefusePieces(BankOfParts({&plain, &cold, &bare}, At(0)));
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->Piece, 1U);
    EXPECT_EQ(refusal->Reason, LeftOutReason::NoHeatingData);
}

TEST(BankRules, AskForALossAtEveryFrequency)
{
    // 2E5/f - 10 + 2E-5·f is not positive from 21 to 479 kHz.
    PartRecord part = PlainPart();
    part.Data[Value::CurrentPerF] = 2e5F;
    part.Data[Value::Current] = -10;
    part.Data[Value::CurrentF] = 2e-5F;
    auto question = BankOfParts({&part}, At(0));
    question.Ripple = {{.Kilohertz = 10, .Arms = 1}, {.Kilohertz = 1000, .Arms = 1}};
    EXPECT_FALSE(RefusePieces(question));
    question.Ripple.push_back({.Kilohertz = 100, .Arms = 1});
    ASSERT_TRUE(RefusePieces(question));
}

TEST(BankRules, RefuseConditionsThatNoPartPermits)
{
    const PartRecord plain = PlainPart();
    const auto keyOf = [&](OperatingPoint at, RippleCurrent ripple)
    {
        auto question = BankOfParts({&plain}, at);
        question.Ripple.push_back(ripple);
        const auto refusal = RefuseConditions(question);
        return refusal ? refusal->Key : std::string_view();
    };
    const RippleCurrent permitted = {.Kilohertz = 1000, .Arms = 0};
    EXPECT_EQ(keyOf(At(0), permitted), "");
    EXPECT_EQ(keyOf(At(-1), permitted), "dcBias");
    auto without = At(0);
    without.HeatResistance = 0.0F;
    EXPECT_EQ(keyOf(without, permitted), "heatResistance");
    EXPECT_EQ(keyOf(At(0), {.Kilohertz = 1001, .Arms = 1}), "frequency");
    EXPECT_EQ(keyOf(At(0), {.Kilohertz = 100, .Arms = -1}), "parameterValue");
}
} // namespace
