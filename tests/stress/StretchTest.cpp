#include "stress/Stretch.h"

#include "stress/WaveformError.h"
#include "tests/stress/Waves.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace
{
using testing::HasSubstr;

std::string RefusalOf(const Waveform& record, const StretchWishes& wishes = {})
{
    try
    {
        StretchOf(record, wishes);
    }
    catch (const WaveformError& error)
    {
        return error.what();
    }
    return "";
}

/// A triangle of 500 kHz over 400 µs, read off every 20 ns.
Waveform Record(const Shape& shape)
{
    return EvenRows(shape, 400e-6, 20e-9);
}

Shape WithStepAt(double seconds)
{
    return [=, wave = Triangle(500e3)](double t) { return (t < seconds ? 1 : 2) * wave(t); };
}

/// Bursts of 65.1 kHz, two of five cycles of 300 Hz.
double Bursts(double seconds)
{
    const double inPeriod = std::fmod(seconds, 1 / 300.0);
    return inPeriod < 87 / 65.1e3 ? Sine(1, 65.1e3)(inPeriod) : 0;
}

double LineAndSwitching(double seconds)
{
    return Sine(1.18, 100)(seconds) + Sine(1, 65e3)(seconds);
}

TEST(StretchOf, CountsAllPeriodsOfACurrentThatRepeats)
{
    const auto stretch = StretchOf(Record(Triangle(500e3)), {});
    EXPECT_EQ(stretch.Periods, 200U);
    EXPECT_NEAR(stretch.Period, 2e-6, 2e-13);
    EXPECT_EQ(stretch.Alike, Likeness::Repeats);
    EXPECT_LT(stretch.Repeat, 1e-4);
}

TEST(StretchOf, TakesNoCycleOfABurstForThePeriod)
{
    const auto bursts = [wave = Triangle(500e3)](double t)
    { return std::fmod(t, 200e-6) < 80e-6 ? wave(t) : 0; };
    const auto stretch = StretchOf(EvenRows(bursts, 2e-3, 20e-9), {});
    EXPECT_NEAR(stretch.Period, 200e-6, 1e-9);
    EXPECT_EQ(stretch.Periods, 10U);
}

TEST(StretchOf, EndsWhereThePeriodsDiffer)
{
    const auto stretch = StretchOf(Record(WithStepAt(300e-6)), {});
    EXPECT_EQ(stretch.Periods, 50U);
    EXPECT_NEAR(stretch.Span.From, 300e-6, 1e-9);
}

TEST(StretchOf, RefusesALoadStepLateInTheRecord)
{
    EXPECT_THAT(RefusalOf(Record(WithStepAt(0.9 * 400e-6))),
                HasSubstr("is not settled: only the last 20 of 200"));
    EXPECT_EQ(RefusalOf(Record(WithStepAt(0.9 * 400e-6)), {.From = 360e-6}), "");
    EXPECT_EQ(RefusalOf(Record(WithStepAt(0.9 * 400e-6)), {.To = 360e-6}), "");
}

TEST(StretchOf, RefusesACurrentThatIsStillStarting)
{
    const auto starting = [wave = Triangle(500e3)](double t)
    { return 4 * wave(t) * (1 - std::exp(-t / 100e-6)) + 20 * std::exp(-t / 100e-6); };
    EXPECT_THAT(RefusalOf(Record(starting)), HasSubstr("is not settled"));
}

TEST(StretchOf, RefusesBurstsThatTheRecordHoldsTooFewOf)
{
    EXPECT_NE(RefusalOf(EvenRows(Bursts, 5e-3, 100e-9)), "");
    EXPECT_EQ(RefusalOf(EvenRows(Bursts, 5e-3, 100e-9), {.Period = 1 / 300.0}), "");
}

TEST(StretchOf, RefusesALineFrequencyUnderTheSwitching)
{
    EXPECT_THAT(RefusalOf(EvenRows(LineAndSwitching, 25e-3, 0.25e-6)), HasSubstr("is not settled"));
    EXPECT_EQ(StretchOf(EvenRows(LineAndSwitching, 25e-3, 0.25e-6), {.Period = 0.01}).Periods, 2U);
}

TEST(StretchOf, TakesWhatHeatsEvenlyWithoutRepeating)
{
    std::mt19937 random(3);
    std::normal_distribution<double> noise(0, 1);
    std::vector<WavePoint> rows;
    for (int i = 0; i < 40000; ++i)
    {
        rows.push_back({i * 10e-9, noise(random)});
    }
    EXPECT_EQ(StretchOf(Waveform(rows), {}).Alike, Likeness::HeatsAlike);
}

TEST(StretchOf, TakesThePeriodThatIsGiven)
{
    const auto stretch = StretchOf(Record(Triangle(500e3)), {.Period = 4e-6});
    EXPECT_EQ(stretch.Periods, 100U);
    EXPECT_DOUBLE_EQ(stretch.Period, 4e-6);
}

TEST(StretchOf, CountsTheLastPeriodAloneWhereNoneIsAlike)
{
    const auto growing = [wave = Triangle(500e3)](double t) { return wave(t) * std::exp(t / 20e-6); };
    const auto stretch = StretchOf(Record(growing), {.Period = 2e-6});
    EXPECT_EQ(stretch.Periods, 1U);
    EXPECT_EQ(stretch.Alike, Likeness::Repeats);
    EXPECT_FALSE(stretch.IsCountAsked);
    EXPECT_TRUE(StretchOf(Record(growing), {.Period = 2e-6, .Periods = 1}).IsCountAsked);
}

TEST(StretchOf, TakesTheLastPeriodsThatAreAskedFor)
{
    const auto stretch = StretchOf(Record(Triangle(500e3)), {.Periods = 7});
    EXPECT_EQ(stretch.Periods, 7U);
    EXPECT_NEAR(stretch.Span.Length(), 14e-6, 1e-12);
    EXPECT_DOUBLE_EQ(stretch.Span.To, 400e-6);
}

TEST(StretchOf, TakesAllForOnePeriodWhereAskedTo)
{
    const auto stretch = StretchOf(Record(Triangle(500e3)), {.From = 10e-6, .To = 12e-6, .IsWhole = true});
    EXPECT_EQ(stretch.Periods, 1U);
    EXPECT_NEAR(stretch.Period, 2e-6, 1e-15);
    EXPECT_EQ(stretch.Alike, Likeness::AsAsked);
}

TEST(StretchOf, RefusesWhatTheRecordCannotMeet)
{
    const auto record = Record(Triangle(500e3));
    EXPECT_THAT(RefusalOf(record, {.From = 500e-6}), HasSubstr("the record runs from 0 s to 400 us"));
    EXPECT_THAT(RefusalOf(record, {.To = -1e-6}), HasSubstr("there is nothing to look at"));
    EXPECT_THAT(RefusalOf(record, {.From = 300e-6, .To = 100e-6}),
                HasSubstr("from 300 us to 100 us there is nothing to look at"));
    EXPECT_THAT(RefusalOf(record, {.Period = 1e-3}), HasSubstr("a period of 1 ms is longer than the record"));
    EXPECT_THAT(RefusalOf(record, {.Periods = 201}), HasSubstr("less than 201 periods"));
    EXPECT_THAT(RefusalOf(Record([](double) { return 2.0; })), HasSubstr("does not change"));
    EXPECT_THAT(RefusalOf(record, {.From = 397e-6}), HasSubstr("no two periods"));
    EXPECT_THAT(RefusalOf(EvenRows(Triangle(20e3), 1.2, 5e-6), {.IsWhole = true}),
                HasSubstr("too long: at most 1 s"));
}
} // namespace
