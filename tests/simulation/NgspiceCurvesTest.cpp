/// Models in a circuit simulator against the charts: capacitance and loss resistance of a small alternating
/// voltage.

#include "calc/Capacitance.h"
#include "calc/PowerModel.h"
#include "simulation/ModelCharge.h"
#include "simulation/SimulationModel.h"
#include "tests/simulation/ModelParts.h"
#include "tests/simulation/Ngspice.h"
#include "tests/simulation/ProvenParts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace
{
/// A deck has this long on a crowded machine.
constexpr double limit = 120;
/// So low that the loss resistance does not tell, in Hz.
constexpr double lowFrequency = 10;
/// Singles of the charts, twice rounded, and the digits of the model.
constexpr double tolerance = 1e-6;

/// Every point of a chart in the whole proof, else every sixteenth.
int Stride()
{
    return IsWholeProof() ? 1 : 16;
}

/// A voltage source on the model, which bears the parameters tt, TOL and FESR.
std::string DeckOf(const std::string& model, const std::string& name, const std::string& parameters = "")
{
    return "capacitance\n" + model + ".param tt=25\nV1 n 0 DC 0 AC 1\nX1 n 0 " + name + " PARAMS: TDEG={tt}" +
           parameters + "\n";
}

std::string Analysis(double hertz)
{
    const auto frequency = DeckNumber(hertz);
    return "ac lin 1 " + frequency + " " + frequency + "\nprint i(v1)\n";
}

/// The capacitances that a run printed, in pF.
std::vector<double> PicoFaradsOf(const SimulatorRun& run)
{
    std::vector<double> values;
    for (const auto& [real, imaginary] : run.Values("i(v1)"))
    {
        values.push_back(-imaginary / (2 * std::numbers::pi * lowFrequency) * 1e12);
    }
    return values;
}

/// One point of a chart.
struct ChartPoint
{
    double X;
    double PicoFarads;
};

std::vector<ChartPoint> PointsOf(const Curve& curve)
{
    std::vector<ChartPoint> points;
    for (std::size_t i = 0; i < CurvePoints; i += static_cast<std::size_t>(Stride()))
    {
        points.push_back({.X = curve.XData[i], .PicoFarads = curve.YData[i]});
    }
    return points;
}

/// The largest deviation of a run from the points of a chart; huge where one is missing.
double WorstOf(const SimulatorRun& run, const std::vector<ChartPoint>& points)
{
    const auto found = PicoFaradsOf(run);
    double worst = found.size() == points.size() ? 0 : 1e9;
    for (std::size_t i = 0; i < std::min(found.size(), points.size()); ++i)
    {
        worst = std::max(worst, std::abs(found[i] / points[i].PicoFarads - 1));
    }
    return worst;
}

class CurvesInNgspice : public testing::TestWithParam<ProvenPart>
{
protected:
    static std::string Deck(const std::string& parameters = "")
    {
        return DeckOf(GetParam().Model(), GetParam().Name(), parameters);
    }

    static void Judge(const std::string& check, const SimulatorRun& run,
                      const std::vector<ChartPoint>& points)
    {
        const double worst = WorstOf(run, points);
        TellWorst(check, GetParam(), worst, run.Seconds);
        EXPECT_EQ(run.Status, 0) << run.Output;
        EXPECT_LE(worst, tolerance) << check << '\n' << (worst > 1 ? run.Output : "");
    }

    static void JudgeOverVoltage(const std::string& check, double celsius)
    {
        const auto points = PointsOf(CalcCapDCVoltage(*GetParam().Part, static_cast<float>(celsius),
                                                      Quantity::Capacitance, CodeView::Eia));
        std::string commands = "alterparam tt=" + DeckNumber(celsius) + "\nreset\n";
        for (const auto& point : points)
        {
            commands += "alter v1 dc=" + DeckNumber(point.X) + "\n" + Analysis(lowFrequency);
        }
        Judge(check, RunDeck(Deck(), commands, limit), points);
    }

    static void JudgeOverTemperature(const std::string& check, double volts)
    {
        const auto points = PointsOf(CalcCapTemperature(*GetParam().Part, static_cast<float>(volts),
                                                        Quantity::Capacitance, CodeView::Eia));
        std::string commands;
        for (const auto& point : points)
        {
            commands += "alterparam tt=" + DeckNumber(point.X) +
                        "\nreset\nalter v1 dc=" + DeckNumber(static_cast<float>(volts)) + "\n" +
                        Analysis(lowFrequency);
        }
        Judge(check, RunDeck(Deck(), commands, limit), points);
    }
};

TEST_P(CurvesInNgspice, HaveTheCapacitanceOverVoltage)
{
    JudgeOverVoltage("C over voltage at 25 C", 25);
    if (IsWholeProof())
    {
        const auto range = ModelTemperatures(*GetParam().Part);
        JudgeOverVoltage("C over voltage at the coldest", range.MinC);
        JudgeOverVoltage("C over voltage at the hottest", range.MaxC);
    }
}

TEST_P(CurvesInNgspice, HaveTheCapacitanceOverTemperature)
{
    const double rated = GetParam().RatedVolts();
    JudgeOverTemperature("C over temperature at half the rated voltage", rated / 2);
    if (IsWholeProof())
    {
        JudgeOverTemperature("C over temperature without bias", 0);
        JudgeOverTemperature("C over temperature at the rated voltage", rated);
    }
}

TEST_P(CurvesInNgspice, AreEvenAndStayBeyondTheRatedVoltage)
{
    const double rated = GetParam().RatedVolts();
    const auto capacitance = [](double volts)
    { return CapacitancePointAt(*GetParam().Part, volts, 25, CodeView::Eia)->PicoFarads; };
    std::vector<ChartPoint> points;
    std::string commands;
    for (const double share : {-1.5, -1.0, -0.5, 0.5, 1.0, 1.5})
    {
        points.push_back(
            {.X = share * rated, .PicoFarads = capacitance(std::min(std::abs(share), 1.0) * rated)});
        commands += "alter v1 dc=" + DeckNumber(share * rated) + "\n" + Analysis(lowFrequency);
    }
    Judge("C of both signs and beyond the rated voltage", RunDeck(Deck(), commands, limit), points);
}

TEST_P(CurvesInNgspice, HoldTheTemperatureToItsRange)
{
    const auto range = ModelTemperatures(*GetParam().Part);
    std::vector<ChartPoint> points;
    std::string commands;
    for (const auto& [asked, held] : {std::pair(-273.0, range.MinC), std::pair(400.0, range.MaxC)})
    {
        points.push_back(
            {.X = asked,
             .PicoFarads = CapacitancePointAt(*GetParam().Part, 0, held, CodeView::Eia)->PicoFarads});
        commands += "alterparam tt=" + DeckNumber(asked) + "\nreset\n" + Analysis(lowFrequency);
    }
    Judge("C beyond the temperatures", RunDeck(Deck(), commands, limit), points);
}

TEST_P(CurvesInNgspice, FollowTheTolerance)
{
    const double nominal = CapacitancePointAt(*GetParam().Part, 0, 25, CodeView::Eia)->PicoFarads;
    Judge("C with TOL=-20", RunDeck(Deck(" TOL=-20"), Analysis(lowFrequency), limit),
          {{.X = 0, .PicoFarads = 0.8 * nominal}});
}

INSTANTIATE_TEST_SUITE_P(Parts, CurvesInNgspice, testing::ValuesIn(ProvenParts()),
                         [](const auto& info) { return info.param.Name(); });

class LossInNgspice : public testing::TestWithParam<ProvenPart>
{
};

TEST_P(LossInNgspice, IsThatOfTheHeatingData)
{
    const auto& part = *GetParam().Part;
    double worst = 0;
    double seconds = 0;
    for (const double hertz : {1e4, 1e5, 1e6})
    {
        for (const float celsius : {20.0F, 25.0F, part.Data[Value::UpperTemperature]})
        {
            const auto deck =
                DeckOf(GetParam().Model(), GetParam().Name(), " LEAK=1E15 FESR=" + DeckNumber(hertz));
            const auto run =
                RunDeck(deck, "alterparam tt=" + DeckNumber(celsius) + "\nreset\n" + Analysis(hertz), limit);
            const auto currents = run.Values("i(v1)");
            ASSERT_EQ(currents.size(), 1U) << run.Output;
            const auto [real, imaginary] = currents.front();
            const double milliohms = -1000 * real / (real * real + imaginary * imaginary);
            const auto model = PowerModelOf(part, 0, celsius, part.Data[Value::HeatResistance]);
            worst = std::max(worst, std::abs(milliohms / *model.LossResistance(hertz) - 1));
            seconds += run.Seconds;
        }
    }
    TellWorst("loss resistance", GetParam(), worst, seconds);
    EXPECT_LE(worst, tolerance);
}

INSTANTIATE_TEST_SUITE_P(Parts, LossInNgspice, testing::ValuesIn(ProvenPartsWithLoss()),
                         [](const auto& info) { return info.param.Name(); });

// ---- Parts that the range does not have ----

TEST(MadeUpPartsInNgspice, HaveTheCapacitanceOfTheirCharts)
{
    const auto moved = [](float slope, float exponent)
    {
        auto part =
            With(With(PeakedPart(), Value::PeakTemperatureV, slope), Value::PeakTemperature, 25 - 5 * slope);
        return With(With(part, Value::ExponentBelow, exponent), Value::ExponentAbove, exponent);
    };
    for (const auto& part : {moved(3, 1.2F), moved(-1, 2), moved(-2, 1.5F), moved(0, 1.6F),
                             With(With(PeakedPart(), Value::PeakAmplitude, -10), Value::PeakOffset, 20)})
    {
        const ProvenPart made{.Kind = "made up", .Part = &part};
        const auto points = PointsOf(CalcCapDCVoltage(part, 25, Quantity::Capacitance, CodeView::Eia));
        std::string commands;
        for (const auto& point : points)
        {
            commands += "alter v1 dc=" + DeckNumber(point.X) + "\n" + Analysis(lowFrequency);
        }
        const auto run = RunDeck(DeckOf(made.Model(), "F_1"), commands, limit);
        const double worst = WorstOf(run, points);
        TellWorst("C over voltage at 25 C", made, worst, run.Seconds);
        EXPECT_LE(worst, tolerance) << (worst > 1 ? run.Output : "");
    }
}

TEST(DialectsOfNgspice, ReadTheModelAlike)
{
    for (const auto* const name : {"KTS31NB51A476MA01", "KTS216F51E224ZA01"})
    {
        const ProvenPart part{.Kind = "dialects", .Part = &SamplePart(name)};
        const double expected = CapacitancePointAt(*part.Part, 5, 25, CodeView::Eia)->PicoFarads;
        for (const std::string dialect : {"", "ps", "lt", "ltpsa", "psa", "all"})
        {
            const auto settings = dialect.empty() ? "" : "set ngbehavior=" + dialect;
            const auto run = RunDeck(DeckOf(part.Model(), part.Name()),
                                     "alter v1 dc=5\n" + Analysis(lowFrequency), limit, settings);
            const double worst = WorstOf(run, {{.X = 5, .PicoFarads = expected}});
            TellWorst("C in dialect " + (dialect.empty() ? "of its own" : dialect), part, worst, run.Seconds);
            EXPECT_LE(worst, tolerance) << dialect << '\n' << run.Output;
        }
    }
}

TEST(ModelsInOneDeck, DoNotDisturbEachOther)
{
    std::string deck = "three models\nV1 n 0 DC 5 AC 1\n";
    double expected = 0;
    int number = 0;
    for (const auto* const name : {"KTS216F51E224ZA01", "KTS31NB51A476MA01", "KTU155F51H222ZA01"})
    {
        const auto& part = SamplePart(name);
        deck += std::get<std::string>(SimulationModel(part, 0)) + "X" + std::to_string(++number) + " n 0 " +
                name + "\n";
        expected += CapacitancePointAt(part, 5, 25, CodeView::Eia)->PicoFarads;
    }
    const auto run = RunDeck(deck, Analysis(lowFrequency), limit);
    EXPECT_LE(WorstOf(run, {{.X = 5, .PicoFarads = expected}}), tolerance) << run.Output;
}
} // namespace
