#include "simulation/BankWarnings.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
/// 10 µF at 100 kHz, well within all that is permitted.
BankAnswer Sound()
{
    PieceOfBank piece{.PicoFarads = 1e7,
                      .Arms = 1,
                      .Rise = 10,
                      .PermittedRise = 20,
                      .Margin = 10,
                      .VoltageBound = 0.5,
                      .WorstArms = 1,
                      .WorstRise = 10,
                      .Frequencies = {{.Kilohertz = 100, .LossResistance = 3, .Arms = 1}}};
    return {.Vrms = 0.1, .Pieces = {piece, piece}, .Frequencies = {}};
}

TEST(BankWarnings, AreNoneForASoundBank)
{
    EXPECT_TRUE(WarningsOf(Sound()).empty());
}

TEST(BankWarnings, TellARiseAboveThePermittedOne)
{
    auto answer = Sound();
    answer.Pieces[1].Rise = 20;
    EXPECT_TRUE(WarningsOf(answer).empty()) << "at the permitted rise";
    answer.Pieces[1].Rise = 20.1;
    answer.Pieces[1].WorstRise = 30;
    const auto warnings = WarningsOf(answer);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].Kind, BankWarningKind::Rise);
    EXPECT_EQ(warnings[0].Piece, 1U);
    EXPECT_EQ(warnings[0].Value, 20.1);
    EXPECT_EQ(warnings[0].Permitted, 20);
}

TEST(BankWarnings, TellARiseThatTolerancesBring)
{
    auto answer = Sound();
    answer.Pieces[0].WorstRise = 21;
    const auto warnings = WarningsOf(answer);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].Kind, BankWarningKind::WorstRise);
    EXPECT_EQ(warnings[0].Value, 21);
}

TEST(BankWarnings, TellARippleAboveTheBoundOfEachPiece)
{
    auto answer = Sound();
    answer.Vrms = 0.6;
    EXPECT_EQ(WarningsOf(answer).size(), 2U);
    answer.Pieces[0].VoltageBound = 0.7;
    const auto warnings = WarningsOf(answer);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].Kind, BankWarningKind::Ripple);
    EXPECT_EQ(warnings[0].Piece, 1U);
    EXPECT_EQ(warnings[0].Value, 0.6);
    EXPECT_EQ(warnings[0].Permitted, 0.5);
}

TEST(BankWarnings, TellFromWhichFrequencyAnInductanceDecides)
{
    // (2π·f)²·10 µF·1 nH is 0.1 at 503.3 kHz.
    auto answer = Sound();
    answer.Pieces[0].Frequencies.push_back({.Kilohertz = 503, .LossResistance = 2, .Arms = 1});
    EXPECT_TRUE(WarningsOf(answer).empty());
    answer.Pieces[0].Frequencies.push_back({.Kilohertz = 900, .LossResistance = 2, .Arms = 1});
    answer.Pieces[0].Frequencies.push_back({.Kilohertz = 504, .LossResistance = 2, .Arms = 1});
    const auto warnings = WarningsOf(answer);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].Kind, BankWarningKind::Inductance);
    EXPECT_EQ(warnings[0].Value, 504);
}

TEST(BankWarnings, TellARiseThatWarmthChanges)
{
    auto answer = Sound();
    answer.Pieces[0].WarmRise = 10.49;
    answer.Pieces[1].WarmRise = 9.51;
    EXPECT_TRUE(WarningsOf(answer).empty());
    answer.Pieces[0].WarmRise = 9.49;
    answer.Pieces[1].WarmRise = 10.51;
    const auto warnings = WarningsOf(answer);
    ASSERT_EQ(warnings.size(), 2U);
    EXPECT_EQ(warnings[1].Kind, BankWarningKind::Warmth);
    EXPECT_EQ(warnings[1].Value, 10.51);
    EXPECT_EQ(warnings[1].Permitted, 10);
}
} // namespace
