/// What the user is told while nothing can be plotted.

#include "selection/PlotNeeds.h"
#include "tests/selection/Ranges.h"

#include <gmock/gmock.h>

#include <array>

namespace
{

/// P2 has no data for the charts of capacitance, P3 none for those of power.
PartTable Range()
{
    return MakeRange({
        {"P0a", {"0805", "2012"}, {"X7R", "R"}, 1000, 50},
        {"P1b", {"0402", "1005"}, {"X5R", "B"}, 2.5F, 16},
        {"P2c", {"0805", "2012"}, {"X7R", "R"}, 1000, 25, true, false},
        {"P3d", {"0805", "2012"}, {"X7R", "R"}, 100, 50, false, true},
    });
}

class PlotNeeds : public testing::Test
{
protected:
    PlotNeeds() { selection.AddPartNum(0, CodeView::Eia); }

    std::string Why(std::string_view typed, int form = 0) const
    {
        return WhyNoPart(range, selection, typed, form);
    }

    PartTable range = Range();
    PartSelection selection{range};
};

TEST_F(PlotNeeds, AsksForTheNextChoice)
{
    EXPECT_EQ(Why(""), "Plot needs a part: choose a Size Code, or a part number.");
    selection.FillTccList("0805");
    EXPECT_EQ(Why("  "), "Plot needs a part: choose a Temperature Char., or a part number.");
    selection.FillCapList("X7R");
    EXPECT_EQ(Why(""), "Plot needs a part: choose a Capacitance, or a part number.");
    selection.FillRatedVolList(1000);
    EXPECT_EQ(Why(""), "Plot needs a part: choose a Rated Voltage, or a part number.");
    selection.FillPartNumList(50);
    selection.LeavePart();
    EXPECT_EQ(Why(""), "Plot needs a part: choose a part number.");
}

TEST_F(PlotNeeds, NamesTheNumberInItsLetters)
{
    const std::string expected = "Capital and small letters differ in part numbers: enter P0a-0.";
    EXPECT_EQ(Why("p0a-0"), expected);
    EXPECT_EQ(Why("P0A-0"), expected);
    EXPECT_EQ(Why("p0a-0 "), expected);
}

TEST_F(PlotNeeds, TellsOfBlanks)
{
    const std::string expected = "A blank stands before or behind P0a-0: delete it.";
    EXPECT_EQ(Why("P0a-0 "), expected);
    EXPECT_EQ(Why(" P0a-0"), expected);
}

TEST_F(PlotNeeds, TellsWhichChoiceKeepsAPartOut)
{
    selection.FillTccList("0402");
    EXPECT_EQ(Why("P0a-0"),
              "P0a-0 is not in this list: its Size Code is 0805, and 0402 is chosen. Choose again, "
              "or File, Reset Selection.");
    selection.FillCapList("X5R");
    selection.FillRatedVolList(2.5F);
    EXPECT_THAT(Why("P1b-0"), testing::Not(testing::HasSubstr("is not in this list")));
    selection.AddPartNum(0, CodeView::Eia);
    selection.FillTccList("0805");
    selection.FillCapList("X7R");
    selection.FillRatedVolList(1000);
    selection.FillPartNumList(25);
    selection.LeavePart();
    EXPECT_EQ(Why("P0a-0"),
              "P0a-0 is not in this list: its Rated Voltage is 50, and 25 is chosen. Choose again, "
              "or File, Reset Selection.");
}

TEST_F(PlotNeeds, TellsOfAPartWithoutDataForTheChart)
{
    EXPECT_EQ(Why("P3d-0"),
              "P3d-0 has no data for this chart type: choose another chart type, or another part.");
    selection.AddPartNum(2, CodeView::Eia);
    EXPECT_EQ(Why("p2c-0"),
              "P2c-0 has no data for this chart type: choose another chart type, or another part.");
}

TEST_F(PlotNeeds, LeadsToTheViewOfANumber)
{
    EXPECT_EQ(Why("P0a-1"), "P0a-1 is a number of another view: choose View, JIS code.");
    EXPECT_EQ(Why("P0a-2"), "P0a-2 is a number of another view: choose View, Previous Part Number.");
    EXPECT_EQ(Why("P0a-3"),
              "P0a-3 is a number of another view: choose View, JIS code and Previous Part Number.");
    EXPECT_EQ(Why("P0a-0", 3),
              "P0a-0 is a number of another view: choose View, EIA code and Global Part Number.");
}

TEST_F(PlotNeeds, CountsNumbersThatBeginSo)
{
    EXPECT_EQ(Why("P"), "3 part numbers begin with \"P\": type on, or pick one.");
    EXPECT_EQ(Why("P0"), "1 part number begins with \"P0\": type on, or pick one.");
    EXPECT_EQ(Why("P3"), "No part number of this list begins with \"P3\": check it, or pick one.");
    EXPECT_EQ(Why("none"), "No part number of this list begins with \"none\": check it, or pick one.");
}

TEST_F(PlotNeeds, TellsWhyAListIsEmpty)
{
    EXPECT_EQ(WhyListIsEmpty(selection, 0), "");
    EXPECT_EQ(WhyListIsEmpty(selection, 1), "Temperature Char. is empty: choose a Size Code first.");
    EXPECT_EQ(WhyListIsEmpty(selection, 3), "Rated Voltage is empty: choose a Size Code first.");
    selection.FillTccList("0805");
    EXPECT_EQ(WhyListIsEmpty(selection, 1), "");
    EXPECT_EQ(WhyListIsEmpty(selection, 2), "Capacitance is empty: choose a Temperature Char. first.");
    selection.AllClear();
    EXPECT_EQ(WhyListIsEmpty(selection, 0), "Size Code is empty: no part has data for this chart type.");
}

TEST_F(PlotNeeds, NamesEmptyConditions)
{
    EXPECT_EQ(WhichConditionsAreEmpty({}), "");
    const std::array<Condition, 2> two = {Condition::DCBias, Condition::Frequency};
    EXPECT_EQ(WhichConditionsAreEmpty(two), "Plot still needs: DC Bias Voltage, Frequency.");
}

} // namespace
