/// Banks against values that were worked out from the data file by a script of its own, with complex numbers
/// of forty digits.

#include "simulation/BankRanges.h"

#include "calc/Capacitance.h"
#include "files/PartLoading.h"
#include "tests/find/FindParts.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <complex>

namespace
{
const PartRecord& PartNamed(std::string_view name)
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts.PartData[static_cast<std::size_t>(*parts.PartIndex[0].Find(name))];
}

/// Two of 22 µF ±10 %, one of 47 µF ±20 % and one of 0.1 µF ±10 % at 5 V and 45 °C.
BankQuestion ThreeKinds(std::vector<RippleCurrent> ripple)
{
    return {.Pieces = {{.Part = &PartNamed("KTS31NR71A226KA01"), .Count = 2, .Tolerance = {10, 10}},
                       {.Part = &PartNamed("KTS31NB51A476MA01"), .Count = 1, .Tolerance = {20, 20}},
                       {.Part = &PartNamed("KTS188R71H104KA01"), .Count = 1, .Tolerance = {10, 10}}},
            .At = {.BiasVolts = 5, .AmbientC = 45},
            .Ripple = std::move(ripple)};
}

/// Singles are what parts are made of; the laws themselves are in double precision.
void ExpectNear(double value, double expected)
{
    EXPECT_NEAR(value, expected, 1e-8 * std::abs(expected));
}

struct Expected
{
    double PicoFarads;
    double Arms;
    double Rise;
    double WorstArms;
    double WorstRise;
};

