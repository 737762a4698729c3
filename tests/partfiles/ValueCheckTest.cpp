#include "tests/calc/NamedRow.h"
#include "tests/partfiles/SmallPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

namespace
{
constexpr std::size_t X7R = 0;
constexpr std::size_t Y5V = 2;

struct BrokenValue
{
    std::string Name;
    std::size_t Part;
    std::function<void(SmallPart&)> Break;
    Severity Level;
    std::string Rule;
    std::string Field;
    std::string Value;
};

std::function<void(SmallPart&)> Set(std::size_t index, float value)
{
    return [=](SmallPart& part) { part.Data[index] = value; };
}

std::function<void(SmallPart&)> Clear(std::size_t first, std::size_t last)
{
    return [=](SmallPart& part) { std::fill(part.Data.begin() + first, part.Data.begin() + last + 1, 0.0F); };
}

class BrokenValueTest : public testing::TestWithParam<BrokenValue>
{
};

TEST_P(BrokenValueTest, IsTheOnlyFinding)
{
    const auto& row = GetParam();
    SmallPair pair;
    row.Break(pair.Parts[row.Part]);

    const auto report = CheckFiles(pair.Index(), pair.Data());

    ASSERT_THAT(report.Findings, testing::SizeIs(1)) << TextOf(report);
    const auto& finding = report.Findings.front();
    EXPECT_EQ(finding.Level, row.Level);
    EXPECT_EQ(finding.Rule, row.Rule);
    EXPECT_EQ(finding.File, row.Field == "Tcc(0)" ? "parts.idx" : "parts.dat");
    EXPECT_EQ(finding.Record, row.Part + 1);
    EXPECT_EQ(finding.PartNumber, pair.Parts[row.Part].Names[0]);
    EXPECT_EQ(finding.Field, row.Field);
    EXPECT_EQ(finding.Value, row.Value) << finding.Message;
}

constexpr auto Error = Severity::Error;
constexpr auto Warning = Severity::Warning;
constexpr float Infinity = std::numeric_limits<float>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Rules, BrokenValueTest,
    testing::Values(
        BrokenValue{"capacitance is infinite", X7R, Set(0, Infinity), Error, "not-finite", "Data(0)", "inf"},
        BrokenValue{"last value is no number", Y5V, Set(65, NAN), Error, "not-finite", "Data(65)", "nan"},
        BrokenValue{"capacitance is zero", X7R, Set(0, 0), Error, "capacitance", "Data(0)", "0"},
        BrokenValue{"nominal capacitance is negative", X7R, Set(1, -5), Error, "capacitance", "Data(1)",
                    "-5"},
        BrokenValue{"rated voltage is zero", X7R, Set(2, 0), Error, "rated-voltage", "Data(2)", "0"},
        BrokenValue{"rated voltage is negative", Y5V, Set(2, -16), Error, "rated-voltage", "Data(2)", "-16"},
        BrokenValue{"heat resistance is zero", X7R, Set(31, 0), Error, "heat-resistance", "Data(31)", "0"},
        BrokenValue{"heat resistance is negative", X7R, Set(31, -50), Error, "heat-resistance", "Data(31)",
                    "-50"},
        BrokenValue{"upper temperature leaves no ambient", X7R, Set(65, 19.5F), Error, "upper-temperature",
                    "Data(65)", "19.5"},
        BrokenValue{"upper temperature is out of reason", X7R, Set(65, 1250), Error, "upper-temperature",
                    "Data(65)", "1250"},
        BrokenValue{"upper temperature is above the class", Y5V, Set(65, 86), Warning, "class-temperature",
                    "Data(65)", "86"},
        BrokenValue{"characteristic is not listed", X7R, [](SmallPart& part) { part.Names[6] = "X8R"; },
                    Error, "characteristic", "Tcc(0)", "X8R"},
        // 1·10^4/1e4 - 2 = -1 at the lowest frequency.
        BrokenValue{"current heating is negative", X7R,
                    [](SmallPart& part)
                    {
                        part.Data[Value::CurrentPerF] = 1e4F;
                        part.Data[Value::Current] = -2;
                        part.Data[Value::CurrentF] = 0;
                    },
                    Error, "current-heating", "kI", "-1"},
        BrokenValue{"current heating at 20 degrees is missing", X7R, Clear(28, 30), Error, "current-heating",
                    "kI", "0"},
        BrokenValue{"voltage exponent is missing", X7R, Clear(56, 64), Error, "voltage-exponent", "S3", "0"},
        BrokenValue{"voltage exponent is negative", X7R,
                    [](SmallPart& part)
                    {
                        Clear(56, 64)(part);
                        part.Data[Value::VoltageExponent] = -2;
                    },
                    Error, "voltage-exponent", "S3", "-2"},
        BrokenValue{"heating by current is missing", X7R,
                    [](SmallPart& part)
                    {
                        Clear(28, 30)(part);
                        Clear(32, 37)(part);
                    },
                    Warning, "gap", "Data(28) to Data(30)", "0"},
        BrokenValue{"voltage amplitude is missing", X7R, Clear(38, 46), Warning, "gap",
                    "Data(38) to Data(46)", "0"},
        BrokenValue{"frequency exponent is missing", X7R, Clear(47, 55), Warning, "gap",
                    "Data(47) to Data(55)", "0"},
        BrokenValue{"voltage amplitude overflows", X7R, Set(46, 400), Error, "calculation", "", ""},
        BrokenValue{"bias coefficients are missing", X7R, Clear(3, 8), Warning, "gap", "Data(3) to Data(8)",
                    "0"},
        BrokenValue{"temperature coefficients are missing", X7R, Clear(9, 14), Warning, "gap",
                    "Data(9) to Data(14)", "0"},
        BrokenValue{"peaked model is missing", Y5V, Clear(15, 27), Warning, "gap", "Data(15) to Data(27)",
                    "0"},
        BrokenValue{"peak temperature coefficients are missing and the peak is flat", Y5V,
                    [](SmallPart& part)
                    {
                        // A peak at 0 °C that no exponent bends: exp(-0.001·|T|), at most 3 % off 0 below.
                        Clear(15, 25)(part);
                        part.Data[Value::PeakAmplitude] = 100;
                        part.Data[Value::PeakOffset] = -98;
                        part.Data[Value::DecayBelow] = 1e-3F;
                        part.Data[Value::DecayAbove] = 1e-3F;
                        part.Data[Value::ExponentBelow] = 1;
                        part.Data[Value::ExponentAbove] = 1;
                    },
                    Warning, "gap", "Data(17) to Data(19)", "0"},
        BrokenValue{"part has no data", X7R, Clear(3, 65), Warning, "no-data", "", ""},
        BrokenValue{"record is all zero", X7R, Clear(0, 65), Warning, "no-data", "", ""},
        // 1 %/V: the change after the first of 199 steps is above the rounding, whatever the voltage.
        BrokenValue{"capacitance grows under bias", X7R,
                    [](SmallPart& part)
                    {
                        Clear(3, 8)(part);
                        part.Data[Value::RatedVoltage] = 199;
                        part.Data[Value::BiasV] = 1;
                    },
                    Warning, "bias-growth", "", "1"},
        // -1 %/V up to 110 V, and no change by temperature; at three quarters of that it is still above zero.
        BrokenValue{"capacitance falls below zero under bias", X7R,
                    [](SmallPart& part)
                    {
                        Clear(3, 14)(part);
                        part.Data[Value::RatedVoltage] = 110;
                        part.Data[Value::BiasV] = -1;
                        part.Data[Value::TemperatureX] = 1e-9F;
                    },
                    Error, "below-zero", "", "-110"},
        // 0.25 %/°C: -20 % at -55 °C, the first point.
        BrokenValue{"change over temperature is beyond the class", X7R,
                    [](SmallPart& part)
                    {
                        Clear(9, 14)(part);
                        part.Data[Value::TemperatureX] = 0.25F;
                    },
                    Warning, "class-limit", "", "-20"},
        // 0.16 %/°C: above 15 % from 118.75 °C on; the first point there is -55 + 193·180/199 = 119.573 °C.
        BrokenValue{"growth over temperature is beyond the class", X7R,
                    [](SmallPart& part)
                    {
                        Clear(9, 14)(part);
                        part.Data[Value::TemperatureX] = 0.16F;
                    },
                    Warning, "class-limit", "", "15.132"},
        BrokenValue{"peak amplitude alone is missing", Y5V, Clear(15, 16), Warning, "gap", "Data(15)", "0"}),
    RowName<BrokenValue>);

