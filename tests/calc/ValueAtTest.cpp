/// Lines at any X, and where they take a value: over the range's own parts, chart types, axes and codes.

#include "calc/ValueAt.h"

#include "calc/Calculate.h"
#include "calc/ChartKinds.h"
#include "files/PartLoading.h"
#include "partdata/Characteristic.h"
#include "tests/Seed.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{
const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

struct Line
{
    const PartRecord* Part;
    CodeView View;
    ChartRecord Record;
};

/// Conditions that every chart type permits.
ChartRecord ConditionsOf(const PartRecord& part, std::mt19937& random)
{
    std::uniform_real_distribution<float> share(0, 1);
    ChartRecord record;
    record.DCBiasVoltage = 0.9F * share(random) * part.Data[Value::RatedVoltage];
    record.HeatResistance = part.Data[Value::HeatResistance] * (0.5F + share(random));
    record.Frequency = 10 + 990 * share(random);
    record.AmbientTemp = 20 + 50 * share(random);
    return record;
}

/// Fills the parameter so that the curve exists; false when it has no limit above 0.
bool Compute(Line& line)
{
    line.Record.ParameterValue = std::numeric_limits<float>::max();
    if (const auto refusal = Calculate(*line.Part, line.Record, line.View))
    {
        line.Record.ParameterValue = refusal->Shown / 2;
        return !Calculate(*line.Part, line.Record, line.View);
    }
    return true;
}

/// Lines of some parts with all axes of all chart types, both codes, conditions at random.
std::vector<Line> RandomLines()
{
    std::mt19937 random(TestSeed(20));
    std::vector<Line> lines;
    for (std::size_t i = random() % 40; i < Parts().PartData.size(); i += 40)
    {
        const PartRecord& part = Parts().PartData[i];
        for (const ChartKind& kind : ChartKinds())
        {
            for (const Quantity x : XAxesOf(kind))
            {
                for (const Quantity y : kind.YAxes)
                {
                    Line line{&part, random() % 2 == 0 ? CodeView::Eia : CodeView::Jis,
                              ConditionsOf(part, random)};
                    line.Record.ChartType = NumberOf(kind);
                    line.Record.XAxisName = NameOf(x);
                    line.Record.YAxisName = NameOf(y);
                    line.Record.ParameterName = NameOf(Parameters[random() % Parameters.size()]);
                    if (IsAvailable(part, line.Record.ChartType) && Compute(line))
                    {
                        lines.push_back(line);
                    }
                }
            }
        }
    }
    return lines;
}

const std::vector<Line>& Lines()
{
    static const std::vector<Line> lines = RandomLines();
    return lines;
}

std::optional<double> At(const Line& line, double x)
{
    return ValueAt(*line.Part, line.Record, x, line.View);
}

std::optional<double> Law(const Line& line, double x)
{
    const ChartRecord& record = line.Record;
    return SweepOf(record.ChartType, record.XAxisName)
        .LawAt(
            {*line.Part, record, QuantityNamed(record.XAxisName), QuantityNamed(record.YAxisName), line.View},
            x);
}

TEST(ValueAt, IsWhatIsStoredAtStoredX)
{
    ASSERT_GT(Lines().size(), 200U);
    for (const Line& line : Lines())
    {
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            const auto value = At(line, line.Record.XData[i]);
            ASSERT_TRUE(value) << line.Record.XAxisName << ' ' << line.Record.XData[i];
            ASSERT_EQ(static_cast<float>(*value), line.Record.YData[i]);
        }
    }
}

TEST(ValueAt, FollowsTheSameLawAsTheStoredPoints)
{
    for (const Line& line : Lines())
    {
        const auto& y = line.Record.YData;
        const double largest = std::max(std::abs(*std::ranges::max_element(y)), 1.0F);
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            const auto value = Law(line, line.Record.XData[i]);
            ASSERT_TRUE(value);
            const double tolerance = std::max(4e-7 * std::abs(double{y[i]}), 2e-7 * largest);
            ASSERT_NEAR(*value, y[i], tolerance) << line.Record.XAxisName << ' ' << line.Record.YAxisName;
        }
    }
}

TEST(ValueAt, IsNothingOutsideTheLine)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const Line& line : Lines())
    {
        const auto& x = line.Record.XData;
        EXPECT_FALSE(At(line, std::nextafter(x.front(), -infinity)));
        EXPECT_FALSE(At(line, std::nextafter(x.back(), infinity)));
        EXPECT_FALSE(At(line, std::numeric_limits<double>::quiet_NaN()));
    }
}

TEST(ValueAt, IsNothingForAPartWithoutAModel)
{
    PartRecord part;
    ChartRecord record;
    record.ChartType = 2;
    record.XAxisName = "Temperature";
    record.YAxisName = "Capacitance";
    EXPECT_FALSE(ValueAt(part, record, 0, CodeView::Eia));
    EXPECT_TRUE(CrossingsOf(part, record, 0, CodeView::Eia).empty());
}

