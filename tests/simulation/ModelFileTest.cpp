#include "simulation/ModelFile.h"

#include "simulation/SimulationModel.h"
#include "tests/simulation/ModelParts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
std::string TextOf(const PartRecord& part)
{
    return std::get<std::string>(SimulationModel(part, 0));
}

TEST(ModelFile, HoldsModelsInOrder)
{
    ModelFile models(0);
    EXPECT_EQ(models.Summary(), "no model");
    EXPECT_EQ(models.Add(PeakedPart()), std::nullopt);
    EXPECT_EQ(models.Add(ProductPart()), std::nullopt);
    EXPECT_EQ(models.Text(), TextOf(PeakedPart()) + "\n" + TextOf(ProductPart()));
    EXPECT_FALSE(models.HasLeftOut());
    EXPECT_EQ(models.Summary(), "2 models");
}

TEST(ModelFile, RefusesTheSecondOfTwoNamesThatSimulatorsTakeForOne)
{
    auto other = ProductPart();
    other.PartNum[0] = "a_1";
    ModelFile models(0);
    EXPECT_EQ(models.Add(ProductPart()), std::nullopt);
    EXPECT_EQ(models.Add(other), ModelRefusal::NameTaken);
    EXPECT_EQ(models.Text(), TextOf(ProductPart()));
    EXPECT_TRUE(models.HasLeftOut());
    EXPECT_EQ(models.Summary(), "1 model; left out: 1 name already taken");
}

TEST(ModelFile, LeavesTheNameOfARefusedPartToAnother)
{
    ModelFile models(0);
    EXPECT_EQ(models.Add(With(ProductPart(), Value::BiasV, 0)), ModelRefusal::NoCapacitanceData);
    EXPECT_EQ(models.Add(ProductPart()), std::nullopt);
    EXPECT_EQ(models.Summary(), "1 model; left out: 1 no capacitance data");
}

TEST(ModelFile, CountsReasonsInTheirOrder)
{
    ModelFile models(0);
    models.Add(With(PeakedPart(), Value::ExponentAbove, -1));
    models.Add(With(ProductPart(), Value::BiasV, 0));
    models.Add(With(ProductPart(), Value::BiasV, 0));
    EXPECT_EQ(models.Summary(), "no model; left out: 2 no capacitance data, 1 cannot be calculated");
}

TEST(ModelFile, TakesTheWholeRange)
{
    ModelFile models(0);
    for (const auto& part : SampleParts().PartData)
    {
        models.Add(part);
    }
    EXPECT_EQ(models.Summary(), "1126 models; left out: 53 no capacitance data");
    const std::string start = "\n.SUBCKT ";
    std::size_t count = 0;
    for (auto at = models.Text().find(start); at != std::string::npos; at = models.Text().find(start, at + 1))
    {
        ++count;
    }
    EXPECT_EQ(count, 1126U);
}
} // namespace
