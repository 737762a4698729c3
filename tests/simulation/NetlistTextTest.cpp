#include "simulation/GaussPoints.h"
#include "simulation/HornerText.h"
#include "simulation/NetlistLine.h"

#include <gtest/gtest.h>

namespace
{
TEST(NetlistNumber, TellsTenDigits)
{
    EXPECT_EQ(NetlistNumber(0), "0");
    EXPECT_EQ(NetlistNumber(47000000), "47000000");
    EXPECT_EQ(NetlistNumber(0.0003339983232F), "0.0003339983232");
    EXPECT_EQ(NetlistNumber(-1.0F / 3), "-0.3333333433");
    EXPECT_EQ(NetlistNumber(3.15e-9), "3.15E-09");
    EXPECT_EQ(NetlistNumber(12345678901.0), "1.23456789E+10");
}

TEST(HornerText, NestsFromTheLowestPowerUp)
{
    EXPECT_EQ(HornerText({"1", "-2", "3"}, "X"), "1+X*(-2+X*(3))");
    EXPECT_EQ(HornerText({"1"}, "X"), "1");
}

TEST(HornerText, TurnsTheOrderOfCoefficientsRound)
{
    ModelNumbers numbers{};
    numbers[Value::PeakTemperatureV2] = 3;
    numbers[Value::PeakTemperatureV] = 2;
    numbers[Value::PeakTemperature] = 1;
    EXPECT_EQ(HornerText(numbers, Values::PeakTemperature, "U"), "1+U*(2+U*(3))");
    EXPECT_EQ(MeanHornerText(numbers, Values::PeakTemperature, "U"), "1/2+U*(2/3+U*(3/4))");
}

TEST(NetlistLine, LeavesShortLinesWhole)
{
    const std::string line(LongestNetlistLine, '1');
    EXPECT_EQ(NetlistLine(line), line + "\n");
}

TEST(NetlistLine, BreaksBeforeAMultiplication)
{
    const std::string factor(LongestNetlistLine / 2 + 1, '1');
    const auto wrapped = NetlistLine(factor + "*" + factor + "*2*3");
    EXPECT_EQ(wrapped, factor + "\n+ *" + factor + "*2*3\n");
}

TEST(NetlistLine, CannotBreakElsewhere)
{
    const std::string number(2 * LongestNetlistLine, '1');
    EXPECT_EQ(NetlistLine(number), number + "\n");
    EXPECT_EQ(NetlistLine(number + "*2"), number + "\n+ *2\n");
    EXPECT_EQ(NetlistLine("1*" + number), "1\n+ *" + number + "\n");
}

TEST(GaussPoints, IntegrateWhatTheyAreMadeFor)
{
    // With x² for the place and 2·w·x for the weight, a power of the place of up to nine is integrated
    // exactly.
    for (int power = 0; power < 10; ++power)
    {
        double sum = 0;
        for (const auto& point : GaussPoints)
        {
            sum += point.Weight * std::pow(point.Place, power);
        }
        EXPECT_NEAR(sum * (power + 1), 1, 1e-14) << power;
    }
}
} // namespace
