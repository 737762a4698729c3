#include "tests/chart/layout/RecordingSurface.h"

#include "chart/layout/Colors.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>

static const ChartKey riseOverCurrent = {0, "Current", "Temperature Rise"};
static const ChartKey riseOverFrequency = {0, "Frequency", "Temperature Rise"};
static const ChartKey allowableCurrent = {1, "Frequency", "Current"};
static const ChartKey changeOverTemperature = {2, "Temperature", "Capacitance Change"};

static RecordingSurface AxesOf(const ChartView& view, SurfaceKind kind = SurfaceKind::Screen)
{
    RecordingSurface surface(kind);
    DrawAxes(view, surface);
    return surface;
}

static std::optional<DrawnText> Find(const RecordingSurface& surface, const std::string& text)
{
    const auto found = std::ranges::find(surface.Texts, text, &DrawnText::Text);
    return found == surface.Texts.end() ? std::nullopt : std::optional(*found);
}

static void ExpectTextAt(const RecordingSurface& surface, const std::string& text, double x, double y)
{
    const auto drawn = Find(surface, text);
    ASSERT_TRUE(drawn) << text;
    EXPECT_NEAR(drawn->X, x, 1e-9) << text;
    EXPECT_NEAR(drawn->Y, y, 1e-9) << text;
}

/// Texts below the X axis (top at -0.5) or left of the Y axis, in drawing order.
static std::vector<std::string> XLabelTexts(const RecordingSurface& surface)
{
    std::vector<std::string> texts;
    for (const auto& text : surface.Texts)
    {
        if (text.Y == -0.5)
        {
            texts.push_back(text.Text);
        }
    }
    return texts;
}

static std::vector<std::string> YLabelTexts(const RecordingSurface& surface)
{
    std::vector<std::string> texts;
    for (const auto& text : surface.Texts)
    {
        if (text.Y > 0 && text.X < 0)
        {
            texts.push_back(text.Text);
        }
    }
    return texts;
}

static std::size_t CountLines(const RecordingSurface& surface, bool upright, const Color& color)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        surface.Lines, [&](const DrawnLine& line)
        { return (upright ? line.X1 == line.X2 : line.Y1 == line.Y2) && line.Color == color; }));
}

TEST(LinearAxes, HaveFiveByTenDarkGreyDivisionsForRiseOverCurrent)
{
    const auto surface = AxesOf({riseOverCurrent, {4, 80, 0, 0}});
    EXPECT_EQ(CountLines(surface, true, (Color{64, 64, 64})), 6U);
    EXPECT_EQ(CountLines(surface, false, (Color{64, 64, 64})), 11U);
    const auto& line = surface.Lines[1];
    EXPECT_EQ(line.X1, 20);
    EXPECT_EQ(line.Y1, 0);
    EXPECT_EQ(line.X2, 20);
    EXPECT_EQ(line.Y2, 100);
    EXPECT_THAT(XLabelTexts(surface), testing::ElementsAre("0", "0.8", "1.6", "2.4", "3.2", "4"));
    EXPECT_EQ(YLabelTexts(surface).size(), 11U);
}

TEST(LinearAxes, PutXLabelsFourUnitsLeftOfTheirLineAndTheFirstTwo)
{
    const auto surface = AxesOf({riseOverCurrent, {4, 80, 0, 0}});
    ExpectTextAt(surface, "0.8", 16, -0.5);
    ExpectTextAt(surface, "4", 96, -0.5);
    ExpectTextAt(surface, "0", -2, -0.5);
}

TEST(LinearAxes, PutExponentLabelsFourUnitsFurtherLeft)
{
    const auto surface = AxesOf({riseOverCurrent, {50000, 80, 0, 0}});
    ExpectTextAt(surface, "0", -2, -0.5);
    ExpectTextAt(surface, "1.00E+4", 12, -0.5);
    // At 92 it would end at 106; the surface ends at 105.
    ExpectTextAt(surface, "5.00E+4", 91, -0.5);
}

TEST(LinearAxes, RaiseTheLowestYLabelAboveAFirstXLabelThatReachesIt)
{
    const auto surface = AxesOf({changeOverTemperature, {87.5F, 20, -12.5F, -30}, true});
    ExpectTextAt(surface, "-1.25E+1", -6, -0.5);
    ExpectTextAt(surface, "-30", -8.8, 5.5);
    ExpectTextAt(surface, "-20", -8.8, 23);
}

