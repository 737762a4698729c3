#include "selection/PartSelection.h"
#include "tests/selection/Ranges.h"

#include <gmock/gmock.h>

#include <limits>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// Seven parts; table order is no natural order.
PartTable Range()
{
    return MakeRange({
        {"P0", {"0805", "2012"}, {"X7R", "R"}, 1000, 50},
        {"P1", {"0402", "1005"}, {"X7R", "R"}, 100, 16},
        {"P2", {"0805", "2012"}, {"X5R", "B"}, 1000, 25},
        {"P3", {"0805", "2012"}, {"X7R", "R"}, 100, 50},
        {"P4", {"0805", "2012"}, {"X7R", "R"}, 1000, 16},
        {"P5", {"0805", "2012"}, {"X7R", "R"}, 1000, 50},
        {"P6", {"1206", "3216"}, {"Y5V", "F"}, 0.5F, 6.3F, false, true},
    });
}

class Cascade : public testing::Test
{
protected:
    PartTable range = Range();
    PartSelection selection{range};
};

TEST_F(Cascade, OffersNothingBeforeAChartTypeIsChosen)
{
    selection.FillTccList("0805");
    EXPECT_THAT(selection.SizeCodes(), IsEmpty());
    EXPECT_THAT(selection.Tccs(), IsEmpty());
    EXPECT_THAT(selection.PartNums(), IsEmpty());
    selection.FillCapList("X7R");
    selection.FillRatedVolList(1000);
    selection.FillPartNumList(50);
    EXPECT_THAT(selection.Capacitances(), IsEmpty());
    EXPECT_THAT(selection.RatedVoltages(), IsEmpty());
    EXPECT_THAT(selection.PartNums(), IsEmpty());
}

TEST_F(Cascade, OffersNothingForAnUnknownChartType)
{
    for (const std::int16_t type : std::initializer_list<std::int16_t>{-1, 5, 100})
    {
        selection.AddPartNum(type, CodeView::Eia);
        EXPECT_THAT(selection.SizeCodes(), IsEmpty()) << type;
        EXPECT_THAT(selection.PartNums(), IsEmpty()) << type;
    }
}

TEST_F(Cascade, ListsSizesAndPartsInTableOrder)
{
    selection.AddPartNum(2, CodeView::Eia);
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("0805", "0402", "1206"));
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 1, 2, 3, 4, 5, 6));
    EXPECT_THAT(selection.Tccs(), IsEmpty());
}

TEST_F(Cascade, LeavesOutPartsWithoutDataForTheChartType)
{
    selection.AddPartNum(0, CodeView::Eia);
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("0805", "0402"));
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST_F(Cascade, NamesSizesAndCharacteristicsInJisCode)
{
    selection.AddPartNum(3, CodeView::Jis);
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("2012", "1005", "3216"));
    selection.FillTccList("2012");
    EXPECT_THAT(selection.Tccs(), ElementsAre("R", "B"));
}

TEST_F(Cascade, NarrowsDownLevelByLevel)
{
    selection.AddPartNum(1, CodeView::Eia);
    selection.FillTccList("0805");
    EXPECT_THAT(selection.Tccs(), ElementsAre("X7R", "X5R"));
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 2, 3, 4, 5));
    selection.FillCapList("X7R");
    EXPECT_THAT(selection.Capacitances(), ElementsAre(1000, 100));
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 3, 4, 5));
    selection.FillRatedVolList(1000);
    EXPECT_THAT(selection.RatedVoltages(), ElementsAre(50, 16));
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 4, 5));
    selection.FillPartNumList(50);
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 5));
    EXPECT_THAT(selection.RatedVoltages(), ElementsAre(50, 16));
}

TEST_F(Cascade, ComparesTheListedCapacitanceNotTheNominalOne)
{
    for (auto& part : range.PartData)
    {
        part.Data[Value::NominalCapacitance] = 7;
    }
    selection.AddPartNum(0, CodeView::Eia);
    selection.FillTccList("0805");
    selection.FillCapList("X7R");
    selection.FillRatedVolList(1000);
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 4, 5));
    selection.ShowPart(3);
    EXPECT_THAT(selection.Capacitances(), ElementsAre(100));
}

