#include "calc/LossResistance.h"

#include "calc/Calculate.h"
#include "calc/CurveCsv.h"
#include "calc/ValueAt.h"
#include "files/PartLoading.h"
#include "tests/calc/ChartNumbers.h"
#include "tests/calc/NamedRow.h"
#include "tests/calc/PowerParts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace
{
ChartRecord LossLine(float ambientC)
{
    ChartRecord line;
    line.ChartType = NumberOf(ChartId::LossResistance);
    line.XAxisName = "Frequency";
    line.YAxisName = "Loss Resistance";
    line.AmbientTemp = ambientC;
    return line;
}

ChartRecord Computed(const PartRecord& part, float ambientC)
{
    ChartRecord line = LossLine(ambientC);
    EXPECT_FALSE(Calculate(part, line, CodeView::Eia));
    return line;
}

/// mΩ at 10, 100, 300 and 1000 kHz and 20 °C, and at 200 kHz and 60 °C. Worked out from the values of the
/// data file by a script of its own: (Q1/f + Q2 + f·Q3)/Data(31).
struct PartRow
{
    const char* Name;
    std::array<double, 4> At20;
    double At60;
};

class LossOfPart : public testing::TestWithParam<PartRow>
{
};

TEST_P(LossOfPart, IsTheLawOfItsHeating)
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    const auto index = *parts.PartIndex[0].Find(GetParam().Name);
    const PartRecord& part = parts.PartData[static_cast<std::size_t>(index)];
    const auto cold = Computed(part, 20);
    constexpr std::array<double, 4> hertz = {1e4, 1e5, 3e5, 1e6};
    for (std::size_t i = 0; i < hertz.size(); ++i)
    {
        const double expected = GetParam().At20[i];
        EXPECT_NEAR(*ValueAt(part, cold, hertz[i], CodeView::Eia), expected, 1e-7 * expected) << hertz[i];
    }
    EXPECT_NEAR(cold.YData.front(), GetParam().At20.front(), 1e-7 * GetParam().At20.front());
    EXPECT_NEAR(cold.YData.back(), GetParam().At20.back(), 1e-7 * GetParam().At20.back());
    EXPECT_NEAR(*ValueAt(part, Computed(part, 60), 2e5, CodeView::Eia), GetParam().At60,
                1e-7 * GetParam().At60);
}

INSTANTIATE_TEST_SUITE_P(
    Parts, LossOfPart,
    testing::Values(
        PartRow{"KTS31NR71A226KA01", {22.6177095, 4.10494747, 2.74153322, 2.29008605}, 3.16503649},
        PartRow{"KTS21JR71A106KA01", {48.3473403, 7.06594767, 4.01763164, 2.98188945}, 4.63988634},
        PartRow{"KTS32XR71E106KA01", {41.7888029, 6.0382251, 3.39800491, 2.49990153}, 3.92438709},
        PartRow{"KTS188R71H104KA01", {3598.46872, 362.9971, 123.34604, 39.512175}, 142.675813},
        PartRow{"KTS32XR72A105KA01", {351.290115, 37.3369833, 14.0906611, 5.98529208}, 16.2924472},
        PartRow{"KTS31NB51A476MA01", {26.7580027, 4.02877026, 2.35092341, 1.78257702}, 2.66031638},
        PartRow{"KTS21JB51E106MA01", {111.534085, 13.3846221, 6.12385647, 3.6137569}, 6.84079783},
        PartRow{"KTU155B50J105MA01", {1134.92656, 117.467005, 42.1166683, 15.7995692}, 46.2649057},
        PartRow{"KTS216F51E224ZA01", {4160.61895, 418.755228, 141.591683, 44.6220666}, 141.499048},
        PartRow{"KTU155F51H222ZA01", {376279.884, 37632.0471, 12547.0395, 3767.34361}, 12497.565}),
    RowName<PartRow>);

