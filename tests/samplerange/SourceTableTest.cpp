/// Reading the source table.

#include "samplerange/SourceTable.h"

#include <gtest/gtest.h>

#include <stdexcept>

TEST(SourceTable, ReadsACaseSize)
{
    const auto sizes = ReadSizes("# remark\nEIA,JIS,...,,,,,,\n0805,2012,KTS,21,2.0,1.25,0.6 1.25,150,3\n");
    ASSERT_EQ(sizes.size(), 1U);
    EXPECT_EQ(sizes[0].Eia, "0805");
    EXPECT_EQ(sizes[0].Jis, "2012");
    EXPECT_EQ(sizes[0].Number, "21");
    EXPECT_EQ(sizes[0].WidthMm, 1.25);
    EXPECT_EQ(sizes[0].ThicknessesMm, (std::vector<double>{0.6, 1.25}));
    EXPECT_EQ(sizes[0].HeatResistance, 150);
}

TEST(SourceTable, ReadsAFamily)
{
    const auto families =
        ReadFamilies("columns,,,,,\n0402,X5R,6.3,470n,10u,power\n0603,X7R,50,220p,4.7n,all\n");
    ASSERT_EQ(families.size(), 2U);
    EXPECT_EQ(families[0].Characteristic, "X5R");
    EXPECT_EQ(families[0].Volts, 6.3);
    EXPECT_EQ(families[0].LowestPf, 470000);
    EXPECT_EQ(families[0].HighestPf, 10000000);
    EXPECT_EQ(families[0].Data, Measured::Power);
    EXPECT_EQ(families[1].LowestPf, 220);
    EXPECT_EQ(families[1].HighestPf, 4700);
    EXPECT_EQ(families[1].Data, Measured::All);
}

struct FaultyFamily
{
    const char* Name;
    const char* Row;
};

class FaultyFamilies : public testing::TestWithParam<FaultyFamily>
{
};

TEST_P(FaultyFamilies, AreRefused)
{
    EXPECT_NO_THROW(ReadFamilies("columns,,,,,\n0402,X5R,6.3,470n,10u,all"));
    EXPECT_THROW(ReadFamilies(std::string("columns,,,,,\n") + GetParam().Row), std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(SourceTable, FaultyFamilies,
                         testing::Values(FaultyFamily{"MissingField", "0402,X5R,6.3,470n,10u"},
                                         FaultyFamily{"VoltsNoNumber", "0402,X5R,6V3,470n,10u,all"},
                                         FaultyFamily{"UnitMissing", "0402,X5R,6.3,470,10u,all"},
                                         FaultyFamily{"UnknownData", "0402,X5R,6.3,470n,10u,some"}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(SourceTable, StepsThroughTheE6Values)
{
    EXPECT_EQ(E6Capacitances(680, 2200), (std::vector<std::int64_t>{680, 1000, 1500, 2200}));
    EXPECT_EQ(E6Capacitances(100, 100), (std::vector<std::int64_t>{100}));
    EXPECT_EQ(E6Capacitances(100, 100000000).size(), 37U);
}
