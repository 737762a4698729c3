/// Every curve of the vectors, computed independently of this program, against the calculations.

#include "tests/calc/CurveVectors.h"
#include "calc/Calculate.h"
#include "partdata/PartTable.h"
#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
/// Agreement of two singles that were computed in double precision in different ways.
constexpr double tolerance = 2.5e-7;

void ExpectNear(double actual, double expected, const std::string& what)
{
    EXPECT_LE(std::abs(actual - expected), tolerance * std::abs(expected))
        << what << ": " << actual << " instead of " << expected;
}

void ExpectCurve(const ChartRecord& record, const nlohmann::json& expect)
{
    const auto& indices = expect.at("at");
    for (std::size_t k = 0; k < indices.size(); ++k)
    {
        const auto i = indices[k].get<std::size_t>();
        ExpectNear(record.XData.at(i), expect.at("x")[k], "X of point " + std::to_string(i));
        ExpectNear(record.YData.at(i), expect.at("y")[k], "Y of point " + std::to_string(i));
    }
    ExpectNear(record.XMax, expect.at("xMax"), "xMax");
    ExpectNear(record.XMin, expect.at("xMin"), "xMin");
    ExpectNear(record.YMax, expect.at("yMax"), "yMax");
    ExpectNear(record.YMin, expect.at("yMin"), "yMin");
    ExpectNear(record.ExtraValue, expect.at("extra"), "extra");
}

void ExpectRefusal(const ParameterRefusal& refusal, const nlohmann::json& expect)
{
    ExpectNear(refusal.Limit, expect.at("limit"), "limit");
    EXPECT_EQ(refusal.Shown, std::stof(expect.at("shown").get<std::string>()));
    EXPECT_EQ(refusal.Message, expect.at("message").get<std::string>());
}

bool IsUntouched(const ChartRecord& record)
{
    return record.XData == CurveValues{} && record.YData == CurveValues{} && record.XMax == 0 &&
           record.YMax == 0 && record.XMin == 0 && record.YMin == 0 && record.ExtraValue == 0;
}

class CurveVectors : public testing::TestWithParam<CurveVector>
{
};

TEST_P(CurveVectors, AgreeWithTheCalculation)
{
    const auto& vector = GetParam();
    const auto& part = VectorParts().PartData.at(vector.PartIndex);
    ASSERT_EQ(part.PartNum[0], vector.PartNum);
    auto record = vector.Conditions;
    try
    {
        const auto refusal = Calculate(part, record, vector.View);
        ASSERT_FALSE(vector.Expect.contains("error")) << "no error was raised";
        ASSERT_EQ(refusal.has_value(), vector.Expect.contains("refused"));
        if (refusal)
        {
            ExpectRefusal(*refusal, vector.Expect.at("refused"));
            EXPECT_TRUE(IsUntouched(record));
            return;
        }
        ExpectCurve(record, vector.Expect);
    }
    catch (const RunTimeError& error)
    {
        ASSERT_TRUE(vector.Expect.contains("error")) << error.what();
        EXPECT_EQ(error.Number(), vector.Expect.at("error").get<int>());
        EXPECT_TRUE(IsUntouched(record));
    }
}

INSTANTIATE_TEST_SUITE_P(Parts, CurveVectors, testing::ValuesIn(ReadCurveVectors()));

TEST(CurveVectors, CoverAllLines)
{
    EXPECT_EQ(ReadCurveVectors().size(), 444U);
}
} // namespace
