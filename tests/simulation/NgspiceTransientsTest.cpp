/// Models in a circuit simulator over time: they conserve charge, rest, and work in a converter.

#include "simulation/ModelCharge.h"
#include "simulation/SimulationModel.h"
#include "tests/simulation/ChargeOfCharts.h"
#include "tests/simulation/ModelParts.h"
#include "tests/simulation/Ngspice.h"
#include "tests/simulation/ProvenParts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>

namespace
{
/// A deck has this long on a crowded machine.
constexpr double limit = 120;

class TransientsInNgspice : public testing::TestWithParam<ProvenPart>
{
};

/// The charge at the source, over the nominal capacitance, after a ride from 0 to the rated voltage, back, to
/// the opposite one and back, each time once the voltage has rested. A current over the capacitance, which
/// one farad adds up in the simulator's own steps, loses nothing on the way.
SimulatorRun RideOfCharge(const ProvenPart& part, const std::string& leak)
{
    const auto rated = DeckNumber(part.RatedVolts());
    const auto deck = "charge\n" + part.Model() + ".options reltol=1e-6\nV1 n 0 PWL(0 0 1m " + rated +
                      " 2m " + rated + " 3m 0 4m 0 5m -" + rated + " 6m -" + rated + " 7m 0 8m 0)\nX1 n 0 " +
                      part.Name() + " PARAMS: FESR=1MEG LEAK=" + leak + "\nF1 int 0 V1 " +
                      DeckNumber(1 / part.NominalFarads()) + "\nC2 int 0 1\nR2 int 0 1E12\n";
    return RunDeck(
        deck,
        "tran 5u 8m 0 5u\nlet last=length(time)-1\nlet k=0\nlet next=2m\n"
        "while k le last\nif time[k] ge next - 1n\nlet charge=v(int)[k]\nprint charge\nlet next=next+2m\n"
        "end\nlet k=k+1\nend\n",
        limit);
}

TEST_P(TransientsInNgspice, ConserveCharge)
{
    const auto& part = GetParam();
    const double full = ChargeOfCharts(*part.Part, part.RatedVolts(), 25);
    const auto run = RideOfCharge(part, "1E15");
    const auto charges = run.Values("charge");
    ASSERT_EQ(charges.size(), 4U) << run.Output;
    const double expected[] = {full, 0, -full, 0};
    double worst = 0;
    for (std::size_t i = 0; i < charges.size(); ++i)
    {
        worst = std::max(worst, std::abs(charges[i].first - expected[i]) / full);
    }
    TellWorst("charge over 0, Vr, -Vr, 0", part, worst, run.Seconds);
    EXPECT_LE(worst, 1e-6) << run.Output;
}

TEST_P(TransientsInNgspice, Rest)
{
    const auto& part = GetParam();
    const auto half = DeckNumber(part.RatedVolts() / 2);
    for (const std::string method : {"trap", "gear"})
    {
        for (const std::string step : {"50n", "100n"})
        {
            const auto deck = "rest\n" + part.Model() + ".options method=" + method + "\nV1 n 0 PWL(0 0 1u " +
                              half + ")\nX1 n 0 " + part.Name() + "\n";
            const auto run = RunDeck(
                deck, "tran " + step + " 60u 0 " + step + "\nlet end=time[length(time)-1]\nprint end\n",
                limit);
            TellWorst("rest, " + method + " at " + step, part, run.Status == 0 ? 0 : 1, run.Seconds);
            ASSERT_EQ(run.Status, 0) << method << ' ' << step << ": no end in time";
            EXPECT_NEAR(run.Value("end"), 60e-6, 1e-12) << run.Output;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Parts, TransientsInNgspice, testing::ValuesIn(ProvenParts()),
                         [](const auto& info) { return info.param.Name(); });

std::string ModelOf(const std::string& name)
{
    return std::get<std::string>(SimulationModel(SamplePart(name), 0));
}

TEST(ModelsInSeries, ShareTheVoltage)
{
    const std::string name = "KTS31NB51A476MA01";
    const auto deck =
        "series\n" + ModelOf(name) + "V1 n 0 PWL(0 0 10u 12)\nX1 n mid " + name + "\nX2 mid 0 " + name + "\n";
    const auto run =
        RunDeck(deck, "tran 100n 50u 0 100n\nlet middle=v(mid)[length(time)-1]\nprint middle\n", limit);
    ASSERT_EQ(run.Status, 0) << run.Output;
    EXPECT_NEAR(run.Value("middle"), 6, 1e-4);
}

TEST(ModelsInSeries, ShareItAsTheirChargesDo)
{
    // Both bear the same charge: C0·q of either at its own voltage.
    const std::string upper = "KTS31NB51A476MA01";
    const std::string lower = "KTS31NR71A226KA01";
    const auto deck = "series\n" + ModelOf(upper) + ModelOf(lower) +
                      ".options reltol=1e-6\nV1 n 0 PWL(0 0 10u 12)\n" + "X1 n mid " + upper + "\nX2 mid 0 " +
                      lower + "\n";
    const auto run =
        RunDeck(deck, "tran 100n 50u 0 100n\nlet middle=v(mid)[length(time)-1]\nprint middle\n", limit);
    const double middle = run.Value("middle");
    const double upperCharge = 47e6 * ModelChargeAt(SamplePart(upper), 25)(12 - middle);
    const double lowerCharge = 22e6 * ModelChargeAt(SamplePart(lower), 25)(middle);
    EXPECT_NEAR(upperCharge / lowerCharge, 1, 1e-5) << middle;
}

// ---- A converter ----

/// 12 V to 3.3 V at 500 kHz; the load takes 10 A, and from 520 µs on 13 A.
std::string Buck(const std::string& method, const std::string& capacitors)
{
    return "buck\n.options method=" + method +
           "\nVIN src 0 12\nRSRC src src1 20m\nLSRC src1 inp 100n\nS1 inp sw gate 0 SWM\nS2 sw 0 low 0 SWM\n"
           "D1 0 sw DM\nVG gate 0 PULSE(0 1 0 10n 10n 0.55u 2u)\nVL low 0 PULSE(1 0 0 10n 10n 0.57u 2u)\n"
           ".model SWM SW(RON=5M ROFF=1MEG VT=0.5 VH=0)\n.model DM D(IS=1E-9 RS=5M)\n"
           "L1 sw coil 2.2u\nRL coil out 10m\nRO out 0 0.33\nSO out load step 0 SWM\nRO2 load 0 1\n"
           "VST step 0 PULSE(0 1 520u 1u 1u 1 2)\n" +
           capacitors;
}

std::string PartsOfBuck()
{
    const std::string input = "KTS31NB51E106MA01";
    const std::string output = "KTS31NB51A476MA01";
    const std::string small = "KTS188R71H104KA01";
    const auto place = [](int number, const char* node, const std::string& name)
    { return "X" + std::to_string(number) + " " + node + " 0 " + name + " PARAMS: FESR=500K\n"; };
    return ModelOf(input) + ModelOf(output) + ModelOf(small) + place(1, "inp", input) +
           place(2, "inp", input) + place(3, "inp", small) + place(4, "out", output) +
           place(5, "out", output) + place(6, "out", small);
}

const std::string fixedParts = "C1 inp 0 20u\nC3 inp 0 100n\nC4 out 0 94u\nC6 out 0 100n\n";

struct BuckResult
{
    double Mean;
    double Ripple;
    double Dip;
};

BuckResult RunBuck(const std::string& what, const std::string& deck)
{
    const auto run =
        RunDeck(deck,
                "tran 20n 600u 0 20n\nmeas tran highest max v(out) from=510u to=520u\n"
                "meas tran lowest min v(out) from=510u to=520u\nmeas tran mean avg v(out) from=510u to=520u\n"
                "meas tran dip min v(out) from=520u to=600u\nlet rows=length(time)\n"
                "print highest\nprint lowest\nprint mean\nprint dip\nprint rows\n",
                limit);
    EXPECT_EQ(run.Status, 0) << what << ": no end in time";
    const BuckResult result{.Mean = run.Value("mean"),
                            .Ripple = run.Value("highest") - run.Value("lowest"),
                            .Dip = run.Value("dip")};
    if (IsWholeProof())
    {
        std::printf("buck    %-24s mean %.4f V, ripple %.2f mV, dip to %.4f V, %.0f rows, %.2f s\n",
                    what.c_str(), result.Mean, 1000 * result.Ripple, result.Dip, run.Value("rows"),
                    run.Seconds);
    }
    return result;
}

TEST(BuckConverter, RipplesMoreThanWithNominalCapacitances)
{
    const auto fixed = RunBuck("fixed, trap", Buck("trap", fixedParts));
    for (const std::string method : IsWholeProof() ? std::vector{"trap", "gear"} : std::vector{"trap"})
    {
        const auto modelled = RunBuck("models, " + method, Buck(method, PartsOfBuck()));
        EXPECT_NEAR(modelled.Mean, fixed.Mean, 0.02) << method;
        // At 3.3 V the parts at the output keep two thirds of their capacitance.
        EXPECT_GT(modelled.Ripple, 1.3 * fixed.Ripple) << method;
        EXPECT_LT(modelled.Dip, fixed.Dip) << method;
    }
}

/// The netlist of docs/simulation.md up to its control section, the model in the place of its file.
std::string FirstTransient()
{
    std::ifstream document(TEST_DATA "/../docs/simulation.md");
    const std::string include = ".include KTS31NB51A476MA01.lib";
    const std::string indent = "       ";
    std::string deck;
    for (std::string line; std::getline(document, line) && line != indent + ".control";)
    {
        const bool begins = line == indent + "a capacitor under a pulse of current";
        if (begins || (!deck.empty() && line.starts_with(indent)))
        {
            const auto text = line.substr(indent.size());
            deck += text == include ? ModelOf("KTS31NB51A476MA01") : text + "\n";
        }
    }
    return deck;
}

TEST(FirstTransient, OfTheDocumentRuns)
{
    const auto run =
        RunDeck(FirstTransient(),
                "save all @r.x1.rs[i]\nrun\nlet rows=length(time)\nprint rows\n"
                "meas tran most max @r.x1.rs[i]\nprint most\nmeas tran least min v(out)\nprint least\n",
                limit);
    ASSERT_EQ(run.Status, 0) << run.Output;
    EXPECT_GE(run.Value("rows"), 5000) << run.Output;
    // 2 V over 0.1 ohms at first; the rail comes down to 3 V.
    EXPECT_NEAR(run.Value("most"), 20, 1.5) << run.Output;
    EXPECT_NEAR(run.Value("least"), 3, 0.01);
}

TEST(StartingVoltage, IsTakenFromInitialConditions)
{
    const std::string name = "KTS31NB51A476MA01";
    const auto deck = "start\n" + ModelOf(name) + ".ic v(n)=6\nX1 n 0 " + name + "\nR1 n 0 1k\n";
    const auto run =
        RunDeck(deck, "tran 100n 20u 0 100n\nlet after=v(n)[length(time)-1]\nprint after\n", limit);
    // 6 mA for 20 µs take 0.12 µC from some 20 µF.
    EXPECT_NEAR(run.Value("after"), 6, 0.01) << run.Output;
}
} // namespace