TEST(ValueCheck, FindsABiasBetweenTheQuartersOfTheRatedVoltage)
{
    // 30·u(u - 1)(u - 2)(u - 3)(u - 4) % with u = V/2.5: nothing at the quarters of 10 V, least near 9.11 V.
    SmallPair pair;
    auto& part = pair.Parts[X7R];
    Clear(3, 14)(part);
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::BiasV5] = 0.3072F;
    part.Data[Value::BiasV4] = -7.68F;
    part.Data[Value::BiasV3] = 67.2F;
    part.Data[Value::BiasV2] = -240;
    part.Data[Value::BiasV] = 288;
    part.Data[Value::TemperatureX] = 1e-9F;
    const auto findings = CheckFiles(pair.Index(), pair.Data()).Findings;
    ASSERT_THAT(findings, testing::SizeIs(2));
    EXPECT_EQ(findings[0].Rule, "bias-growth");
    EXPECT_EQ(findings[1].Rule, "below-zero");
    EXPECT_THAT(findings[1].Message, testing::StartsWith("capacitance below zero: change -108."));
    EXPECT_THAT(findings[1].Message, testing::EndsWith(" V and -55 °C"));
}

TEST(ValueCheck, FindsAPeakWhoseExponentHasNoValueThere)
{
    SmallPair pair;
    auto& part = pair.Parts[Y5V];
    // The sweep starts at the peak, -30 °C, where 0 to the power -1 has no value.
    Clear(17, 19)(part);
    part.Data[Value::PeakTemperature] = -30;
    part.Data[Value::ExponentAbove] = -1;
    const auto findings = CheckFiles(pair.Index(), pair.Data()).Findings;
    ASSERT_THAT(findings, testing::SizeIs(1));
    EXPECT_EQ(findings[0].Level, Error);
    EXPECT_EQ(findings[0].Rule, "calculation");
    EXPECT_EQ(findings[0].Message,
              "the capacitance curves cannot be calculated: Invalid procedure call or argument");
}

