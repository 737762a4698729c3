#include "calc/ChartStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>

namespace
{
using testing::ElementsAre;

ChartRecord LineOf(const ChartKey& chart, std::int32_t part)
{
    ChartRecord record;
    record.ChartType = chart.ChartType;
    record.XAxisName = chart.XAxisName;
    record.YAxisName = chart.YAxisName;
    record.PartDataIndex = part;
    record.ParameterName = "Voltage";
    record.YData[199] = static_cast<float>(part);
    record.ExtraValue = static_cast<float>(part);
    return record;
}

/// Plots a line: the record is written at `CurrentChart`, which then moves on.
void Plot(ChartStore& store, const ChartKey& chart, std::int32_t part)
{
    const Plotting plotting(store, LineOf(chart, part));
    store.Commit();
}

std::vector<std::int32_t> PartsOf(const ChartStore& store)
{
    std::vector<std::int32_t> parts;
    for (const auto& line : store.Lines())
    {
        parts.push_back(line.PartDataIndex);
    }
    return parts;
}

bool IsEmpty(const ChartRecord& record)
{
    return KeyOf(record) == ChartKey{} && record.PartDataIndex == 0 && record.ParameterName.empty() &&
           record.YData == CurveValues{} && record.ExtraValue == 0;
}

const ChartKey Rise = {0, "Frequency", "Current"};
const ChartKey Power = {1, "Frequency", "Current"};
const ChartKey Bias = {3, "DC Bias Voltage", "Capacitance"};

TEST(ChartStore, StartsWithOneEmptyRecord)
{
    const ChartStore store;
    ASSERT_EQ(store.ChartData().size(), 1U);
    EXPECT_TRUE(IsEmpty(store.ChartData()[0]));
    EXPECT_EQ(store.CurrentChart(), 0);
    EXPECT_TRUE(store.Lines().empty());
}

TEST(ChartStore, CountsLinesThatAgreeInTypeAndBothAxes)
{
    ChartStore store;
    Plot(store, Rise, 1);
    Plot(store, Power, 2);
    Plot(store, Rise, 3);
    EXPECT_EQ(store.CountSameCharts(Rise), 2);
    EXPECT_EQ(store.CountSameCharts(Power), 1);
    EXPECT_EQ(store.CountSameCharts({0, "Current", "Current"}), 0);
    EXPECT_EQ(store.CountSameCharts({0, "Frequency", "current"}), 0);
}

TEST(ChartStore, DoesNotCountTheWorkingRecord)
{
    ChartStore store;
    Plot(store, Rise, 1);
    ChartRecord working;
    working.XAxisName = Rise.XAxisName;
    working.YAxisName = Rise.YAxisName;
    store.Write(working);
    EXPECT_EQ(store.ChartData().size(), 2U);
    EXPECT_EQ(store.CurrentChart(), 1);
    EXPECT_EQ(store.CountSameCharts(Rise), 1);
    EXPECT_EQ(store.CountSameCharts({}), 0);
}

TEST(ChartStore, ClearsTheWorkingRecordAlone)
{
    ChartStore store;
    Plot(store, Rise, 1);
    ChartRecord working;
    working.PartDataIndex = 9;
    store.Write(working);
    store.ClearWorkingRecord();
    ASSERT_EQ(store.ChartData().size(), 2U);
    EXPECT_TRUE(IsEmpty(store.ChartData()[1]));
    EXPECT_THAT(PartsOf(store), ElementsAre(1));
}

TEST(ChartStore, CountsALineThatIsCommitted)
{
    ChartStore store;
    {
        const Plotting plotting(store, LineOf(Rise, 7));
        EXPECT_EQ(store.CurrentChart(), 0);
        EXPECT_EQ(store.WorkingRecord().PartDataIndex, 7);
        store.Commit();
    }
    EXPECT_EQ(store.CurrentChart(), 1);
    EXPECT_EQ(store.ChartData().size(), 1U);
    EXPECT_THAT(PartsOf(store), ElementsAre(7));
}

TEST(ChartStore, KeepsNoLineThatIsNotCommitted)
{
    ChartStore store;
    Plot(store, Rise, 1);
    {
        const Plotting plotting(store, LineOf(Power, 7));
        EXPECT_EQ(store.CountSameCharts(Power), 0);
    }
    EXPECT_THAT(PartsOf(store), ElementsAre(1));
    ASSERT_EQ(store.ChartData().size(), 2U);
    EXPECT_TRUE(IsEmpty(store.WorkingRecord()));
}

TEST(ChartStore, KeepsNoLineThatIsTakenBack)
{
    ChartStore store;
    Plot(store, Rise, 1);
    {
        const Plotting plotting(store, LineOf(Rise, 7));
        store.Commit();
        EXPECT_THAT(PartsOf(store), ElementsAre(1, 7));
        store.RollBack();
        EXPECT_THAT(PartsOf(store), ElementsAre(1));
        EXPECT_TRUE(IsEmpty(store.WorkingRecord()));
    }
    EXPECT_EQ(store.CurrentChart(), 1);
    ASSERT_EQ(store.ChartData().size(), 2U);
    EXPECT_TRUE(IsEmpty(store.WorkingRecord()));
}

TEST(ChartStore, KeepsNoLineWhoseCommandEndsInAnError)
{
    ChartStore store;
    EXPECT_THROW(
        {
            const Plotting plotting(store, LineOf(Rise, 7));
            throw std::bad_alloc();
        },
        std::bad_alloc);
    EXPECT_EQ(store.CurrentChart(), 0);
    ASSERT_EQ(store.ChartData().size(), 1U);
    EXPECT_TRUE(IsEmpty(store.WorkingRecord()));
}

TEST(ChartStore, TellsLinesApartByEveryCondition)
{
    ChartRecord line;
    line.XAxisName = "Current";
    line.ParameterName = "Current";
    const auto differs = [&line](auto change)
    {
        ChartRecord other = line;
        change(other);
        return !SameLine(line, other);
    };
    EXPECT_TRUE(SameLine(line, line));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.ChartType = 1; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.XAxisName = "Voltage"; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.YAxisName = "Voltage"; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.PartDataIndex = 1; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.DCBiasVoltage = 1; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.HeatResistance = 1; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.Frequency = 1; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.AmbientTemp = 1; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.ParameterName = "Voltage"; }));
    EXPECT_TRUE(differs([](ChartRecord& other) { other.ParameterValue = 1; }));
}