TEST_F(Cascade, EmptiesEveryLevelBelowAChoice)
{
    selection.AddPartNum(0, CodeView::Eia);
    selection.FillTccList("0805");
    selection.FillCapList("X7R");
    selection.FillRatedVolList(1000);
    selection.FillPartNumList(16);
    selection.FillRatedVolList(100);
    EXPECT_THAT(selection.RatedVoltages(), ElementsAre(50));
    EXPECT_EQ(selection.Choice().RatedVoltage, std::nullopt);
    selection.FillCapList("X5R");
    EXPECT_THAT(selection.RatedVoltages(), IsEmpty());
    EXPECT_THAT(selection.Capacitances(), ElementsAre(1000));
    selection.FillTccList("0402");
    EXPECT_THAT(selection.Capacitances(), IsEmpty());
    EXPECT_THAT(selection.Tccs(), ElementsAre("X7R"));
    EXPECT_THAT(selection.PartNums(), ElementsAre(1));
}

TEST_F(Cascade, ShowsAPartChosenByNumberAloneInTheLowerLists)
{
    selection.AddPartNum(0, CodeView::Eia);
    selection.ShowPart(4);
    EXPECT_EQ(selection.Choice().SizeCode, "0805");
    EXPECT_THAT(selection.Tccs(), ElementsAre("X7R"));
    EXPECT_THAT(selection.Capacitances(), ElementsAre(1000));
    EXPECT_THAT(selection.RatedVoltages(), ElementsAre(16));
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("0805", "0402"));
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST_F(Cascade, OfAPartChosenByNumberGoesOnFromAnyLevel)
{
    selection.AddPartNum(0, CodeView::Eia);
    selection.ShowPart(4);
    selection.FillCapList("X7R");
    EXPECT_THAT(selection.Tccs(), ElementsAre("X7R"));
    EXPECT_THAT(selection.Capacitances(), ElementsAre(1000, 100));
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 3, 4, 5));
}

TEST_F(Cascade, ForgetsEverythingWhenCleared)
{
    selection.AddPartNum(0, CodeView::Eia);
    selection.ShowPart(4);
    selection.AllClear();
    EXPECT_THAT(selection.SizeCodes(), IsEmpty());
    EXPECT_THAT(selection.Tccs(), IsEmpty());
    EXPECT_THAT(selection.Capacitances(), IsEmpty());
    EXPECT_THAT(selection.RatedVoltages(), IsEmpty());
    EXPECT_THAT(selection.PartNums(), IsEmpty());
    EXPECT_EQ(selection.Choice().SizeCode, std::nullopt);
    selection.FillTccList("0805");
    EXPECT_THAT(selection.Tccs(), IsEmpty());
    EXPECT_THAT(selection.PartNums(), IsEmpty());
}

TEST_F(Cascade, KeepsOrderAndChoiceWhenTheNamingChanges)
{
    selection.AddPartNum(0, CodeView::Eia);
    selection.FillTccList("0805");
    selection.FillCapList("X5R");
    selection.ChangeNaming(CodeView::Jis);
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("2012", "1005"));
    EXPECT_THAT(selection.Tccs(), ElementsAre("R", "B"));
    EXPECT_THAT(selection.Capacitances(), ElementsAre(1000));
    EXPECT_THAT(selection.PartNums(), ElementsAre(2));
    EXPECT_EQ(selection.Choice().SizeCode, "2012");
    EXPECT_EQ(selection.Choice().Tcc, "B");
}

TEST_F(Cascade, HasAPartOnceAllFourAreChosen)
{
    EXPECT_FALSE(selection.IsPartChosen());
    selection.AddPartNum(2, CodeView::Eia);
    selection.FillTccList("0805");
    selection.FillCapList("X7R");
    selection.FillRatedVolList(100);
    // One rated voltage is left, but it is for the user to choose.
    EXPECT_THAT(selection.RatedVoltages(), ElementsAre(50));
    EXPECT_FALSE(selection.IsPartChosen());
    selection.FillPartNumList(50);
    EXPECT_TRUE(selection.IsPartChosen());
    selection.ChangeNaming(CodeView::Jis);
    EXPECT_TRUE(selection.IsPartChosen());
    selection.FillRatedVolList(1000);
    EXPECT_FALSE(selection.IsPartChosen());
}

