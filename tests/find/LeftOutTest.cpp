#include "find/LeftOut.h"

#include <gtest/gtest.h>

namespace
{
LeftOutCounts Counts(std::initializer_list<LeftOutReason> reasons)
{
    LeftOutCounts counts;
    for (const auto reason : reasons)
    {
        counts.Add(reason);
    }
    return counts;
}

TEST(FitText, TellsHowManyPartsFit)
{
    EXPECT_EQ(FitText(0, {}), "no part fits");
    EXPECT_EQ(FitText(1, {}), "1 part fits");
    EXPECT_EQ(FitText(25, {}), "25 parts fit");
}

TEST(FitText, TellsWhyPartsAreLeftOutInTheOrderOfReasons)
{
    using enum LeftOutReason;
    EXPECT_EQ(FitText(0, Counts({BiasTooHigh, BiasTooHigh})), "no part fits; left out: 2 bias too high");
    EXPECT_EQ(FitText(2, Counts({CannotBeCalculated, SizeWithoutMeasures, NoPermittedRise,
                                 TemperatureOutOfRange, BiasTooHigh, NoHeatingData, NoCapacitanceData})),
              "2 parts fit; left out: 1 no capacitance data, 1 no heating data, 1 bias too high, "
              "1 temperature out of range, 1 no permitted rise, 1 size without measures, "
              "1 cannot be calculated");
}
} // namespace