TEST(ChartStore, FindsLinesTheSameWhateverTheirCurve)
{
    ChartRecord line;
    ChartRecord computed = line;
    computed.YData[7] = 3;
    computed.XPos[7] = 3;
    computed.YMax = 3;
    EXPECT_TRUE(SameLine(line, computed));
}

TEST(ChartStore, KeepsTheOrderOfTheOtherLinesWhenAChartGoes)
{
    ChartStore store;
    Plot(store, Bias, 1);
    Plot(store, Rise, 2);
    Plot(store, Power, 3);
    Plot(store, Rise, 4);
    Plot(store, Bias, 5);
    EXPECT_EQ(store.RemoveChart(Rise), 2);
    EXPECT_EQ(store.CurrentChart(), 3);
    EXPECT_EQ(store.ChartData().size(), 3U);
    EXPECT_THAT(PartsOf(store), ElementsAre(1, 3, 5));
    EXPECT_EQ(KeyOf(store.ChartData()[1]), Power);
    EXPECT_EQ(store.ChartData()[2].ParameterName, "Voltage");
    EXPECT_EQ(store.ChartData()[2].YData[199], 5);
    EXPECT_EQ(store.ChartData()[2].ExtraValue, 5);
}

TEST(ChartStore, IsOneEmptyRecordAfterTheLastChart)
{
    ChartStore store;
    Plot(store, Rise, 1);
    Plot(store, Rise, 2);
    EXPECT_EQ(store.RemoveChart(Rise), 2);
    ASSERT_EQ(store.ChartData().size(), 1U);
    EXPECT_TRUE(IsEmpty(store.ChartData()[0]));
    EXPECT_EQ(store.CurrentChart(), 0);
}

TEST(ChartStore, StaysAsItIsWhenNoLineIsOfTheChart)
{
    ChartStore store;
    Plot(store, Rise, 1);
    EXPECT_EQ(store.RemoveChart(Power), 0);
    EXPECT_EQ(store.CurrentChart(), 1);
    EXPECT_THAT(PartsOf(store), ElementsAre(1));
}

TEST(ChartStore, LetsPlottedLinesBeChangedAndNoOther)
{
    ChartStore store;
    Plot(store, Rise, 1);
    Plot(store, Power, 2);
    store.ClearWorkingRecord();
    for (auto& line : store.LinesToPlace())
    {
        line.XPos[3] = 50;
    }
    EXPECT_EQ(store.ChartData()[0].XPos[3], 50);
    EXPECT_EQ(store.ChartData()[1].XPos[3], 50);
    EXPECT_EQ(store.ChartData()[2].XPos[3], 0);
}

TEST(ChartStore, DropsTheWorkingRecordWithoutCountingIt)
{
    ChartStore store;
    Plot(store, Rise, 1);
    Plot(store, Power, 2);
    ChartRecord working;
    working.XAxisName = Rise.XAxisName;
    working.YAxisName = Rise.YAxisName;
    store.Write(working);
    EXPECT_EQ(store.RemoveChart(Rise), 1);
    EXPECT_EQ(store.CurrentChart(), 1);
    EXPECT_EQ(store.ChartData().size(), 1U);
    EXPECT_THAT(PartsOf(store), ElementsAre(2));
}

TEST(Plot, IsRefusedForALineThatIsThereAndForASeventhOne)
{
    EXPECT_EQ(RefusalOfPlot(true, 0), std::nullopt);
    EXPECT_EQ(RefusalOfPlot(true, 5), std::nullopt);
    EXPECT_EQ(RefusalOfPlot(true, 6), "Maximum Numbers of this Chart Type open!");
    EXPECT_EQ(RefusalOfPlot(false, 1), "This Chart is already opened!");
    EXPECT_EQ(RefusalOfPlot(false, 6), "This Chart is already opened!");
}

} // namespace