void ExpectPieces(const BankAnswer& answer, const std::array<Expected, 3>& expected)
{
    ASSERT_EQ(answer.Pieces.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
    {
        SCOPED_TRACE(i);
        const PieceOfBank& piece = answer.Pieces[i];
        ExpectNear(piece.PicoFarads, expected[i].PicoFarads);
        ExpectNear(piece.Arms, expected[i].Arms);
        ExpectNear(piece.Rise, expected[i].Rise);
        ExpectNear(piece.WorstArms, expected[i].WorstArms);
        ExpectNear(piece.WorstRise, expected[i].WorstRise);
        EXPECT_EQ(piece.PermittedRise, 20);
        EXPECT_EQ(piece.Margin, 20 - piece.Rise);
    }
}

TEST(Bank, SharesACurrentByCapacitanceAndLoss)
{
    const auto answer = BankOf(ThreeKinds({{.Kilohertz = 300, .Arms = 6}}));
    ExpectPieces(answer, {{{13987763.08, 1.712086173, 0.8727627047, 2.057428454, 1.260359454},
                           {20978880.13, 2.564026833, 1.613604373, 2.989464101, 2.193504933},
                           {98194.62656, 0.0120501752, 0.003357935238, 0.0154394733, 0.005512524781}}});
    ExpectNear(answer.Pieces[0].Frequencies.at(0).LossResistance, 2.835669688);
    ExpectNear(answer.Pieces[2].Frequencies.at(0).LossResistance, 105.1145687);
    ExpectNear(answer.Pieces[2].Frequencies.at(0).Arms, 0.0120501752);
    // 0.354 of 10 V and of 50 V.
    ExpectNear(answer.Pieces[0].VoltageBound, 3.54);
    ExpectNear(answer.Pieces[2].VoltageBound, 17.7);
}

TEST(Bank, IsOneImpedance)
{
    const auto answer = BankOf(ThreeKinds({{.Kilohertz = 300, .Arms = 6}}));
    ExpectNear(answer.PicoFarads, 49048497.19);
    ExpectNear(answer.LeastPicoFarads, 42049452.81);
    ExpectNear(answer.Vrms, 0.06511584747);
    ASSERT_EQ(answer.Frequencies.size(), 1U);
    ExpectNear(answer.Frequencies[0].PicoFarads, 49048497.19);
    ExpectNear(answer.Frequencies[0].LossResistance, 0.8890826543);
    ExpectNear(answer.Frequencies[0].Vrms, 0.06511584747);
}

TEST(Bank, HeatsBySumOfSquaresOverFrequencies)
{
    const auto answer =
        BankOf(ThreeKinds({{.Kilohertz = 600, .Arms = 1.25F}, {.Kilohertz = 300, .Arms = 4}}));
    ExpectPieces(answer, {{{13987763.08, 1.195916146, 0.4221427591, 1.436841515, 0.6093852184},
                           {20978880.13, 1.790698669, 0.7771496497, 2.087467041, 1.056131831},
                           {98194.62656, 0.008421912058, 0.001569070832, 0.01078880417, 0.002575359395}}});
    ExpectNear(answer.Pieces[1].Frequencies.at(0).Arms, 0.5335917191);
    ExpectNear(answer.Pieces[1].Frequencies.at(1).Arms, 1.709351222);
    ExpectNear(answer.Vrms, 0.04394476708);
    ExpectNear(answer.Frequencies.at(0).Vrms, 0.006831207936);
    // At the lowest frequency, wherever it stands.
    ExpectNear(answer.PicoFarads, 49048497.19);
    ExpectNear(answer.Frequencies.at(0).PicoFarads, 49044459.16);
}

BankQuestion Equal(int count, float tolerance, float amperes)
{
    static const PartRecord part = PlainPart();
    return {.Pieces = {{.Part = &part, .Count = count, .Tolerance = {tolerance, tolerance}}},
            .At = At(0, 25),
            .Ripple = {{.Kilohertz = 100, .Arms = amperes}}};
}

TEST(Bank, GivesEqualPiecesEqualShares)
{
    for (const int count : {1, 2, 3, 7, 100})
    {
        const auto answer = BankOf(Equal(count, 0, 21));
        EXPECT_EQ(answer.Pieces[0].Arms, 21.0 / count) << count;
        EXPECT_EQ(answer.Pieces[0].WorstArms, 21.0 / count) << count;
        // kI = 4 °C/A².
        EXPECT_NEAR(answer.Pieces[0].Rise, 4 * std::pow(21.0 / count, 2), 1e-9) << count;
        EXPECT_NEAR(answer.PicoFarads, 1000.0 * count, 1e-6) << count;
        EXPECT_NEAR(answer.Frequencies[0].LossResistance, 80.0 / count, 1e-9) << count;
    }
}

TEST(Bank, SharesEquallyAlsoAmongPiecesThatAreNamedApart)
{
    auto question = Equal(2, 0, 3);
    question.Pieces.push_back({.Part = question.Pieces[0].Part, .Count = 1});
    const auto answer = BankOf(question);
    EXPECT_EQ(answer.Pieces[0].Arms, 1);
    EXPECT_EQ(answer.Pieces[1].Arms, 1);
}

TEST(Bank, GivesTheLargestPieceTheLargestShare)
{
    // 1/ωC is 1.6 kΩ and the loss 80 mΩ, so that shares are those of the capacitances:
    // 1.2/(1.2 + (n - 1)·0.8).
    const auto two = BankOf(Equal(2, 20, 1));
    EXPECT_NEAR(two.Pieces[0].Arms, 0.5, 1e-12);
    EXPECT_NEAR(two.Pieces[0].WorstArms, 0.6, 1e-6);
    EXPECT_NEAR(two.Pieces[0].WorstRise, 4 * 0.36, 1e-5);
    EXPECT_NEAR(two.LeastPicoFarads, 1600, 1e-6);
    EXPECT_NEAR(BankOf(Equal(4, 20, 1)).Pieces[0].WorstArms, 1.2 / 3.6, 1e-6);
    EXPECT_EQ(BankOf(Equal(1, 20, 1)).Pieces[0].WorstArms, 1);
}

TEST(Bank, HeatsByTheHeatResistanceInUse)
{
    auto question = Equal(1, 0, 1);
    question.At.HeatResistance = 100.0F;
    const auto answer = BankOf(question);
    EXPECT_NEAR(answer.Pieces[0].Rise, 8, 1e-9);
    EXPECT_NEAR(answer.Frequencies[0].LossResistance, 80, 1e-9);
}

TEST(Bank, LosesCapacitanceByItsBias)
{
    auto question = Equal(2, 0, 0);
    question.At.BiasVolts = 10;
    const auto answer = BankOf(question);
    EXPECT_NEAR(answer.Pieces[0].PicoFarads, 900, 1e-6);
    EXPECT_NEAR(answer.PicoFarads, 1800, 1e-6);
    EXPECT_EQ(answer.Pieces[0].VoltageBound, 0);
    EXPECT_EQ(answer.Vrms, 0);
}

// ---- Warmth ----

TEST(Bank, HasEachPiecesCapacitanceAtItsOwnTemperature)
{
    const auto question = ThreeKinds({{.Kilohertz = 300, .Arms = 12}});
    const auto answer = BankOf(question);
    for (std::size_t i = 0; i < answer.Pieces.size(); ++i)
    {
        const PieceOfBank& piece = answer.Pieces[i];
        const auto warm = CapacitancePointAt(*question.Pieces[i].Part, 5, 45 + piece.Rise, CodeView::Eia);
        ExpectNear(piece.WarmPicoFarads.value(), warm->PicoFarads);
    }
    EXPECT_NE(answer.Pieces[0].WarmPicoFarads, answer.Pieces[0].PicoFarads);
    EXPECT_NE(answer.Pieces[1].WarmRise, answer.Pieces[1].Rise);
}

TEST(Bank, SharesByTheCapacitancesOfItsOwnTemperatures)
{
    constexpr double ripple = 11;
    const BankQuestion question = {
        .Pieces = {{.Part = &PartNamed("KTS31NR71A226KA01")}, {.Part = &PartNamed("KTS31NB51A476MA01")}},
        .At = {.BiasVolts = 9, .AmbientC = 20},
        .Ripple = {{.Kilohertz = 20, .Arms = ripple}}};
    const auto answer = BankOf(question);
    std::array<std::complex<double>, 2> admittances;
    for (std::size_t i = 0; i < 2; ++i)
    {
        const PieceOfBank& piece = answer.Pieces[i];
        const auto warm =
            CapacitancePointAt(*question.Pieces[i].Part, 9, 20 + piece.WarmRise.value(), CodeView::Eia);
        const double reactance = 1 / (2 * M_PI * 20e3 * warm->PicoFarads * 1e-12);
        admittances[i] = 1.0 / std::complex(piece.Frequencies[0].LossResistance * 1e-3, -reactance);
    }
    for (std::size_t i = 0; i < 2; ++i)
    {
        const PieceOfBank& piece = answer.Pieces[i];
        const double amperes = ripple * std::abs(admittances[i] / (admittances[0] + admittances[1]));
        EXPECT_NEAR(*piece.WarmRise, piece.Rise * std::pow(amperes / piece.Arms, 2), 1e-6);
        EXPECT_GT(std::abs(*piece.WarmRise / piece.Rise - 1), 0.05);
    }
}

TEST(Bank, OfEqualPiecesIsAsHotWhenItsCapacitanceIsWarm)
{
    const auto answer = BankOf({.Pieces = {{.Part = &PartNamed("KTS31NR71A226KA01"), .Count = 3}},
                                .At = {.BiasVolts = 5, .AmbientC = 45},
                                .Ripple = {{.Kilohertz = 300, .Arms = 12}}});
    EXPECT_NEAR(answer.Pieces[0].WarmRise.value(), answer.Pieces[0].Rise, 1e-9);
}

TEST(Bank, HasNoWarmthWhereAPieceLeavesItsCharacteristic)
{
    auto question = ThreeKinds({{.Kilohertz = 300, .Arms = 60}});
    const auto answer = BankOf(question);
    ASSERT_GT(answer.Pieces[1].Rise, 85 - 45);
    EXPECT_EQ(answer.Pieces[1].WarmPicoFarads, std::nullopt);
    EXPECT_EQ(answer.Pieces[0].WarmRise, std::nullopt);
    EXPECT_EQ(answer.Pieces[1].WarmRise, std::nullopt);
}
} // namespace
