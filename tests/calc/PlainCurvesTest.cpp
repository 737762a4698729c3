/// Every stored single of every curve against the plain formulas: at most one last digit apart.

#include "tests/calc/PlainCurves.h"
#include "calc/Calculate.h"
#include "calc/Capacitance.h"
#include "partdata/RunTimeError.h"
#include "tests/calc/CurveVectors.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace
{
/// Position of a single in the order of all singles: neighbours differ by 1, and both zeros are 0.
std::int64_t OrderOf(float value)
{
    const auto magnitude = std::int64_t{std::bit_cast<std::uint32_t>(std::abs(value))};
    return std::signbit(value) ? -magnitude : magnitude;
}

bool IsPlain(const CurveVector& vector)
{
    const auto& part = VectorParts().PartData.at(vector.PartIndex);
    const bool hasModel =
        vector.Conditions.ChartType < 2 || CapacitanceModelOf(part) != CapacitanceModel::None;
    return vector.Expect.contains("at") && hasModel;
}

TEST(PlainCurves, DifferByAtMostOneLastDigit)
{
    std::size_t curves = 0;
    for (const auto& vector : ReadCurveVectors())
    {
        if (!IsPlain(vector))
        {
            continue;
        }
        ++curves;
        const auto& part = VectorParts().PartData.at(vector.PartIndex);
        auto record = vector.Conditions;
        ASSERT_FALSE(Calculate(part, record, vector.View));
        const auto plain = PlainCurveOf(part, vector.Conditions, vector.View);
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            ASSERT_LE(std::abs(OrderOf(record.XData[i]) - OrderOf(plain.XData[i])), 1)
                << testing::PrintToString(vector) << ": X of point " << i << ": " << record.XData[i];
            ASSERT_LE(std::abs(OrderOf(record.YData[i]) - OrderOf(plain.YData[i])), 1)
                << testing::PrintToString(vector) << ": Y of point " << i << ": " << record.YData[i]
                << " instead of " << plain.YData[i];
        }
    }
    EXPECT_GT(curves, 300U);
}
} // namespace
