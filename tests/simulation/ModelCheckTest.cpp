#include "simulation/ModelCheck.h"

#include "partdata/RunTimeError.h"
#include "tests/simulation/ModelParts.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
std::optional<ModelRefusal> RefusalOf(const PartRecord& part)
{
    const auto checked = CheckModel(part);
    const auto* const refusal = std::get_if<ModelRefusal>(&checked);
    return refusal != nullptr ? std::optional(*refusal) : std::nullopt;
}

TEST(ModelCheck, PassesPartsWhoseChargeIsThatOfTheirCharts)
{
    EXPECT_LT(std::get<double>(CheckModel(ProductPart())), 1e-9);
    EXPECT_LT(std::get<double>(CheckModel(PeakedPart())), 1e-6);
}

TEST(ModelCheck, RefusesPartsWithoutCapacitanceData)
{
    EXPECT_EQ(RefusalOf(With(ProductPart(), Value::BiasV, 0)), ModelRefusal::NoCapacitanceData);
}

TEST(ModelCheck, RefusesACharacteristicWithoutLaw)
{
    auto part = ProductPart();
    part.Tcc = {"C0G", "C"};
    EXPECT_EQ(RefusalOf(part), ModelRefusal::UnknownCharacteristic);
    part.PartNum[0] = "KTU155F51H222ZA01";
    EXPECT_EQ(RefusalOf(part), std::nullopt) << "a special part has the product law";
}

TEST(ModelCheck, RefusesRatingsThatAreNotAboveZero)
{
    for (const auto value : {Value::NominalCapacitance, Value::RatedVoltage})
    {
        for (const float number :
             {0.0F, -1.0F, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()})
        {
            EXPECT_EQ(RefusalOf(With(ProductPart(), value, number)), ModelRefusal::NoRatings)
                << value << ' ' << number;
        }
    }
}

TEST(ModelCheck, RefusesACapacitanceThatFallsToZero)
{
    EXPECT_EQ(RefusalOf(With(ProductPart(), Value::BiasV, -9.9F)), std::nullopt);
    EXPECT_EQ(RefusalOf(With(ProductPart(), Value::BiasV, -10)), ModelRefusal::CapacitanceNotPositive);
    // At 125 °C alone: 1 % a degree from 25 °C on.
    EXPECT_EQ(RefusalOf(With(ProductPart(), Value::TemperatureX, -1)), ModelRefusal::CapacitanceNotPositive);
    EXPECT_EQ(RefusalOf(With(PeakedPart(), Value::PeakOffset, -130)), ModelRefusal::CapacitanceNotPositive);
}

TEST(ModelCheck, RefusesAChargeThatDeviates)
{
    // A bell of 0.1 °C that the bias moves by 20 °C slips through between the points of the sum.
    const auto narrow = With(With(PeakedPart(), Value::DecayBelow, 500), Value::DecayAbove, 500);
    EXPECT_EQ(RefusalOf(narrow), ModelRefusal::ChargeDeviates);
}

TEST(ModelCheck, FailsWhereTheChartsFail)
{
    EXPECT_THROW(CheckModel(With(PeakedPart(), Value::ExponentAbove, -1)), RunTimeError);
    EXPECT_THROW(CheckModel(With(ProductPart(), Value::BiasV6, 3e38F)), RunTimeError);
    EXPECT_THROW(CheckModel(With(ProductPart(), Value::BiasV2, std::numeric_limits<float>::quiet_NaN())),
                 RunTimeError);
}
} // namespace
