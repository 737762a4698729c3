/// Values with units, as engineers type them.

#include "requests/UnitEntry.h"

#include "requests/RequestError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace
{
struct Row
{
    const char* name;
    const char* typed;
    Quantity quantity;
    float value;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name << ": " << row.typed;
}

class FittingUnits : public testing::TestWithParam<Row>
{
};

TEST_P(FittingUnits, BecomeTheUnitOfTheForm)
{
    EXPECT_EQ(ValueInUnit(GetParam().typed, GetParam().quantity), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Values, FittingUnits,
    testing::Values(Row{"bare volts", "12", Quantity::DCVoltage, 12},
                    Row{"volts", "12V", Quantity::DCVoltage, 12},
                    Row{"blank before the unit", " 12.5 V ", Quantity::DCVoltage, 12.5F},
                    Row{"millivolts", "500mV", Quantity::DCVoltage, 0.5F},
                    Row{"kilovolts", "1.2kV", Quantity::DCVoltage, 1200},
                    Row{"bare kilohertz", "300", Quantity::Frequency, 300},
                    Row{"kilohertz", "300kHz", Quantity::Frequency, 300},
                    Row{"kilohertz in any case", "300KHZ", Quantity::Frequency, 300},
                    Row{"hertz", "10000Hz", Quantity::Frequency, 10},
                    Row{"megahertz", "0.3MHz", Quantity::Frequency, 300},
                    Row{"millihertz are not megahertz", "1000mHz", Quantity::Frequency, 0.001F},
                    Row{"exponent and unit", "3E5Hz", Quantity::Frequency, 300},
                    Row{"signed exponent and unit", "3e-1MHz", Quantity::Frequency, 300},
                    Row{"amperes", "1.5A", Quantity::Current, 1.5F},
                    Row{"r.m.s. amperes", "1.5Arms", Quantity::Current, 1.5F},
                    Row{"milliamperes", "250mArms", Quantity::Current, 0.25F},
                    Row{"r.m.s. volts", "3.3Vrms", Quantity::RmsVoltage, 3.3F},
                    Row{"milliwatts", "190mW", Quantity::EffectivePower, 0.19F},
                    Row{"volt-amperes", "2VA", Quantity::ApparentPower, 2},
                    Row{"degrees", "-25C", Quantity::Temperature, -25},
                    Row{"degrees with their sign", "85\u00B0C", Quantity::Temperature, 85},
                    Row{"heat resistance", "50 C/W", Quantity::HeatResistance, 50},
                    Row{"heat resistance in kelvin", "50K/W", Quantity::HeatResistance, 50},
                    Row{"bare picofarads", "100", Quantity::Capacitance, 100},
                    Row{"picofarads", "100pF", Quantity::Capacitance, 100},
                    Row{"nanofarads", "0.1nF", Quantity::Capacitance, 100},
                    Row{"microfarads", "4.7uF", Quantity::Capacitance, 4700000},
                    Row{"microfarads with the micro sign", "4.7\u00B5F", Quantity::Capacitance, 4700000},
                    Row{"microfarads with the Greek letter", "4.7\u03BCF", Quantity::Capacitance, 4700000},
                    Row{"farads", "1E-6F", Quantity::Capacitance, 1000000},
                    Row{"bare milliohms", "3", Quantity::LossResistance, 3},
                    Row{"milliohms", "3mOhm", Quantity::LossResistance, 3},
                    Row{"milliohms with the Greek letter", "3m\u03A9", Quantity::LossResistance, 3},
                    Row{"ohms", "0.003Ohm", Quantity::LossResistance, 3},
                    Row{"microseconds", "2us", Quantity::Time, 2e-6F},
                    Row{"microhenries", "2.2uH", Quantity::Inductance, 2.2e-6F},
                    Row{"ohms with their sign", "0.003\u2126", Quantity::LossResistance, 3},
                    Row{"ohms with the Greek letter", "0.003\u03A9", Quantity::LossResistance, 3},
                    Row{"percent", "-20%", Quantity::CapacitanceChange, -20}));

class ForeignUnits : public testing::TestWithParam<Row>
{
};

TEST_P(ForeignUnits, AreRefused)
{
    EXPECT_THROW(EntryInUnit(GetParam().typed, GetParam().quantity), RequestError);
}

INSTANTIATE_TEST_SUITE_P(Values, ForeignUnits,
                         testing::Values(Row{"volts of frequency", "12V", Quantity::Frequency, 0},
                                         Row{"kilohertz of voltage", "12kHz", Quantity::DCVoltage, 0},
                                         Row{"watts of apparent power", "2W", Quantity::ApparentPower, 0},
                                         Row{"volt-amperes of effective power", "2VA",
                                             Quantity::EffectivePower, 0},
                                         Row{"r.m.s. volts of bias", "2Vrms", Quantity::DCVoltage, 0},
                                         Row{"a prefix alone", "2k", Quantity::Frequency, 0},
                                         Row{"a prefix of degrees", "2kC", Quantity::Temperature, 0},
                                         Row{"kelvin of temperature", "300K", Quantity::Temperature, 0},
                                         Row{"volts of loss resistance", "2V", Quantity::LossResistance, 0},
                                         Row{"two prefixes", "2mkV", Quantity::DCVoltage, 0},
                                         Row{"something behind the unit", "2V3", Quantity::DCVoltage, 0}));

TEST(Quantities, LeaveWhatIsNoNumberToTheRules)
{
    for (const char* typed : {"", "five", "V", "1,5", "1.5.2", "--3", "1-2", "nan", "inf"})
    {
        EXPECT_EQ(EntryInUnit(typed, Quantity::DCVoltage), typed);
        EXPECT_THROW(ValueInUnit(typed, Quantity::DCVoltage), RequestError) << typed;
    }
}

TEST(Quantities, TellWhatToEnterForARange)
{
    const auto refusal = [](const char* typed, Quantity quantity)
    {
        try
        {
            ValueInUnit(typed, quantity, "parameter");
        }
        catch (const RequestError& error)
        {
            return error.Key() + ' ' + error.Message();
        }
        return std::string("taken");
    };
    const std::string load = " is a range, which is not taken here: enter the largest";
    EXPECT_EQ(refusal("1..2A", Quantity::Current), "parameter \"1..2A\"" + load);
    EXPECT_EQ(refusal("1A..2A", Quantity::Current), "parameter \"1A..2A\"" + load);
    EXPECT_EQ(refusal("2V\u00B110%", Quantity::RmsVoltage), "parameter \"2V\u00B110%\"" + load);
    EXPECT_EQ(refusal("40+-5", Quantity::HeatResistance), "parameter \"40+-5\"" + load);
    EXPECT_EQ(refusal("5..10", Quantity::TemperatureRise),
              "parameter \"5..10\" is a range, which is not taken here: enter one value");
}

TEST(Quantities, KeepTheDigitsAsTyped)
{
    EXPECT_EQ(EntryInUnit("12V", Quantity::DCVoltage), "12");
    EXPECT_EQ(EntryInUnit("16777217mV", Quantity::DCVoltage), "16777217E-3");
}

TEST(Quantities, StayInfiniteOrZeroWhenNoSingleHoldsThem)
{
    EXPECT_TRUE(std::isinf(ValueInUnit("1E39V", Quantity::DCVoltage)));
    EXPECT_TRUE(std::isinf(ValueInUnit("1E99999999999999999999MHz", Quantity::Frequency)));
    EXPECT_EQ(ValueInUnit("1E-99999999999999999999MHz", Quantity::Frequency), 0);
    // The least and the largest exponent that an int holds, shifted beyond it by the prefix.
    EXPECT_EQ(EntryInUnit("1E-2147483648mV", Quantity::DCVoltage), "1E-100003");
    EXPECT_EQ(ValueInUnit("1E-2147483648mV", Quantity::DCVoltage), 0);
    EXPECT_TRUE(std::isinf(ValueInUnit("1E2147483647MV", Quantity::DCVoltage)));
}
} // namespace
