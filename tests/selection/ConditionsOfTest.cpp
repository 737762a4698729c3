/// What the boxes of the form take over from a plotted line.

#include "selection/ConditionsOf.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
using Entries = std::vector<std::string>;

ChartRecord LineOf(std::int16_t type, const std::string& x, const std::string& y)
{
    ChartRecord line;
    line.ChartType = type;
    line.XAxisName = x;
    line.YAxisName = y;
    line.DCBiasVoltage = 12;
    line.HeatResistance = 75;
    line.Frequency = 300;
    line.AmbientTemp = 22.5F;
    line.ParameterName = "Apparent Power";
    line.ParameterValue = 1.5F;
    return line;
}

/// A part whose own heat resistance is this.
PartRecord PartWith(float heatResistance)
{
    PartRecord part;
    part.Data[Value::HeatResistance] = heatResistance;
    return part;
}

Entries TextsOf(const std::vector<TakenCondition>& taken)
{
    Entries texts;
    for (const TakenCondition& condition : taken)
    {
        texts.push_back(condition.Text);
    }
    return texts;
}

struct Row
{
    const char* Name;
    std::int16_t Type;
    const char* X;
    float PartsOwn;
    Entries Texts;
};
} // namespace

TEST(ConditionsOf, ALineGivesWhatItWasComputedUnder)
{
    const std::vector<Row> rows = {
        {"rise over current", 0, "Current", 50, {"12 V", "75 \u00B0C/W", "300 kHz", "22.5 \u00B0C"}},
        {"rise over frequency", 0, "Frequency", 50, {"12 V", "75 \u00B0C/W", "22.5 \u00B0C", "1.5 VA"}},
        {"allowable power", 1, "Frequency", 50, {"12 V", "75 \u00B0C/W", "22.5 \u00B0C"}},
        {"over temperature", 2, "Temperature", 50, {"12 V"}},
        {"over DC bias", 3, "DC Bias Voltage", 50, {"22.5 \u00B0C"}},
        {"the part's own heat resistance stays with it",
         0,
         "Current",
         75,
         {"12 V", "300 kHz", "22.5 \u00B0C"}},
    };
    for (const Row& row : rows)
    {
        const auto taken = ConditionsOf(LineOf(row.Type, row.X, "any"), PartWith(row.PartsOwn), "\u00B0");
        EXPECT_EQ(TextsOf(taken), row.Texts) << row.Name;
    }
}

TEST(ConditionsOf, EntriesArePlainNumbersAndTheParameterNamesItsButton)
{
    const auto taken = ConditionsOf(LineOf(0, "Frequency", "Temperature Rise"), PartWith(75), "");
    ASSERT_EQ(taken.size(), 3U);
    EXPECT_EQ(taken[0].Entry, "12");
    EXPECT_EQ(taken[1].Entry, "22.5");
    EXPECT_EQ(taken[1].Text, "22.5 C");
    EXPECT_EQ(taken[2].Entry, "1.5");
    // Buttons: Current, Voltage, Effective Power, Apparent Power.
    EXPECT_EQ(taken[2].Parameter, 3U);
}

TEST(ConditionsOf, TheUserIsToldWhatWasTaken)
{
    const auto taken = ConditionsOf(LineOf(0, "Current", "Temperature Rise"), PartWith(75), "\u00B0");
    EXPECT_EQ(TakenText(2, taken), "Conditions of No.2 taken: 12 V, 300 kHz, 22.5 \u00B0C");
    EXPECT_EQ(TakenText(6, {}), "No condition of No.6 is needed here.");
}