TEST_F(Cascade, HasNoPartWhereNoneIsLeft)
{
    selection.AddPartNum(2, CodeView::Eia);
    selection.FillPartNumList(1000);
    EXPECT_THAT(selection.PartNums(), IsEmpty());
    EXPECT_FALSE(selection.IsPartChosen());
}

TEST_F(Cascade, HasThePartChosenByNumberUntilItIsLeft)
{
    selection.AddPartNum(2, CodeView::Eia);
    selection.ShowPart(3);
    EXPECT_TRUE(selection.IsPartChosen());
    selection.LeavePart();
    EXPECT_FALSE(selection.IsPartChosen());
    // What was chosen stays to be seen, under the part's own names.
    selection.ChangeNaming(CodeView::Jis);
    EXPECT_EQ(selection.Choice().SizeCode, "2012");
    EXPECT_EQ(selection.Choice().Capacitance, 100);
    EXPECT_FALSE(selection.IsPartChosen());
    selection.ShowPart(3);
    selection.AddPartNum(2, CodeView::Jis);
    EXPECT_FALSE(selection.IsPartChosen());
}

TEST(Sizes, OfOneJisNameStandOnceAndComeBackAsBefore)
{
    const auto range = MakeRange({{"P0", {"A1", "J"}, {"X7R", "R"}, 1, 16},
                                  {"P1", {"A2", "J"}, {"X5R", "B"}, 1, 16},
                                  {"P2", {"A3", "K"}, {"X7R", "R"}, 1, 16}});
    PartSelection selection(range);
    selection.AddPartNum(0, CodeView::Eia);
    selection.ChangeNaming(CodeView::Jis);
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("J", "K"));
    selection.ChangeNaming(CodeView::Eia);
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("A1", "A2", "A3"));
}

TEST(Sizes, WithoutANameAreNotListed)
{
    const auto range =
        MakeRange({{"P0", {"", "J"}, {"X7R", "R"}, 1, 16}, {"P1", {"A", "K"}, {"", "B"}, 1, 16}});
    PartSelection selection(range);
    selection.AddPartNum(0, CodeView::Eia);
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("A"));
    EXPECT_THAT(selection.PartNums(), ElementsAre(0, 1));
    selection.FillTccList("A");
    EXPECT_THAT(selection.Tccs(), IsEmpty());
}

/// EIA A2 and A1 are both J; a choice of J in JIS code reads A1 in EIA code, whose parts are others.
TEST(CompletePart, IsNamedAfterItsOwnRecordWhenTheNamingChanges)
{
    const auto range =
        MakeRange({{"P0", {"A1", "J"}, {"X7R", "R"}, 1, 16}, {"P1", {"A2", "J"}, {"X7R", "R"}, 2, 16}});
    PartSelection selection(range);
    selection.AddPartNum(0, CodeView::Jis);
    selection.FillTccList("J");
    selection.FillCapList("R");
    selection.FillRatedVolList(2);
    selection.FillPartNumList(16);
    selection.ChangeNaming(CodeView::Eia);
    EXPECT_EQ(selection.Choice().SizeCode, "A2");
    EXPECT_THAT(selection.PartNums(), ElementsAre(1));
    EXPECT_THAT(selection.Capacitances(), ElementsAre(2));
}

TEST(Parts, WithoutAFiniteCapacitanceOrRatedVoltageAreNotListed)
{
    constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();
    constexpr float Infinite = std::numeric_limits<float>::infinity();
    const auto range = MakeRange({{"P0", {"A", "J"}, {"X7R", "R"}, NoNumber, 16},
                                  {"P1", {"B", "K"}, {"X7R", "R"}, 1, Infinite},
                                  {"P2", {"C", "L"}, {"X7R", "R"}, 1, 16}});
    PartSelection selection(range);
    selection.AddPartNum(2, CodeView::Eia);
    EXPECT_THAT(selection.SizeCodes(), ElementsAre("C"));
    EXPECT_THAT(selection.PartNums(), ElementsAre(2));
}

TEST(EmptyRange, OffersNothing)
{
    const PartTable range;
    PartSelection selection(range);
    selection.AddPartNum(0, CodeView::Eia);
    EXPECT_THAT(selection.SizeCodes(), IsEmpty());
    EXPECT_THAT(selection.PartNums(), IsEmpty());
}

} // namespace