TEST(LinearAxes, AlignYLabelsRightCentredOnTheirLine)
{
    const auto surface = AxesOf({riseOverCurrent, {4, 80, 0, 0}});
    ExpectTextAt(surface, "8", -4.8, 13);
    ExpectTextAt(surface, "80", -6.8, 103);
}

TEST(LinearAxes, KeepWideYLabelsClearOfTheTitle)
{
    // The title takes -21 to -17, half a unit stays free, and fourteen units end at -2.5.
    const auto surface = AxesOf({{2, "Temperature", "Capacitance"}, {125, 1.2e7F, -75, 0}});
    ExpectTextAt(surface, "1.20E+7", -16.5, 103);
    ExpectTextAt(surface, "9.60E+6", -16.5, 83);
}

TEST(LinearAxes, LeaveOutXLabelsThatWouldTouch)
{
    const auto surface = AxesOf({changeOverTemperature, {150, 10, -55, -10}});
    EXPECT_EQ(CountLines(surface, true, (Color{64, 64, 64})), 9U);
    EXPECT_THAT(XLabelTexts(surface), testing::ElementsAre("-55", "-3.75E+0", "47.5", "9.88E+1", "150"));
}

TEST(LinearAxes, LabelEverySecondYLineWhenTheyAreCloserThanALabelIsHigh)
{
    // 20 lines apart by 5 units, labels 6 units high.
    const auto surface = AxesOf({changeOverTemperature, {125, 100, -75, -100}});
    EXPECT_EQ(CountLines(surface, false, (Color{64, 64, 64})), 21U);
    EXPECT_THAT(YLabelTexts(surface),
                testing::ElementsAre("-100", "-80", "-60", "-40", "-20", "0", "20", "40", "60", "80", "100"));
}

TEST(LinearAxes, LabelEveryThirdYLineWhenTheyAreCloserStill)
{
    // 42 lines apart by 2.38 units.
    const auto surface = AxesOf({changeOverTemperature, {125, 320, -75, -100}});
    const auto texts = YLabelTexts(surface);
    EXPECT_EQ(texts.size(), 15U);
    EXPECT_EQ(texts[1], "-70");
}

TEST(LinearAxes, HaveFiveDivisionsForAUsersRange)
{
    const auto surface = AxesOf({changeOverTemperature, {125, 20, -75, -80}, true});
    EXPECT_EQ(CountLines(surface, true, (Color{64, 64, 64})), 6U);
    EXPECT_EQ(CountLines(surface, false, (Color{64, 64, 64})), 6U);
}

TEST(LogAxes, AreGreyWithBlackDecadesInBothDirections)
{
    const auto surface = AxesOf({allowableCurrent, {1e6F, 10, 1e4F, 0.01F}});
    EXPECT_EQ(CountLines(surface, true, (Color{128, 128, 128})), 16U);
    EXPECT_EQ(CountLines(surface, false, (Color{128, 128, 128})), 24U);
    // Two and three decade lines, and two sides of the frame each.
    EXPECT_EQ(CountLines(surface, true, (Color{0, 0, 0})), 4U);
    EXPECT_EQ(CountLines(surface, false, (Color{0, 0, 0})), 5U);
    EXPECT_THAT(XLabelTexts(surface), testing::ElementsAre("10", "100", "1000"));
    EXPECT_THAT(YLabelTexts(surface), testing::ElementsAre("0.01", "0.1", "1", "10"));
}

TEST(LogAxes, CentreXLabelsOnTheirDecadeAndShowKiloHertz)
{
    const auto surface = AxesOf({riseOverFrequency, {1e6F, 80, 1e4F, 0}});
    ExpectTextAt(surface, "10", -2, -0.5);
    ExpectTextAt(surface, "100", 47, -0.5);
    ExpectTextAt(surface, "1000", 96, -0.5);
    EXPECT_EQ(YLabelTexts(surface).size(), 9U);
}

TEST(LogAxes, LetARangeEndGiveWayToADecadeBesideIt)
{
    const auto surface = AxesOf({riseOverFrequency, {5e5F, 80, 9.5e4F, 0}, true});
    EXPECT_THAT(XLabelTexts(surface), testing::ElementsAre("100", "500"));
}

TEST(LinearAxes, CondenseYLabelsThatAreTooWide)
{
    // Ten characters are 20 units wide; the title takes 4 of the 21 units at the left.
    const auto surface = AxesOf({{3, "DC Bias Voltage", "Capacitance"}, {6, 1234567, 0, 0}, true});
    const auto label = Find(surface, "1.23457E+6");
    ASSERT_TRUE(label);
    EXPECT_LT(label->Across, 1);
    EXPECT_GE(label->X, -21 + 4 + 0.5 - 1e-9);
    EXPECT_LE(label->X + 20 * label->Across, -0.5 + 1e-9);
    EXPECT_EQ(Find(surface, "2.46913E+5")->Across, label->Across);
}

