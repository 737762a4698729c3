#include "chart/layout/FittingAxis.h"

#include "chart/layout/FittingLayout.h"
#include "chart/layout/FittingText.h"
#include "tests/Seed.h"
#include "tests/calc/NamedRow.h"
#include "tests/chart/layout/PlainRuler.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

namespace
{

const ChartKey rise = {0, "Current", "Temperature Rise"};
const ChartKey riseOverFrequency = {0, "Frequency", "Temperature Rise"};
const ChartKey allowable = {1, "Frequency", "Current"};
const ChartKey change = {2, "Temperature", "Capacitance Change"};
const ChartKey capacitance = {3, "DC Bias Voltage", "Capacitance"};

std::string LabelsOf(const FittingAxis& axis)
{
    std::string text;
    for (const auto& tick : axis.Ticks)
    {
        text += (text.empty() ? "" : " ") + tick.Text;
    }
    return text;
}

/// An axis and how it is labelled where it has a length in text sizes.
struct AxisRow
{
    const char* Name;
    ChartKey Chart;
    AxisRange Range;
    double Length;
    const char* Title;
    const char* Labels;
};

class FittedX : public testing::TestWithParam<AxisRow>
{
};

TEST_P(FittedX, HasItsLabels)
{
    const auto& row = GetParam();
    const auto axis = FitXAxis({row.Chart, row.Range}, row.Length * 16, PlainRuler(16));
    EXPECT_EQ(axis.Title, row.Title);
    EXPECT_EQ(LabelsOf(axis), row.Labels);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FittedX,
    testing::Values(
        AxisRow{"a current in a small window",
                rise,
                {18, 100, 0, 0},
                48,
                "Current [Arms]",
                "0 2 4 6 8 10 12 14 16 18"},
        AxisRow{"in a large one",
                rise,
                {18, 100, 0, 0},
                100,
                "Current [Arms]",
                "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18"},
        AxisRow{"in a tiny one", rise, {18, 100, 0, 0}, 9, "Current [Arms]", "0 10"},
        AxisRow{"on less room than labels take", rise, {18, 100, 0, 0}, 3, "Current [Arms]", "0 10"},
        AxisRow{"temperatures in quarters of hundreds",
                change,
                {125, 20, -75, -80},
                48,
                "Temperature [°C]",
                "−75 −50 −25 0 25 50 75 100 125"},
        AxisRow{"few degrees", change, {27, 20, 23, -80}, 30, "Temperature [°C]", "23 24 25 26 27"},
        AxisRow{
            "quarters of tens",
            change,
            {60, 20, 10, -80},
            100,
            "Temperature [°C]",
            "10.0 12.5 15.0 17.5 20.0 22.5 25.0 27.5 30.0 32.5 35.0 37.5 40.0 42.5 45.0 47.5 50.0 52.5 55.0 "
            "57.5 60.0"},
        AxisRow{"a range that was drawn",
                rise,
                {3.333F, 100, 1.234F, 0},
                48,
                "Current [Arms]",
                "1.4 1.6 1.8 2.0 2.2 2.4 2.6 2.8 3.0 3.2"},
        AxisRow{"long labels",
                rise,
                {10000.2F, 100, 10000, 0},
                48,
                "Current [Arms]",
                "10000.00 10000.05 10000.10 10000.15 10000.20"},
        AxisRow{"two decades",
                riseOverFrequency,
                {1e6F, 80, 1e4F, 0},
                48,
                "Frequency [kHz]",
                "10 20 50 100 200 500 1000"},
        AxisRow{"two decades with little room",
                riseOverFrequency,
                {1e6F, 80, 1e4F, 0},
                20,
                "Frequency [kHz]",
                "10 100 1000"},
        AxisRow{"a decade with much room",
                riseOverFrequency,
                {2e5F, 80, 2e4F, 0},
                120,
                "Frequency [kHz]",
                "20 30 40 50 60 70 80 90 100 200"},
        AxisRow{"less than a decade",
                riseOverFrequency,
                {5e5F, 80, 1e5F, 0},
                48,
                "Frequency [kHz]",
                "100 200 300 400 500"},
        AxisRow{"hardly less than a decade",
                riseOverFrequency,
                {1.8e5F, 80, 2e4F, 0},
                48,
                "Frequency [kHz]",
                "20 50 100"},
        AxisRow{"one power of ten with little room",
                riseOverFrequency,
                {1.9e5F, 80, 1.5e4F, 0},
                14,
                "Frequency [kHz]",
                "30 100"},
        AxisRow{"a tenth of a decade",
                riseOverFrequency,
                {1.259e5F, 80, 1e5F, 0},
                48,
                "Frequency [kHz]",
                "100 105 110 115 120 125"},
        AxisRow{"no width", rise, {0, 0, 0, 0}, 48, "Current [Arms]", ""}),
    RowName<AxisRow>);

class FittedY : public testing::TestWithParam<AxisRow>
{
};

TEST_P(FittedY, HasItsLabels)
{
    const auto& row = GetParam();
    const auto axis = FitYAxis({row.Chart, row.Range}, row.Length * 16, PlainRuler(16));
    EXPECT_EQ(axis.Title, row.Title);
    EXPECT_EQ(LabelsOf(axis), row.Labels);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FittedY,
    testing::Values(
        AxisRow{"microfarads", capacitance, {25, 8e6F, 0, 1e6F}, 28, "Capacitance [µF]", "1 2 3 4 5 6 7 8"},
        AxisRow{"in a small window", capacitance, {25, 8e6F, 0, 0}, 14, "Capacitance [µF]", "0 2 4 6 8"},
        AxisRow{"nanofarads", capacitance, {25, 9e5F, 0, 0}, 14, "Capacitance [nF]", "0 200 400 600 800"},
        AxisRow{"fractions",
                capacitance,
                {25, 1.2e6F, 0, 1e6F},
                14,
                "Capacitance [µF]",
                "1.00 1.05 1.10 1.15 1.20"},
        AxisRow{"a falling capacitance",
                change,
                {125, 20, -75, -80},
                28,
                "Capacitance Change [%]",
                "−80 −70 −60 −50 −40 −30 −20 −10 0 10 20"},
        AxisRow{"a rise", rise, {18, 40, 0, 0}, 28.5, "Temperature Rise [°C]", "0 5 10 15 20 25 30 35 40"},
        AxisRow{"allowable currents",
                allowable,
                {1e6F, 10, 1e4F, 0.01F},
                28,
                "Current [Arms]",
                "0.01 0.02 0.05 0.1 0.2 0.5 1 2 5 10"},
        AxisRow{"small allowable currents",
                allowable,
                {1e6F, 0.1F, 1e4F, 0.001F},
                14,
                "Current [mArms]",
                "1 10 100"},
        AxisRow{"many decades",
                allowable,
                {1e6F, 100, 1e4F, 1e-8F},
                14,
                "Current [Arms]",
                "0.00000001 0.000001 0.0001 0.01 1 100"},
        AxisRow{"no height", allowable, {1e6F, 0, 1e4F, 0}, 14, "Current [Arms]", ""}),
    RowName<AxisRow>);

/// Grid lines as "at:grey".
std::vector<std::string> GridOf(const FittingAxis& axis)
{
    std::vector<std::string> lines;
    for (const auto& line : axis.Grid)
    {
        lines.push_back(std::to_string(std::lround(line.At)) + ':' + std::to_string(line.Color.Red));
    }
    return lines;
}

TEST(FittedGrid, DividesStepsWhereThereIsRoom)
{
    const ChartView view = {rise, {10, 40, 0, 0}};
    using testing::UnorderedElementsAre;
    EXPECT_THAT(GridOf(FitXAxis(view, 10 * 16, PlainRuler(16))),
                UnorderedElementsAre("0:178", "50:178", "100:178", "25:228", "75:228"));
    EXPECT_THAT(GridOf(FitXAxis(view, 16 * 16, PlainRuler(16))),
                UnorderedElementsAre("0:178", "50:178", "100:178", "10:228", "20:228", "30:228", "40:228",
                                     "60:228", "70:228", "80:228", "90:228"));
    EXPECT_THAT(GridOf(FitYAxis(view, 4 * 2.5 * 16, PlainRuler(16))),
                UnorderedElementsAre("0:178", "25:178", "50:178", "75:178", "100:178"));
}

TEST(FittedGrid, HasAllLinesOfDecades)
{
    const auto lines = GridOf(FitXAxis({riseOverFrequency, {1e6F, 80, 1e4F, 0}}, 48 * 16, PlainRuler(16)));
    EXPECT_EQ(lines.size(), 19U);
    EXPECT_THAT(lines, testing::IsSupersetOf({"0:120", "50:120", "100:120", "15:178", "35:178", "24:228"}));
}

TEST(FittedGrid, MarksADecadeWithinLessThanOne)
{
    const auto lines = GridOf(FitXAxis({riseOverFrequency, {2e5F, 80, 5e4F, 0}}, 48 * 16, PlainRuler(16)));
    EXPECT_THAT(lines, testing::Contains("50:120"));
}

// ---- Labels never touch ----

struct Stretch
{
    double From;
    double To;
};

void ExpectClear(const std::vector<Stretch>& labels, double gap, const std::string& what)
{
    for (std::size_t i = 1; i < labels.size(); ++i)
    {
        ASSERT_GE(labels[i].From - labels[i - 1].To, gap) << what;
    }
}

TEST(FittedLabels, StandClearInAnyRange)
{
    std::mt19937 random(TestSeed(7));
    std::uniform_real_distribution<double> share(0, 1);
    for (int i = 0; i < 4000; ++i)
    {
        const bool logarithmic = i % 2 == 0;
        const double size = 11 + 30 * share(random);
        const double length = size * (20 + 100 * share(random));
        AxisRange range{};
        if (logarithmic)
        {
            const double from = 4 + 1.8 * share(random);
            const double to = from + 0.1 + (6 - 0.1 - from) * share(random);
            range = {static_cast<float>(std::pow(10, to)), 80, static_cast<float>(std::pow(10, from)), 0};
        }
        else
        {
            const double span = std::pow(10, 4 * share(random) - 2);
            const double from = -75 + 100 * share(random);
            range = {static_cast<float>(from + span), 80, static_cast<float>(from), 0};
        }
        const PlainRuler ruler(size);
        const auto axis = FitXAxis({logarithmic ? riseOverFrequency : change, range}, length, ruler);
        std::vector<Stretch> labels;
        for (const auto& tick : axis.Ticks)
        {
            const double half = ruler.WidthOf(tick.Text) / 2;
            labels.push_back({tick.At / 100 * length - half, tick.At / 100 * length + half});
        }
        ASSERT_GE(labels.size(), 2U) << LabelsOf(axis);
        ExpectClear(labels, 0.9 * size, LabelsOf(axis));
    }
}

// ---- Text sizes and layout ----

TEST(FittingTextSize, GrowsInStepsWithTheWindow)
{
    EXPECT_EQ(FittingTextSize(600, 400), 11);
    EXPECT_EQ(FittingTextSize(900, 600), 13);
    EXPECT_EQ(FittingTextSize(1200, 800), 16);
    EXPECT_EQ(FittingTextSize(1920, 1080), 21);
    EXPECT_EQ(FittingTextSize(3840, 2160), 32);
    EXPECT_EQ(FittingTextSize(16384, 16384), 60);
    EXPECT_EQ(FittingTextSize(0, 0), 11);
    // A wide strip is read from as near as a low window.
    EXPECT_EQ(FittingTextSize(4000, 400), 11);
    EXPECT_EQ(FittingTextSize(1200, 800, 1.15), 18);
    EXPECT_EQ(FittingTextSize(1200, 800, 0.1), 11);
}

TEST(FittingLayout, KeepsEveryTextInTheRoom)
{
    for (const auto& [width, height] :
         {std::pair(600.0, 250.0), std::pair(1200.0, 560.0), std::pair(3840.0, 1500.0)})
    {
        for (const auto& view :
             {ChartView{rise, {18, 100, 0, 0}}, ChartView{allowable, {1e6F, 10, 1e4F, 1e-6F}},
              ChartView{change, {125, 20, -75, -80}}})
        {
            const PlainRuler ruler(FittingTextSize(width, height));
            const auto layout = LayOutFitting(view, width, height, ruler);
            const double perX = width / layout.Scale.ScaleWidth;
            const double perY = height / layout.Scale.ScaleHeight;
            for (const auto& [label, upwards] : layout.Axes.Texts)
            {
                const double left = (label.X - layout.Scale.ScaleLeft) * perX;
                const double top = (label.Y - layout.Scale.ScaleTop) * perY;
                const double length = ruler.WidthOf(label.Text);
                EXPECT_GE(left, 0) << label.Text;
                EXPECT_GE(upwards ? top - length / 2 : top, -1e-9) << label.Text;
                EXPECT_LE(left + (upwards ? ruler.LineHeight() : length), width + 1e-9) << label.Text;
                EXPECT_LE(top + (upwards ? length / 2 : ruler.LineHeight()), height + 1e-9) << label.Text;
            }
            EXPECT_GT(layout.Plot.Width, 0.75 * width);
            EXPECT_GT(layout.Plot.Height, 0.6 * height);
        }
    }
}

TEST(FittingLayout, ShortensATitleThatIsLongerThanTheChart)
{
    const auto layout = LayOutFitting({change, {125, 20, -75, -80}}, 600, 100, PlainRuler(16));
    EXPECT_TRUE(std::ranges::any_of(layout.Axes.Texts, [](const auto& text)
                                    { return text.Upwards && text.Label.Text == "[%]"; }));
}

TEST(FittingLayout, DrawsLightLinesFirst)
{
    const auto layout = LayOutFitting({riseOverFrequency, {1e6F, 80, 1e4F, 0}}, 1200, 600, PlainRuler(16));
    EXPECT_TRUE(std::ranges::is_sorted(layout.Axes.Lines, std::ranges::greater(),
                                       [](const auto& line) { return line.Grid.Color.Red; }));
}

} // namespace
