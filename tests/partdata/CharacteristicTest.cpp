#include "partdata/Characteristic.h"

#include <gtest/gtest.h>

namespace
{
struct CharacteristicRow
{
    const char* Eia;
    const char* Jis;
    CapacitanceModel Model;
    TemperatureRange EiaRange;
    TemperatureRange JisRange;
    float LeastChange;
    float MostChange;
};

// The permitted changes are those of the EIA code.
const CharacteristicRow rows[] = {
    {"X7R", "R", CapacitanceModel::Polynomial, {-55, 125}, {-55, 125}, -15, 15},
    {"X5R", "B", CapacitanceModel::Polynomial, {-55, 85}, {-25, 85}, -15, 15},
    {"Y5V", "F", CapacitanceModel::Peaked, {-30, 85}, {-25, 85}, -82, 22},
};

TEST(Characteristic, IsFoundByItsEiaName)
{
    for (const auto& row : rows)
    {
        const auto* const found = FindCharacteristic(row.Eia);
        ASSERT_NE(found, nullptr) << row.Eia;
        EXPECT_EQ(found->Names[0], row.Eia);
        EXPECT_EQ(found->Names[1], row.Jis);
        EXPECT_EQ(found->Model, row.Model) << row.Eia;
        EXPECT_EQ(found->RangeIn(CodeView::Eia), row.EiaRange) << row.Eia;
        EXPECT_EQ(found->RangeIn(CodeView::Jis), row.JisRange) << row.Eia;
        EXPECT_EQ(found->LeastChange, row.LeastChange) << row.Eia;
        EXPECT_EQ(found->MostChange, row.MostChange) << row.Eia;
    }
    EXPECT_EQ(Characteristics().size(), std::size(rows));
}

TEST(Characteristic, IsNotFoundByAnythingElse)
{
    for (const auto* const name : {"", "R", "x7r", "X7R ", "X7", "C0G"})
    {
        EXPECT_EQ(FindCharacteristic(name), nullptr) << name;
    }
}

TEST(Characteristic, HasAnAxisAroundItsRange)
{
    for (const auto& characteristic : Characteristics())
    {
        for (std::size_t view = 0; view < CodeForms; ++view)
        {
            EXPECT_LE(characteristic.AxisRange[view].MinC, characteristic.Range[view].MinC);
            EXPECT_GE(characteristic.AxisRange[view].MaxC, characteristic.Range[view].MaxC);
        }
    }
}

TEST(CapacitanceModelOfPart, IsNoneForACharacteristicThatIsNotListed)
{
    PartRecord part;
    part.Tcc[0] = "C0G";
    EXPECT_EQ(CapacitanceModelOf(part), CapacitanceModel::None);
    part.PartNum[0] = "KTU155F51H222ZA01";
    EXPECT_EQ(CapacitanceModelOf(part), CapacitanceModel::Polynomial);
}
} // namespace