TEST(Axes, LabelNoNeighboursAlike)
{
    // Beyond six digits these cannot be told apart.
    const auto linear = AxesOf({{3, "DC Bias Voltage", "Capacitance"}, {6, 1000005, 0, 1000000}, true});
    EXPECT_THAT(YLabelTexts(linear), testing::ElementsAre("1.00000E+6", "1.00001E+6"));
    const auto logarithmic = AxesOf({riseOverFrequency, {300000.1F, 80, 300000, 0}, true});
    EXPECT_THAT(XLabelTexts(logarithmic), testing::ElementsAre("300"));
}

TEST(Axes, OutlineThePlotAreaAfterTheGrid)
{
    const auto surface = AxesOf({riseOverCurrent, {4, 80, 0, 0}});
    ASSERT_EQ(surface.Lines.size(), 6U + 11U + 4U);
    double lowest = 100;
    double highest = 0;
    for (auto line = surface.Lines.end() - 4; line != surface.Lines.end(); ++line)
    {
        EXPECT_EQ(line->Color, (Color{0, 0, 0}));
        EXPECT_TRUE(line->X1 == line->X2 || line->Y1 == line->Y2);
        lowest = std::min({lowest, line->X1, line->Y1, line->X2, line->Y2});
        highest = std::max({highest, line->X1, line->Y1, line->X2, line->Y2});
    }
    EXPECT_EQ(lowest, 0);
    EXPECT_EQ(highest, 100);
    EXPECT_EQ(CountLines(surface, true, (Color{0, 0, 0})), 2U);
    EXPECT_EQ(CountLines(surface, false, (Color{0, 0, 0})), 2U);
}

TEST(Axes, BearTitlesAndTheNoteOfTemperatureRise)
{
    const auto surface = AxesOf({riseOverCurrent, {4, 80, 0, 0}});
    ExpectTextAt(surface, "Current [Arms]", 35, -7);
    ExpectTextAt(surface, "-Recommendation of temp. Rise is within 20[°C]-", 10, 107.3);
    ASSERT_EQ(surface.UpwardsTexts.size(), 1U);
    EXPECT_EQ(surface.UpwardsTexts[0].Text, "Temperature Rise [°C]");
    EXPECT_EQ(surface.UpwardsTexts[0].X, -21);
    EXPECT_EQ(surface.UpwardsTexts[0].Y, 50);
}

TEST(Axes, DoWithoutADegreeSign)
{
    const auto surface = AxesOf({riseOverCurrent, {4, 80, 0, 0}, false, ""});
    EXPECT_TRUE(Find(surface, "-Recommendation of temp. Rise is within 20[C]-"));
    EXPECT_EQ(surface.UpwardsTexts.at(0).Text, "Temperature Rise [C]");
}

TEST(Axes, BearTheNoteOnlyForTemperatureRise)
{
    for (const auto& chart : {allowableCurrent, changeOverTemperature})
    {
        const auto surface = AxesOf({chart, {100, 80, 1, 1}});
        EXPECT_TRUE(std::ranges::none_of(surface.Texts, [](const DrawnText& text)
                                         { return text.Text.find("Recommendation") != std::string::npos; }));
    }
}

TEST(Axes, ShowOnlyTheUnitOfYOnAPrinterPage)
{
    for (const auto kind : {SurfaceKind::ColorPrinter, SurfaceKind::MonochromePrinter})
    {
        const auto surface = AxesOf({allowableCurrent, {1e6F, 10, 1e4F, 0.01F}}, kind);
        EXPECT_TRUE(surface.UpwardsTexts.empty());
        ExpectTextAt(surface, "[Arms]", 0, 107.5);
        ExpectTextAt(surface, "Frequency [kHz]", 35, -7);
    }
}

TEST(Axes, OfNoWidthHaveFrameAndTitlesOnly)
{
    for (const auto& chart : {riseOverCurrent, riseOverFrequency, allowableCurrent, changeOverTemperature})
    {
        const auto surface = AxesOf({chart, {3, 50, 3, 50}, true});
        EXPECT_EQ(surface.Lines.size(), 4U);
        EXPECT_EQ(surface.UpwardsTexts.size(), 1U);
        EXPECT_EQ(surface.Texts.size(), chart.ChartType == 0 ? 2U : 1U);
    }
}