TEST(LossResistanceCurve, HasWholeDecadesAndNoLargestLoad)
{
    const Curve curve = LossResistanceOverFrequency(HeatedModel());
    EXPECT_TRUE(curve.HasPoints);
    EXPECT_EQ(curve.Limits, (AxisLimits{.XMax = 1e6F, .YMax = 100, .XMin = 1e4F, .YMin = 10}));
    EXPECT_EQ(curve.ExtraValue, 0);
    EXPECT_EQ(curve.XData.front(), 1e4F);
    EXPECT_EQ(curve.XData.back(), 1e6F);
    EXPECT_TRUE(std::ranges::all_of(curve.YData, [](float y) { return y == 80; }));
}

/// 2E5/f - 10 + 2E-5·f is not positive from 20.871 to 479.129 kHz.
PartRecord PartWithGap()
{
    PartRecord part = HeatedPart();
    part.Data[Value::CurrentPerF] = 2e5F;
    part.Data[Value::Current] = -10;
    part.Data[Value::CurrentF] = 2e-5F;
    return part;
}

TEST(LossResistanceCurve, HasNoValueWhereTheLawHasNone)
{
    const auto line = Computed(PartWithGap(), 20);
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const double hertz = line.XData[i];
        EXPECT_EQ(std::isnan(line.YData[i]), hertz > 20871.2 && hertz < 479128.7) << hertz;
    }
    // (20 - 10 + 0.2)/50 Ω at 10 kHz, 37.6 mΩ and less beside the gap.
    EXPECT_NEAR(line.YData.front(), 204, 1e-4);
    EXPECT_EQ(line.YMax, 1000);
    EXPECT_LE(line.YMin, *std::ranges::min_element(line.YData, {},
                                                   [](float y) { return std::isnan(y) ? INFINITY : y; }));
    EXPECT_GT(line.YMin, 0);
}

TEST(LossResistanceCurve, LeavesTheFieldOfAPointWithoutValueEmpty)
{
    const auto rows = CsvRows(Computed(PartWithGap(), 20));
    EXPECT_TRUE(rows.starts_with("10000,204\n"));
    EXPECT_EQ(std::ranges::count(rows, '\n'), 200);
    EXPECT_NE(rows.find(",\n"), std::string::npos);
    EXPECT_EQ(rows.find("nan"), std::string::npos);
}

TEST(LossResistanceCurve, TellsNothingWithinItsGap)
{
    const PartRecord part = PartWithGap();
    const auto line = Computed(part, 20);
    EXPECT_FALSE(ValueAt(part, line, 1e5, CodeView::Eia));
    EXPECT_TRUE(Reaches(line, 1e5));
    EXPECT_FALSE(Reaches(line, 9999));
}

TEST(LossResistanceCurve, IsCrossedOnEitherSideOfItsGap)
{
    const PartRecord part = PartWithGap();
    const auto line = Computed(part, 20);
    const auto crossings = [&](float milliohms) { return CrossingsOf(part, line, milliohms, CodeView::Eia); };
    // 15 = 2E5/f + 2E-5·f, and 10.0005 = 2E5/f + 2E-5·f beside the gap.
    const auto wide = crossings(100);
    ASSERT_EQ(wide.size(), 2U);
    EXPECT_NEAR(wide[0], 13579.2, 0.1);
    EXPECT_NEAR(wide[1], 736420.8, 1);
    const auto narrow = crossings(0.01F);
    ASSERT_EQ(narrow.size(), 2U);
    EXPECT_NEAR(narrow[0], 20870.1, 0.1);
    EXPECT_NEAR(narrow[1], 479156, 2);
    // It breaks off before it is nothing.
    EXPECT_TRUE(crossings(0).empty());
    EXPECT_TRUE(crossings(-1).empty());
}

TEST(LossResistanceCurve, HasLimitsWithoutAnyValue)
{
    PartRecord part = HeatedPart();
    part.Data[Value::Current] = -4;
    const auto line = Computed(part, 20);
    EXPECT_TRUE(std::ranges::all_of(line.YData, [](float y) { return std::isnan(y); }));
    EXPECT_EQ(line.YMax, 1);
    EXPECT_EQ(line.YMin, 0.1F);
}

TEST(LossResistanceCurve, HasNoValueOfANegativeReference)
{
    PartRecord part = HeatedPart();
    part.Data[Value::HeatResistance] = -50;
    EXPECT_FALSE(PowerModelOf(part, 0, 20, 50).LossResistance(frequencyHz));
}
} // namespace
