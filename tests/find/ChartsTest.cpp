/// What is found of a part is what its charts tell: random parts of the range under random conditions.

#include "calc/Calculate.h"
#include "calc/ChartKinds.h"
#include "files/PartLoading.h"
#include "find/PartFinder.h"
#include "tests/Seed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <utility>
#include <vector>

namespace
{
constexpr int Trials = 1000;
/// A few places of a single: what the X that a chart has stored differs from the one it was computed at.
constexpr double Tolerance = 2e-6;

const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

/// One part with a line of one of its charts.
struct Trial
{
    const PartRecord* Part = nullptr;
    CodeView View = CodeView::Eia;
    ChartRecord Line;
    std::size_t Point = 0;

    float X() const { return Line.XData[Point]; }
    float Y() const { return Line.YData[Point]; }

    /// The operating point of the line, without its X.
    OperatingPoint At() const
    {
        return {.BiasVolts = Line.DCBiasVoltage,
                .AmbientC = Line.AmbientTemp,
                .Kilohertz = Line.Frequency > 0 ? std::optional(Line.Frequency) : std::nullopt,
                .HeatResistance = Line.HeatResistance,
                .View = View};
    }

    std::vector<const PartRecord*> Candidates() const { return {Part}; }

    std::optional<double> Found(FoundColumn column, const OperatingPoint& at) const
    {
        const auto found = FindParts(Candidates(), {.At = at});
        return found.Parts.empty() ? std::nullopt : found.Parts.front().ValueOf(column);
    }
};

class TrialSource
{
public:
    /// A line of a chart type and axes under conditions that it permits, and one of its points but the first,
    /// where a rise over load begins.
    Trial Next(std::string_view chart, Quantity x, Quantity y)
    {
        Trial trial;
        const auto kind = std::ranges::find(ChartKinds(), chart, &ChartKind::CommandName);
        trial.Line.ChartType = NumberOf(*kind);
        do
        {
            trial.Part = &Parts().PartData[random() % Parts().PartData.size()];
        } while (!IsAvailable(*trial.Part, trial.Line.ChartType));
        trial.View = random() % 2 == 0 ? CodeView::Eia : CodeView::Jis;
        trial.Line.XAxisName = NameOf(x);
        trial.Line.YAxisName = NameOf(y);
        trial.Line.DCBiasVoltage = 0.95F * Share() * trial.Part->Data[Value::RatedVoltage];
        trial.Line.AmbientTemp = 20 + 60 * Share();
        trial.Line.HeatResistance = trial.Part->Data[Value::HeatResistance] * (0.5F + Share());
        trial.Line.Frequency = 10 + 990 * Share();
        EXPECT_FALSE(Calculate(*trial.Part, trial.Line, trial.View));
        trial.Point = 1 + random() % (CurvePoints - 1);
        return trial;
    }

private:
    float Share() { return std::uniform_real_distribution<float>(0, 1)(random); }

    std::mt19937 random{TestSeed(20)};
};

/// The number that is told against the one that the chart has stored.
void ExpectSame(std::optional<double> found, double stored, const Trial& trial)
{
    ASSERT_TRUE(found) << trial.Part->PartNum[0];
    ASSERT_NEAR(*found, stored, Tolerance * std::max(std::abs(stored), 1e-30))
        << trial.Part->PartNum[0] << " at " << trial.X();
}

TEST(FoundValues, AreThoseOfCapacitanceOverBias)
{
    TrialSource trials;
    for (int i = 0; i < Trials; ++i)
    {
        const auto trial = trials.Next("capacitance-dc-voltage", Quantity::DCVoltage, Quantity::Capacitance);
        auto at = trial.At();
        at.BiasVolts = trial.X();
        at.Kilohertz = std::nullopt;
        ExpectSame(trial.Found(FoundColumn::EffectiveCapacitance, at), trial.Y(), trial);
    }
}

TEST(FoundValues, AreThoseOfCapacitanceOverTemperature)
{
    TrialSource trials;
    for (int i = 0; i < Trials; ++i)
    {
        const auto trial =
            trials.Next("capacitance-temperature", Quantity::Temperature, Quantity::Capacitance);
        auto at = trial.At();
        at.AmbientC = trial.X();
        at.Kilohertz = std::nullopt;
        ExpectSame(trial.Found(FoundColumn::EffectiveCapacitance, at), trial.Y(), trial);
    }
}

TEST(FoundValues, TellWhatTheChangeLeavesInEitherCode)
{
    TrialSource trials;
    for (int i = 0; i < Trials; ++i)
    {
        const auto trial =
            trials.Next("capacitance-dc-voltage", Quantity::DCVoltage, Quantity::CapacitanceChange);
        auto at = trial.At();
        at.BiasVolts = trial.X();
        at.Kilohertz = std::nullopt;
        const auto left = trial.Found(FoundColumn::Left, at);
        ASSERT_TRUE(left);
        // Of a hundred: what is stored of a small change has more places than what is left.
        ASSERT_NEAR(*left, 100 + trial.Y(), 100 * Tolerance) << trial.Part->PartNum[0];
    }
}

constexpr std::array<std::pair<Quantity, FoundColumn>, 4> AllowedLoads = {{
    {Quantity::Current, FoundColumn::Current},
    {Quantity::RmsVoltage, FoundColumn::Voltage},
    {Quantity::ApparentPower, FoundColumn::ApparentPower},
    {Quantity::EffectivePower, FoundColumn::EffectivePower},
}};

TEST(FoundValues, AreThoseOfTheRiseOverEachLoad)
{
    TrialSource trials;
    int told = 0;
    for (int i = 0; i < Trials; ++i)
    {
        const auto& [load, column] = AllowedLoads.at(static_cast<std::size_t>(i) % AllowedLoads.size());
        const auto trial = trials.Next("temperature-rise", load, Quantity::TemperatureRise);
        FindQuestion question{.At = trial.At(), .Wanted = {.MostRise = 80.0F}};
        const auto allowed = FindParts(trial.Candidates(), question).Parts.at(0).ValueOf(column);
        question.At.Load = AcLoad{.Kind = load, .Value = trial.X()};
        const auto found = FindParts(trial.Candidates(), question);
        // Charts go on to where the temperature or the bias no longer permits the load.
        ASSERT_EQ(found.Parts.empty(), trial.X() > static_cast<float>(*allowed)) << trial.Part->PartNum[0];
        if (!found.Parts.empty())
        {
            ++told;
            ExpectSame(found.Parts[0].ValueOf(FoundColumn::Rise), trial.Y(), trial);
            ExpectSame(found.Parts[0].ValueOf(FoundColumn::Body), double{trial.Line.AmbientTemp} + trial.Y(),
                       trial);
        }
    }
    EXPECT_GT(told, Trials / 4);
}

TEST(FoundValues, AreThoseOfTheAllowableLoads)
{
    TrialSource trials;
    for (int i = 0; i < Trials; ++i)
    {
        const auto& [load, column] = AllowedLoads.at(static_cast<std::size_t>(i) % AllowedLoads.size());
        const auto trial = trials.Next("allowable-power", Quantity::Frequency, load);
        auto at = trial.At();
        at.Kilohertz = ShownValue(Quantity::Frequency, trial.X());
        ExpectSame(trial.Found(column, at), trial.Y(), trial);
    }
}
} // namespace
