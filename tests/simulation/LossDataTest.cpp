#include "simulation/LossData.h"

#include "partdata/RunTimeError.h"
#include "tests/simulation/ModelParts.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
TEST(LossData, IsPresentWhereTheLawIsAboveZeroInAllItsRange)
{
    EXPECT_EQ(LossDataOf(ProductPart()), LossData::Present);
    EXPECT_EQ(LossDataOf(With(ProductPart(), Value::UpperTemperature, 20)), LossData::Present);
}

TEST(LossData, IsMissingWithoutHeatingData)
{
    EXPECT_EQ(LossDataOf(PeakedPart()), LossData::Missing);
}

TEST(LossData, IsUnusableWithoutReferenceOrRange)
{
    EXPECT_EQ(LossDataOf(With(ProductPart(), Value::HeatResistance, 0)), LossData::Unusable);
    EXPECT_EQ(LossDataOf(With(ProductPart(), Value::HeatResistance, -20)), LossData::Unusable);
    EXPECT_EQ(LossDataOf(With(ProductPart(), Value::UpperTemperature, 19)), LossData::Unusable);
}

TEST(LossData, IsUnusableWhereTheLawFallsToZero)
{
    // 1e9/f + Q2 is 0 at 1 MHz for Q2 = -1000, and with -10 per degree at 120 °C.
    EXPECT_EQ(LossDataOf(With(ProductPart(), Value::Current, -999)), LossData::Present);
    EXPECT_EQ(LossDataOf(With(ProductPart(), Value::Current, -1000)), LossData::Unusable);
    EXPECT_EQ(LossDataOf(With(ProductPart(), Value::CurrentT, -9)), LossData::Present);
    EXPECT_EQ(LossDataOf(With(ProductPart(), Value::CurrentT, -10)), LossData::Unusable);
}

TEST(LossData, FailsOnWhatIsNoNumber)
{
    EXPECT_THROW(LossDataOf(With(ProductPart(), Value::Current, std::numeric_limits<float>::infinity())),
                 RunTimeError);
}
} // namespace
