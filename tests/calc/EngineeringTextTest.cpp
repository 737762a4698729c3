#include "calc/EngineeringText.h"
#include "tests/calc/NamedRow.h"

#include <cmath>
#include <limits>
#include <vector>

namespace
{
struct SingleRow
{
    const char* Name;
    ::Quantity Quantity;
    double Value;
    const char* Text;
};

class SingleTexts : public testing::TestWithParam<SingleRow>
{
};

TEST_P(SingleTexts, HaveFourDigitsAndAPrefix)
{
    EXPECT_EQ(EngineeringText(GetParam().Quantity, GetParam().Value), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SingleTexts,
    testing::Values(SingleRow{"microfarads", Quantity::Capacitance, 89960000, "89.96 µF"},
                    SingleRow{"rounded into the next prefix", Quantity::Capacitance, 999960, "1.000 µF"},
                    SingleRow{"just below it", Quantity::Capacitance, 999940, "999.9 nF"},
                    SingleRow{"picofarads", Quantity::Capacitance, 12.5, "12.50 pF"},
                    SingleRow{"below the lowest prefix", Quantity::Capacitance, 0.0123, "0.012 pF"},
                    SingleRow{"nothing to read", Quantity::Capacitance, 1e-20, "0 pF"},
                    SingleRow{"millifarads", Quantity::Capacitance, 1.5e9, "1.500 mF"},
                    SingleRow{"a current", Quantity::Current, 6.311, "6.311 Arms"},
                    SingleRow{"a small current", Quantity::Current, 0.0123, "12.30 mArms"},
                    SingleRow{"a voltage", Quantity::RmsVoltage, 12.5, "12.50 Vrms"},
                    SingleRow{"a large power", Quantity::ApparentPower, 1234, "1.234 kVA"},
                    SingleRow{"above the highest prefix", Quantity::EffectivePower, 1.2345e10, "12345 MW"},
                    SingleRow{"a frequency", Quantity::Frequency, 300000, "300.0 kHz"},
                    SingleRow{"a rise", Quantity::TemperatureRise, 42.7, "42.70 °C"},
                    SingleRow{"a small rise", Quantity::TemperatureRise, 0.0421, "0.042 °C"},
                    SingleRow{"degrees without prefix", Quantity::Temperature, 1234, "1234 °C"},
                    SingleRow{"a falling capacitance", Quantity::CapacitanceChange, -12.5, "−12.50 %"},
                    SingleRow{"a hair below zero", Quantity::CapacitanceChange, -0.0004, "0 %"},
                    SingleRow{"noise beside zero", Quantity::CapacitanceChange, 2e-6, "0 %"},
                    SingleRow{"zero", Quantity::EffectivePower, 0, "0 W"},
                    SingleRow{"loss resistance", Quantity::LossResistance, 5.5253, "5.525 mΩ"},
                    SingleRow{"heat resistance", Quantity::HeatResistance, 105, "105.0 °C/W"}),
    RowName<SingleRow>);

TEST(SharedForm, ShowsDifferencesThatCanBeCheckedByEye)
{
    const auto form = FormOf(Quantity::Capacitance, std::vector{2.59e6, 2.895e6, -0.305e6});
    EXPECT_EQ(ValueText(form, 2.59e6), "2.590 µF");
    EXPECT_EQ(ValueText(form, 2.895e6), "2.895 µF");
    EXPECT_EQ(DifferenceText(form, -0.305e6), "−0.305 µF");
    EXPECT_EQ(DifferenceText(form, 0.305e6), "+0.305 µF");
    EXPECT_EQ(DifferenceText(form, 0.0), "0 µF");
}

TEST(SharedForm, GivesTheLargestFourDigitsAndTheSmallestThree)
{
    EXPECT_EQ(FormOf(Quantity::TemperatureRise, std::vector{18.452, 9.5}).Decimals, 2);
    EXPECT_EQ(FormOf(Quantity::TemperatureRise, std::vector{18.452, 0.414}).Decimals, 3);
    EXPECT_EQ(FormOf(Quantity::TemperatureRise, std::vector{118.4, 1.2}).Decimals, 2);
    // Below a hundredth of the largest no digits are owed.
    EXPECT_EQ(FormOf(Quantity::TemperatureRise, std::vector{118.4, 1.1}).Decimals, 1);
    EXPECT_EQ(FormOf(Quantity::TemperatureRise, std::vector{0.00012}).Decimals, 3);
}

TEST(SharedForm, PassesOverWhatIsNoNumber)
{
    const auto infinite = std::numeric_limits<double>::infinity();
    const auto form = FormOf(Quantity::Current, std::vector{1.5, infinite, std::nan("")});
    EXPECT_EQ(ValueText(form, 1.5), "1.500 Arms");
    EXPECT_EQ(FormOf(Quantity::Current, std::vector<double>()).Unit, "Arms");
}

TEST(SharedForm, TakesTheDegreeSignOfTheDesk)
{
    EXPECT_EQ(EngineeringText(Quantity::Temperature, 25, ""), "25.00 C");
    EXPECT_EQ(AxisValueText(Quantity::Temperature, 25, ""), "25 C");
}

TEST(MissingValues, AreADash)
{
    const auto form = FormOf(Quantity::Current, std::vector{1.5});
    EXPECT_EQ(ValueText(form, std::nullopt), "–");
    EXPECT_EQ(DifferenceText(form, std::nullopt), "–");
    EXPECT_EQ(DifferenceToText(form, 1.5, std::nullopt), "–");
    EXPECT_EQ(DifferenceToText(form, std::nullopt, 1.5), "–");
    EXPECT_EQ(RatioText(form, std::nullopt, 1.5), "–");
    EXPECT_EQ(RatioText(form, 1.5, std::nullopt), "–");
}

TEST(Percentages, StandBehindDifferences)
{
    const auto form = FormOf(Quantity::TemperatureRise, std::vector{2.030, 1.305, -0.725});
    EXPECT_EQ(DifferenceToText(form, 1.305, 2.030), "−0.725 °C (−35.7 %)");
    EXPECT_EQ(DifferenceToText(form, 2.030, 1.305), "+0.725 °C (+55.6 %)");
    EXPECT_EQ(DifferenceToText(form, 2.030, 2.030), "0 °C (0 %)");
    EXPECT_EQ(DifferenceToText(form, 2.030, 0.0001), "+2.030 °C");
    const auto change = FormOf(Quantity::CapacitanceChange, std::vector{-10.0, -20.0});
    EXPECT_EQ(DifferenceToText(change, -10, -20), "+10.00 %");
}

TEST(Ratios, HaveFourDigits)
{
    const auto form = FormOf(Quantity::TemperatureRise, std::vector{18.452, 2.030});
    EXPECT_EQ(RatioText(form, 2.030, 18.452), "0.1100");
    EXPECT_EQ(RatioText(form, 18.452, 2.030), "9.090");
    EXPECT_EQ(RatioText(form, 2.030, 2.030), "1.000");
    EXPECT_EQ(RatioText(form, 2.030, 0), "–");
    EXPECT_EQ(RatioText(form, 2.030, 0.0004), "–");
    EXPECT_EQ(RatioText(300000, 20000), "15.00");
    EXPECT_EQ(RatioText(99999, 1), "99999");
    EXPECT_EQ(RatioText(1, 0), "–");
    const auto change = FormOf(Quantity::CapacitanceChange, std::vector{-10.0, -20.0});
    EXPECT_EQ(RatioText(change, -10, -20), "–");
}

TEST(AxisValues, ReadAsTyped)
{
    EXPECT_EQ(AxisValueText(Quantity::Frequency, 300000), "300 kHz");
    EXPECT_EQ(AxisValueText(Quantity::Current, 1.5), "1.5 Arms");
    EXPECT_EQ(AxisValueText(Quantity::Temperature, -55), "−55 °C");
    EXPECT_EQ(AxisValueText(Quantity::Temperature, 0), "0 °C");
    EXPECT_EQ(AxisValueText(Quantity::DCVoltage, 3.3333333), "3.33333 V");
    EXPECT_EQ(AxisDifferenceText(Quantity::Frequency, 280000), "+280 kHz");
    EXPECT_EQ(AxisDifferenceText(Quantity::Frequency, -280000), "−280 kHz");
    EXPECT_EQ(AxisDifferenceText(Quantity::Frequency, 0), "0 kHz");
}

} // namespace