TEST(ValueCheck, FindsNothingInSoundParts)
{
    const SmallPair pair;
    const auto report = CheckFiles(pair.Index(), pair.Data());
    EXPECT_EQ(report.Parts, 3U);
    EXPECT_EQ(TextOf(report), "3 parts, 0 errors, 0 warnings\n");
}

TEST(ValueCheck, TellsEveryValueThatIsNotFinite)
{
    SmallPair pair;
    pair.Parts[0].Data.fill(NAN);
    EXPECT_EQ(CheckFiles(pair.Index(), pair.Data()).Count(Severity::Error), DataValues);
}

TEST(ValueCheck, LeavesPartsWithOneKindOfDataInPeace)
{
    SmallPair pair;
    Clear(3, 27)(pair.Parts[0]);
    Clear(28, 65)(pair.Parts[1]);
    EXPECT_THAT(CheckFiles(pair.Index(), pair.Data()).Findings, testing::IsEmpty());
}

TEST(ValueCheck, GoesOnBehindABrokenPart)
{
    SmallPair pair;
    pair.Parts[0].Data[Value::RatedVoltage] = 0;
    pair.Parts[2].Data[Value::HeatResistance] = 0;
    const auto report = CheckFiles(pair.Index(), pair.Data());
    ASSERT_THAT(report.Findings, testing::SizeIs(2));
    EXPECT_EQ(report.Findings[0].Record, 1U);
    EXPECT_EQ(report.Findings[1].Record, 3U);
}

struct BrokenSize
{
    std::string Name;
    long BytesAdded;
    Severity Level;
    std::string Rule;
    std::string Message;
};

class BrokenSizeTest : public testing::TestWithParam<BrokenSize>
{
};

TEST_P(BrokenSizeTest, IsTheOnlyFinding)
{
    const auto& row = GetParam();
    const SmallPair pair;
    auto data = pair.Data();
    data.resize(static_cast<std::size_t>(3 * 264 + row.BytesAdded), 'x');

    const auto report = CheckFiles(pair.Index(), data);

    ASSERT_THAT(report.Findings, testing::SizeIs(1)) << TextOf(report);
    EXPECT_EQ(report.Findings[0].Level, row.Level);
    EXPECT_EQ(report.Findings[0].Rule, row.Rule);
    EXPECT_EQ(report.Findings[0].File, "parts.dat");
    EXPECT_EQ(report.Findings[0].Message, row.Message);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, BrokenSizeTest,
    testing::Values(
        BrokenSize{"one byte short", -1, Error, "partial-record", "record 3 is cut short: 263 of 264 bytes"},
        BrokenSize{"one byte of the last record", -263, Error, "partial-record",
                   "record 3 is cut short: 1 of 264 bytes"},
        BrokenSize{"one record short", -264, Error, "short", "no data from record 3 to 3"},
        BrokenSize{"empty", -792, Error, "short", "no data from record 1 to 3"},
        BrokenSize{"one byte too long", 1, Warning, "surplus", "1 bytes behind the data of the last part"},
        BrokenSize{"one record too long", 264, Warning, "surplus",
                   "264 bytes behind the data of the last part"}),
    RowName<BrokenSize>);
} // namespace
