/// Ranges and tolerances, as engineers type them.

#include "requests/RangeEntry.h"

#include "requests/RequestError.h"
#include "requests/ToleranceEntry.h"

#include <gtest/gtest.h>

namespace
{
struct Row
{
    const char* name;
    const char* typed;
    Quantity quantity;
    float low;
    float high;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name << ": " << row.typed;
}

class RangeEntry : public testing::TestWithParam<Row>
{
};

TEST_P(RangeEntry, IsReadInTheUnitOfTheForm)
{
    const auto range = ConditionRangeOf(GetParam().typed, GetParam().quantity);
    EXPECT_EQ(range.Low, GetParam().low);
    EXPECT_EQ(range.High, GetParam().high);
}

INSTANTIATE_TEST_SUITE_P(
    Values, RangeEntry,
    testing::Values(
        Row{"a value is a range of no width", "12V", Quantity::DCVoltage, 12, 12},
        Row{"bare ends", "10.8..13.2", Quantity::DCVoltage, 10.8F, 13.2F},
        Row{"the unit behind is that of both", "10.8..13.2V", Quantity::DCVoltage, 10.8F, 13.2F},
        Row{"unless the first bears its own", "900mV..1.1V", Quantity::DCVoltage, 0.9F, 1.1F},
        Row{"the first alone bears one", "900mV..1.1", Quantity::DCVoltage, 0.9F, 1.1F},
        Row{"below zero", "-20..85C", Quantity::Temperature, -20, 85},
        Row{"kilohertz", "270..330kHz", Quantity::Frequency, 270, 330},
        Row{"megahertz for both", "0.27..0.33MHz", Quantity::Frequency, 270, 330},
        Row{"blanks", " 10.8 .. 13.2 V ", Quantity::DCVoltage, 10.8F, 13.2F},
        Row{"equal ends", "12..12V", Quantity::DCVoltage, 12, 12},
        Row{"percent around the middle", "12V\u00B110%", Quantity::DCVoltage, 10.8F, 13.2F},
        Row{"percent of 3.3 V", "3.3V\u00B13%", Quantity::DCVoltage, 3.201F, 3.399F},
        Row{"the sign in letters", "12+-10%", Quantity::DCVoltage, 10.8F, 13.2F},
        Row{"percent below zero", "-10\u00B110%", Quantity::Temperature, -11, -9},
        Row{"a distance", "25\u00B110C", Quantity::Temperature, 15, 35},
        Row{"a bare distance has the unit of the middle", "900mV\u00B150", Quantity::DCVoltage, 0.85F, 0.95F},
        Row{"a distance in a unit of its own", "5V\u00B1250mV", Quantity::DCVoltage, 4.75F, 5.25F}),
    [](const auto& row) { return "Row" + std::to_string(row.index); });

struct Refused
{
    const char* typed;
    RequestErrorKind kind;
    const char* message;
};

void PrintTo(const Refused& row, std::ostream* out)
{
    *out << row.typed;
}

class RefusedRange : public testing::TestWithParam<Refused>
{
};

TEST_P(RefusedRange, IsToldWhy)
{
    try
    {
        ConditionRangeOf(GetParam().typed, Quantity::DCVoltage, "dcBias");
        FAIL() << "is taken";
    }
    catch (const RequestError& error)
    {
        EXPECT_EQ(error.Kind(), GetParam().kind);
        EXPECT_EQ(error.Message(), GetParam().message);
        EXPECT_EQ(error.Key(), "dcBias");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, RefusedRange,
    testing::Values(
        Refused{"13.2..10.8", RequestErrorKind::Condition,
                "DC Bias Voltage 13.2..10.8: the first must not be above the second"},
        Refused{"10..", RequestErrorKind::NotANumber, "\"10..\" is not a range: an end is left open"},
        Refused{"..10V", RequestErrorKind::NotANumber, "\"..10V\" is not a range: an end is left open"},
        Refused{"10...13", RequestErrorKind::NotANumber,
                "\"10...13\" is not a range: two points stand between the ends"},
        Refused{"1..2..3", RequestErrorKind::NotANumber,
                "\"1..2..3\" is not a range: a value stands on either side of the sign"},
        Refused{"1..2+-5%", RequestErrorKind::NotANumber,
                "\"1..2+-5%\" is not a range: a value stands on either side of the sign"},
        Refused{"x..3", RequestErrorKind::NotANumber, "\"x\" is not a number"},
        Refused{"12\u00B1", RequestErrorKind::NotANumber,
                "\"12\u00B1\" is not a range: a value stands on either side of the sign"},
        Refused{"10..12A", RequestErrorKind::Unit, "\"10A\": \"A\" is not the unit of a voltage"}),
    [](const auto& row) { return "Row" + std::to_string(row.index); });

TEST(ToleranceEntry, IsOnePercentageOrTwo)
{
    EXPECT_EQ(ToleranceOf("10"), (CapacitanceTolerance{10, 10}));
    EXPECT_EQ(ToleranceOf("10%"), (CapacitanceTolerance{10, 10}));
    EXPECT_EQ(ToleranceOf("\u00B15%"), (CapacitanceTolerance{5, 5}));
    EXPECT_EQ(ToleranceOf("+-5"), (CapacitanceTolerance{5, 5}));
    EXPECT_EQ(ToleranceOf("-20/+80"), (CapacitanceTolerance{20, 80}));
    EXPECT_EQ(ToleranceOf("-20% / +80%"), (CapacitanceTolerance{20, 80}));
}

TEST(ToleranceEntry, RefusesOtherTexts)
{
    for (const char* typed : {"", "x", "20/80", "+80/-20", "-20/", "10V"})
    {
        EXPECT_THROW(ToleranceOf(typed), RequestError) << typed;
    }
}
} // namespace