/// How often neighbouring stored points lie on either side of a level.
std::size_t CountChanges(const CurveValues& values, float level)
{
    std::size_t changes = 0;
    for (std::size_t i = 0; i + 1 < values.size(); ++i)
    {
        changes += (values[i] < level) != (values[i + 1] < level) ? 1 : 0;
    }
    return changes;
}

TEST(CrossingsOf, LieAtTheLevelUpwards)
{
    std::size_t crossed = 0;
    for (const Line& line : Lines())
    {
        const auto [least, most] = std::ranges::minmax_element(line.Record.YData);
        for (const float share : {0.1F, 0.37F, 0.9F})
        {
            const float level = std::lerp(*least, *most, share);
            const auto crossings = CrossingsOf(*line.Part, line.Record, level, line.View);
            EXPECT_GE(crossings.size(), CountChanges(line.Record.YData, level));
            EXPECT_TRUE(std::ranges::is_sorted(crossings));
            for (const float x : crossings)
            {
                // A single of X beside the true place moves Y by no more than the neighbouring singles do.
                const double low = Law(line, std::nextafter(x, -INFINITY)).value_or(level);
                const double high = Law(line, std::nextafter(x, INFINITY)).value_or(level);
                const double slack = std::abs(high - low) + 4e-7 * std::max(1.0F, std::abs(*most));
                EXPECT_NEAR(*At(line, x), level, slack);
                ++crossed;
            }
        }
    }
    EXPECT_GT(crossed, 500U);
}

TEST(CrossingsOf, AreNoneBesideTheLine)
{
    for (const Line& line : Lines())
    {
        const auto [least, most] = std::ranges::minmax_element(line.Record.YData);
        const float span = std::max(*most - *least, 1.0F);
        EXPECT_TRUE(CrossingsOf(*line.Part, line.Record, *most + span, line.View).empty());
        EXPECT_TRUE(CrossingsOf(*line.Part, line.Record, *least - span, line.View).empty());
    }
}

Line RiseOverEffectivePower()
{
    Line line{&Parts().PartData[0], CodeView::Eia, {}};
    line.Record.XAxisName = "Effective Power";
    line.Record.YAxisName = "Temperature Rise";
    line.Record.ParameterName = "Effective Power";
    line.Record.HeatResistance = 100;
    line.Record.Frequency = 100;
    line.Record.AmbientTemp = 25;
    return line;
}

TEST(CrossingsOf, AreThoseOfAStraightLine)
{
    // 100 °C/W: 40 °C at 0.4 W, 80 °C where the line ends.
    Line line = RiseOverEffectivePower();
    ASSERT_TRUE(Compute(line));
    EXPECT_EQ(CrossingsOf(*line.Part, line.Record, 40, line.View), std::vector{0.4F});
    EXPECT_EQ(CrossingsOf(*line.Part, line.Record, 80, line.View), std::vector{0.8F});
    EXPECT_EQ(CrossingsOf(*line.Part, line.Record, 0, line.View), std::vector{0.0F});
}

TEST(CrossingsOf, TellAStretchByItsEnds)
{
    Line line = RiseOverEffectivePower();
    line.Record.XAxisName = "Frequency";
    line.Record.ParameterValue = 0.25F;
    ASSERT_FALSE(Calculate(*line.Part, line.Record, line.View));
    EXPECT_EQ(CrossingsOf(*line.Part, line.Record, 25, line.View), (std::vector{1e4F, 1e6F}));
}

TEST(CrossingsOf, SeeATurnBetweenPoints)
{
    // Change is -(x - 0.5)^2 about a peak that no point of the sweep hits: two crossings closer than points.
    PartRecord part;
    part.Tcc = {"X7R", "R"};
    part.Data[Value::NominalCapacitance] = 1000;
    part.Data[Values::TemperaturePolynomial.Last - 1] = -1;
    part.Data[Values::TemperaturePolynomial.Last] = 0.7F;
    ASSERT_EQ(CapacitanceModelOf(part), CapacitanceModel::Polynomial);
    Line line{&part, CodeView::Eia, {}};
    line.Record.ChartType = 2;
    line.Record.XAxisName = "Temperature";
    line.Record.YAxisName = "Capacitance Change";
    ASSERT_FALSE(Calculate(part, line.Record, line.View));
    // -t^2 + 0.7 t with t = T - 25 peaks at 0.1225 for T = 25.35.
    const auto crossings = CrossingsOf(part, line.Record, 0.12249F, line.View);
    ASSERT_EQ(crossings.size(), 2U);
    const double half = std::sqrt(0.7F * 0.7F / 4.0 - 0.12249F);
    EXPECT_NEAR(crossings[0], 25 + 0.7F / 2.0 - half, 1e-5);
    EXPECT_NEAR(crossings[1], 25 + 0.7F / 2.0 + half, 1e-5);
}
} // namespace
