#include "calc/NumberText.h"
#include "tests/calc/NamedRow.h"

#include <array>
#include <cmath>
#include <limits>

namespace
{
struct TextRow
{
    const char* Name;
    float Value;
    const char* Text;
};

class NumberTexts : public testing::TestWithParam<TextRow>
{
};

TEST_P(NumberTexts, AreTheShortestThatReadBack)
{
    EXPECT_EQ(NumberText(GetParam().Value), GetParam().Text);
    EXPECT_EQ(ReadEntry(GetParam().Text), GetParam().Value);
}

INSTANTIATE_TEST_SUITE_P(Rows, NumberTexts,
                         testing::Values(TextRow{"zero", 0, "0"}, TextRow{"a negative zero", -0.0F, "0"},
                                         TextRow{"a fraction", 2.5F, "2.5"}, TextRow{"a tenth", 0.1F, "0.1"},
                                         TextRow{"a negative number", -12.5F, "-12.5"},
                                         TextRow{"zeros behind", 1e7F, "10000000"},
                                         TextRow{"all digits of a single", 16777215.0F, "16777215"},
                                         TextRow{"a hundred microfarads", 1e8F, "100000000"},
                                         TextRow{"the smallest plain number", 1e-6F, "0.000001"},
                                         TextRow{"the largest plain power", 1e14F, "100000000000000"},
                                         TextRow{"the first large exponent", 1e15F, "1E+15"},
                                         TextRow{"a large exponent", -1.25e20F, "-1.25E+20"},
                                         TextRow{"a small exponent", 1.5e-7F, "1.5E-07"},
                                         TextRow{"the largest single", 3.4028235e38F, "3.4028235E+38"},
                                         TextRow{"the smallest single", 1e-45F, "1E-45"}),
                         RowName<TextRow>);

TEST(TickText, RoundsToSixDigits)
{
    EXPECT_EQ(TickText(2.4000001, 10), "2.4");
    EXPECT_EQ(TickText(123456.5, 1e6), "123457");
    EXPECT_EQ(TickText(-12.5, 100), "-12.5");
    EXPECT_EQ(TickText(999999.5, 1e6), "1000000");
    EXPECT_EQ(TickText(0.125, 1), "0.125");
    EXPECT_EQ(TickText(1000, 1000), "1000");
}

TEST(FormatTick, TakesMoreDecimals)
{
    EXPECT_EQ(FormatTick(9994000, NumberFormat::ScientificShort, 0), "9.99E+6");
    EXPECT_EQ(FormatTick(9994000, NumberFormat::ScientificShort, 1), "9.994E+6");
    EXPECT_EQ(FormatTick(9994000, NumberFormat::ScientificShort, 3), "9.99400E+6");
    EXPECT_EQ(FormatTick(0.123456, NumberFormat::FractionTick, 0), "0.12346");
    EXPECT_EQ(FormatTick(0.123456, NumberFormat::FractionTick, 1), "0.123456");
    EXPECT_EQ(FormatTick(-12, NumberFormat::WholeTick, 0), "-12");
    EXPECT_EQ(FormatTick(std::numeric_limits<double>::infinity(), NumberFormat::WholeTick, 0), "inf");
}

TEST(TextsOfNumbers, TellTheirNumbers)
{
    EXPECT_EQ(ToldBy("-12.5"), -12.5);
    EXPECT_EQ(ToldBy("1.20E+7"), 1.2e7);
    EXPECT_EQ(ToldBy("0"), 0);
}

TEST(TickText, ShowsNothingSmallerThanAMillionthOfTheRange)
{
    EXPECT_EQ(TickText(9.9e-7, 1), "0");
    EXPECT_EQ(TickText(-9.9e-7, -1), "0");
    EXPECT_EQ(TickText(1e-6, 1), "0.000001");
    EXPECT_EQ(TickText(1.005e-6, 1), "0.000001005");
    EXPECT_EQ(TickText(0, 0), "0");
}

struct FormatRow
{
    const char* Name;
    float Value;
    /// In the order of `NumberFormat`.
    std::array<const char*, 6> Texts;
};

class NumberFormats : public testing::TestWithParam<FormatRow>
{
};

TEST_P(NumberFormats, RoundHalfAwayFromZero)
{
    const auto& row = GetParam();
    for (std::size_t i = 0; i < row.Texts.size(); ++i)
    {
        EXPECT_EQ(FormatNumber(row.Value, static_cast<NumberFormat>(i)), row.Texts[i]) << "format " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberFormats,
    testing::Values(
        FormatRow{"zero", 0, {"0.00E+00", "0.00E+0", "", "0", "0", "0"}},
        FormatRow{"a thousand", 1000, {"1.00E+03", "1.00E+3", "1000", "1000", "1000", "1000"}},
        FormatRow{"ten thousand", 1e4F, {"1.00E+04", "1.00E+4", "10000", "10000", "10000", "10000"}},
        FormatRow{"a negative number", -15, {"-1.50E+01", "-1.50E+1", "-15", "-15", "-15", "-15"}},
        FormatRow{"an eighth", 0.125F, {"1.25E-01", "1.25E-1", ".125", "0.125", "0", "0.125"}},
        FormatRow{"twelve point three", 12.3F, {"1.23E+01", "1.23E+1", "12.3", "12.3", "12", "12.3"}},
        FormatRow{"a half", 0.5F, {"5.00E-01", "5.00E-1", ".5", "0.5", "1", "0.5"}},
        FormatRow{"a negative half", -0.5F, {"-5.00E-01", "-5.00E-1", "-.5", "-0.5", "-1", "-0.5"}},
        FormatRow{"one and a half", 1.5F, {"1.50E+00", "1.50E+0", "1.5", "1.5", "2", "1.5"}},
        FormatRow{"a tie of decimals", 1.0005F, {"1.00E+00", "1.00E+0", "1.001", "1.001", "1", "1.0005"}},
        FormatRow{"a tie of the mantissa", 1.235F, {"1.24E+00", "1.24E+0", "1.235", "1.235", "1", "1.235"}},
        FormatRow{"a carry", 9.9996F, {"1.00E+01", "1.00E+1", "10", "10", "10", "9.9996"}},
        FormatRow{"a carry of nines", 999.9999F, {"1.00E+03", "1.00E+3", "1000", "1000", "1000", "999.9999"}},
        FormatRow{"a carry out of nothing", 0.9996F, {"1.00E+00", "1.00E+0", "1", "1", "1", "0.9996"}},
        FormatRow{"less than any digit", -0.0001F, {"-1.00E-04", "-1.00E-4", "", "0", "0", "-0.0001"}},
        FormatRow{"far less than any digit", -4e-9F, {"-4.00E-09", "-4.00E-9", "", "0", "0", "0"}},
        FormatRow{"a long exponent", 1e-12F, {"1.00E-12", "1.00E-12", "", "0", "0", "0"}},
        FormatRow{"a small tick", 0.00125F, {"1.25E-03", "1.25E-3", ".001", "0.001", "0", "0.00125"}},
        FormatRow{"a finer tick", 0.0012346F, {"1.23E-03", "1.23E-3", ".001", "0.001", "0", "0.00123"}},
        FormatRow{"forty-seven thousandths", 0.047F, {"4.70E-02", "4.70E-2", ".047", "0.047", "0", "0.047"}}),
    RowName<FormatRow>);

TEST(NumbersThatAreNotFinite, ReadTheSameInEveryText)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const std::pair<float, const char*> rows[] = {
        {infinity, "inf"}, {-infinity, "-inf"}, {std::numeric_limits<float>::quiet_NaN(), "nan"}};
    for (const auto& [value, text] : rows)
    {
        EXPECT_EQ(NumberText(value), text);
        EXPECT_EQ(TickText(value, 10), text);
        EXPECT_EQ(FormatNumber(value, NumberFormat::ScientificTwo), text);
        EXPECT_EQ(FormatNumber(value, NumberFormat::PaneValue), text);
    }
}

struct EntryRow
{
    const char* Name;
    const char* Text;
    std::optional<float> Value;
};

class Entries : public testing::TestWithParam<EntryRow>
{
};

TEST_P(Entries, AreReadInEveryLocale)
{
    EXPECT_EQ(ReadEntry(GetParam().Text), GetParam().Value);
}

constexpr float Infinity = std::numeric_limits<float>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Rows, Entries,
    testing::Values(
        EntryRow{"digits", "25", 25.0F}, EntryRow{"a fraction", "0.1", 0.1F},
        EntryRow{"blanks around", " \t-2.5 ", -2.5F}, EntryRow{"a plus sign", "+16", 16.0F},
        EntryRow{"no digit before the point", ".5", 0.5F}, EntryRow{"no digit behind the point", "5.", 5.0F},
        EntryRow{"an exponent", "1.5e3", 1500.0F}, EntryRow{"a signed exponent", "1E+2", 100.0F},
        EntryRow{"a negative exponent", "1E-2", 0.01F}, EntryRow{"too large", "1e39", Infinity},
        EntryRow{"far too large", "-1e99999", -Infinity},
        EntryRow{"an exponent beyond any number", "1e99999999999999999999", Infinity},
        EntryRow{"too small", "1e-60", 0.0F}, EntryRow{"far too small", "1e-99999999999999999999", 0.0F},
        EntryRow{"a fraction too large", "0.001e99", Infinity},
        EntryRow{"a fraction too large with a sign", "0.001e+99", Infinity},
        EntryRow{"leading zeros that count for nothing",
                 "00000000000000000000000000000000000000000000000000000000000000009e-60", 0.0F},
        EntryRow{"too many digits", "1000000000000000000000000000000000000000", Infinity},
        EntryRow{"too many zeros", "0.000000000000000000000000000000000000000000000000001", 0.0F},
        EntryRow{"a fraction too small", "0.9e-60", 0.0F},
        EntryRow{"a number too small for its exponent", "9000e-60", 0.0F},
        EntryRow{"a zero with an exponent", "0e99999", 0.0F},
        EntryRow{"zeros that the exponent takes back", "0.0000000001e11", 10.0F}, EntryRow{"nothing", "", {}},
        EntryRow{"blanks", "  ", {}}, EntryRow{"a sign", "-", {}}, EntryRow{"a point", ".", {}},
        EntryRow{"two signs", "--1", {}}, EntryRow{"a blank inside", "1 2", {}},
        EntryRow{"a blank behind the sign", "- 1", {}}, EntryRow{"two points", "1.2.3", {}},
        EntryRow{"a comma", "1,5", {}}, EntryRow{"groups", "1,000.5", {}},
        EntryRow{"an exponent without digits", "1e", {}}, EntryRow{"an exponent with two signs", "1e+-5", {}},
        EntryRow{"an exponent alone", "e5", {}}, EntryRow{"hexadecimal", "0x10", {}},
        EntryRow{"infinity", "inf", {}}, EntryRow{"not a number", "nan", {}}, EntryRow{"a unit", "5V", {}}),
    RowName<EntryRow>);

TEST(EntriesWithACommaAsDecimalSign, MayBearEither)
{
    EXPECT_EQ(ReadEntry("1,5", true), 1.5F);
    EXPECT_EQ(ReadEntry("1.5", true), 1.5F);
    EXPECT_EQ(ReadEntry(",5e1", true), 5.0F);
    EXPECT_EQ(ReadEntry("1.000,5", true), std::nullopt);
    EXPECT_EQ(ReadEntry(",", true), std::nullopt);
}

TEST(EntryOfZero, IsNeverANegativeZero)
{
    EXPECT_FALSE(std::signbit(*ReadEntry("-0")));
    EXPECT_FALSE(std::signbit(*ReadEntry("-1e-99")));
}
} // namespace
