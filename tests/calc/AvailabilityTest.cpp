#include "calc/ChartKinds.h"
#include "partdata/SpecialParts.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
PartRecord PartWith(std::size_t index, float value)
{
    PartRecord part;
    part.Data[0] = 1000;
    part.Data[1] = 10;
    part.Data[2] = 50;
    part.Data[index] = value;
    return part;
}

TEST(Availability, NeedsPowerDataForTheFirstTwoChartTypesAndTheLoss)
{
    for (std::size_t i = 3; i < DataValues; ++i)
    {
        const auto part = PartWith(i, -0.5F);
        EXPECT_EQ(IsAvailable(part, 0), i >= 28) << i;
        EXPECT_EQ(IsAvailable(part, 1), i >= 28) << i;
        EXPECT_EQ(IsAvailable(part, 4), i >= 28) << i;
    }
}

TEST(Availability, NeedsCapacitanceDataForTheTwoOfCapacitance)
{
    for (std::size_t i = 3; i < DataValues; ++i)
    {
        const auto part = PartWith(i, 0.5F);
        EXPECT_EQ(IsAvailable(part, 2), i <= 27) << i;
        EXPECT_EQ(IsAvailable(part, 3), i <= 27) << i;
    }
}

TEST(Availability, IsMissingForAPartWithoutData)
{
    for (int chartType = 0; chartType < 5; ++chartType)
    {
        EXPECT_FALSE(IsAvailable(PartRecord{}, chartType));
        EXPECT_FALSE(IsAvailable(PartWith(28, -0.0F), chartType));
    }
}

TEST(Availability, IsMissingOutsideTheChartTypes)
{
    PartRecord part;
    part.Data.fill(1);
    EXPECT_TRUE(IsAvailable(part, 0));
    EXPECT_FALSE(IsAvailable(part, -1));
    EXPECT_FALSE(IsAvailable(part, 5));
}

TEST(Availability, IsMissingWhereAListTextWouldNotBeANumber)
{
    for (const float value : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN()})
    {
        PartRecord part;
        part.Data.fill(1);
        part.Data[1] = value;
        EXPECT_TRUE(IsAvailable(part, 0));
        part.Data[2] = value;
        EXPECT_FALSE(IsAvailable(part, 0));
        part.Data[2] = 1;
        part.Data[0] = value;
        EXPECT_FALSE(IsAvailable(part, 2));
    }
}

TEST(SpecialParts, AreTheNine)
{
    for (const auto* const partNum : {"KTU155F51H222ZA01", "KTU155F51H332ZA01", "KTU155F51H472ZA01",
                                      "KTU155F51H682ZA01", "KTU155F51H103ZA01", "KTS188F51H102ZA01",
                                      "KTS188F51H332ZA01", "KTS216F51H102ZA01", "KTS32RF51H105ZA01"})
    {
        EXPECT_TRUE(IsSpecialPart(partNum)) << partNum;
    }
}

TEST(SpecialParts, AreComparedLetterByLetter)
{
    for (const auto* const partNum : {"", "ktu155F51H222ZA01", "KTU155F51H222ZA0", "KTU155F51H222ZA01 ",
                                      " KTU155F51H222ZA01", "KTU155F51H222ZA02"})
    {
        EXPECT_FALSE(IsSpecialPart(partNum)) << partNum;
    }
}
} // namespace
