#include "chart/layout/ChartSheet.h"

#include "chart/layout/ChartDrawing.h"
#include "tests/chart/layout/RecordingSurface.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

struct DrawnBox
{
    Box Place;
    ::Color Color;
};

struct SheetText
{
    Box Place;
    std::string Text;
    ::Color Color;
};

/// A sheet that notes what is drawn. A character is 5 pixels wide.
class RecordingSheet : public SheetSurface
{
public:
    std::vector<DrawnBox> Fills;
    std::vector<DrawnBox> Frames;
    std::vector<SheetText> Texts;
    Box ChartPlace{};
    RecordingSurface ChartPart;

    void Fill(const Box& box, const Color& color) override { Fills.push_back({box, color}); }
    void Frame(const Box& box, const Color& color) override { Frames.push_back({box, color}); }
    void Text(const Box& box, std::string_view text, const Color& color) override
    {
        Texts.push_back({box, std::string(text), color});
    }
    double TextWidth(std::string_view text) const override { return 5.0 * static_cast<double>(text.size()); }
    ChartSurface& Chart(const Box& place, const UserScale&) override
    {
        ChartPlace = place;
        return ChartPart;
    }
};

} // namespace

static const ChartView capacitance = {.Chart = {2, "Temperature", "Capacitance"},
                                      .Range = {.XMax = 125, .YMax = 1000, .XMin = -55, .YMin = 0}};

static ChartRecord Line(const ChartKey& chart, float biasVolts)
{
    ChartRecord line;
    line.ChartType = chart.ChartType;
    line.XAxisName = chart.XAxisName;
    line.YAxisName = chart.YAxisName;
    line.DCBiasVoltage = biasVolts;
    return line;
}

/// The texts behind the six captions.
static std::vector<std::string> PaneTexts(const RecordingSheet& sheet)
{
    std::vector<std::string> texts;
    for (std::size_t i = 6; i < sheet.Texts.size(); ++i)
    {
        texts.push_back(sheet.Texts[i].Text);
    }
    return texts;
}

TEST(ChartSheet, HoldsTheChartAndSixPanesBesideIt)
{
    RecordingSheet sheet;
    DrawChartSheet(capacitance, {}, {}, sheet);
    EXPECT_EQ(sheet.Fills.at(0).Place.Width, 725);
    EXPECT_EQ(sheet.Fills.at(0).Place.Height, 248);
    EXPECT_EQ(sheet.ChartPart.UpwardsTexts.size(), 1U);
    ASSERT_EQ(sheet.Frames.size(), 6U);
    double above = 0;
    for (const auto& frame : sheet.Frames)
    {
        EXPECT_GT(frame.Place.Left, sheet.ChartPlace.Left + sheet.ChartPlace.Width);
        EXPECT_LT(frame.Place.Left + frame.Place.Width, sheetWidth);
        EXPECT_GT(frame.Place.Top, above);
        above = frame.Place.Top + frame.Place.Height;
    }
    EXPECT_LT(above, sheetHeight);
    EXPECT_THAT(PaneTexts(sheet), IsEmpty());
}

TEST(ChartSheet, NamesEachPaneInTheUpperEdgeOfItsFrame)
{
    RecordingSheet sheet;
    DrawChartSheet(capacitance, {}, {}, sheet);
    ASSERT_EQ(sheet.Texts.size(), 6U);
    for (std::size_t i = 0; i < 6; ++i)
    {
        const auto& caption = sheet.Texts[i];
        const auto& gap = sheet.Fills.at(i + 1);
        const auto edge = sheet.Frames[i].Place.Top;
        EXPECT_EQ(caption.Text, "No." + std::to_string(i + 1));
        EXPECT_EQ(caption.Color, GetPaneColor(static_cast<int>(i)));
        EXPECT_TRUE(caption.Place.Top < edge && edge < caption.Place.Top + caption.Place.Height);
        // The edge is open for four characters and two pixels on either side.
        EXPECT_EQ(gap.Place.Left, caption.Place.Left - 2);
        EXPECT_EQ(gap.Place.Width, 24);
        EXPECT_EQ(gap.Color, sheetColor);
    }
}

TEST(ChartSheet, TellsPartAndConditionsOfTheChartsOwnLines)
{
    const std::vector lines = {Line(capacitance.Chart, 5), Line({3, "DC Bias Voltage", "Capacitance"}, 0),
                               Line(capacitance.Chart, 12)};
    const std::vector<std::string> partNums = {"KTS21JB51E106MA01", "KTS31NB51E106MA01"};
    RecordingSheet sheet;
    DrawChartSheet(capacitance, lines, partNums, sheet);
    EXPECT_THAT(PaneTexts(sheet),
                ElementsAre("KTS21JB51E106MA01", "(5[V] )", "KTS31NB51E106MA01", "(12[V] )"));
    for (std::size_t i = 0; i < 4; ++i)
    {
        const auto& text = sheet.Texts[6 + i];
        const auto& frame = sheet.Frames[i / 2].Place;
        EXPECT_EQ(text.Color, GetPaneColor(static_cast<int>(i / 2)));
        EXPECT_TRUE(frame.Left < text.Place.Left &&
                    text.Place.Left + text.Place.Width < frame.Left + frame.Width);
        EXPECT_TRUE(frame.Top < text.Place.Top &&
                    text.Place.Top + text.Place.Height < frame.Top + frame.Height);
    }
    EXPECT_LT(sheet.Texts[6].Place.Left + sheet.Texts[6].Place.Width, sheet.Texts[7].Place.Left);
}
