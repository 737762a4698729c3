/// The rise that is read off a record against that of the current itself, for the records that simulators and
/// oscilloscopes write.

#include "stress/CurrentLoad.h"
#include "tests/stress/Waves.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace
{
struct Row
{
    const char* Name;
    Waveform Record;
    /// What heats, from the current's own lines.
    LoadMoments Known;
    /// The most that the rise may be off, in percent.
    double MostPercent;
    /// The most that the rise may change without every second row, in percent; nothing where that hangs on
    /// which rows stand at a corner.
    std::optional<double> MostStepPercent;
    StretchWishes Wishes = {};
    PowerModel Heating = HeatingOfTenMicrofarads();
};

/// One period by its corners, each line from the exact integral.
LoadMoments Exact(std::vector<WavePoint> corners, double hertz)
{
    corners.push_back({1, corners.front().Amperes});
    for (WavePoint& corner : corners)
    {
        corner.Seconds /= hertz;
    }
    return ExactSpectrumOf(Waveform(std::move(corners))).Moments.Total();
}

LoadMoments ExactTriangle(double hertz)
{
    return Exact({{0, -1}, {0.5, 1}}, hertz);
}

/// Rows at uneven steps, each between 30 and 1000 to a period, and at the corners, where simulators stop.
Waveform UnevenRows(const Shape& shape, double period, std::size_t periods)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> perPeriod(30, 1000);
    std::vector<WavePoint> rows;
    for (std::size_t half = 0; half < 2 * periods; ++half)
    {
        const double from = static_cast<double>(half) * period / 2;
        for (double seconds = from; seconds < from + period / 2; seconds += period / perPeriod(random))
        {
            rows.push_back({seconds, shape(seconds)});
        }
    }
    return Waveform(std::move(rows));
}

/// A wave of 1 A and edges of 20 ns, each of which rings at 23 MHz.
double Ringing(double seconds)
{
    constexpr double hertz = 500e3;
    constexpr double ringHertz = 23e6;
    constexpr double decay = 60e-9;
    static const Shape trapezoid = Trapezoid(hertz);
    const double inPeriod = std::fmod(seconds, 1 / hertz);
    const double sinceEdge = inPeriod - (inPeriod < 0.3 / hertz ? 0 : 0.3 / hertz);
    return trapezoid(seconds) +
           0.1 * std::exp(-sinceEdge / decay) * std::sin(2 * std::numbers::pi * ringHertz * sinceEdge);
}

LoadMoments ExactRinging()
{
    constexpr double rows = 20000;
    std::vector<WavePoint> corners;
    for (double i = 0; i < rows; ++i)
    {
        corners.push_back({i / rows, Ringing(i / rows / 500e3)});
    }
    return Exact(corners, 500e3);
}

/// Corners of one period of `burstHertz` whose first cycles are a triangle, as shares of that period.
std::vector<WavePoint> BurstCorners(double cyclesOn, double cycles)
{
    std::vector<WavePoint> corners;
    for (double i = 0; i < cyclesOn; ++i)
    {
        corners.push_back({i / cycles, 0});
        corners.push_back({(i + 0.25) / cycles, 1});
        corners.push_back({(i + 0.75) / cycles, -1});
    }
    corners.push_back({cyclesOn / cycles, 0});
    return corners;
}

/// What heats of a whole record of few corners, told by the exact integral.
LoadMoments ExactRecord(const Waveform& record)
{
    return ExactSpectrumOf(record).Moments.Total();
}

/// A triangle whose every period is a little longer or shorter.
Waveform WithPeriods(std::size_t periods, const std::function<double(std::size_t i)>& lengthOf)
{
    std::vector<WavePoint> rows = {{0, -1}};
    double from = 0;
    for (std::size_t i = 0; i < periods; ++i)
    {
        const double length = lengthOf(i);
        for (double step = 1; step <= 40; ++step)
        {
            const double share = step / 40;
            rows.push_back({from + share * length, 1 - std::abs(4 * share - 2)});
        }
        from += length;
    }
    return Waveform(std::move(rows));
}

Waveform WithJitter(double share)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> jitter(1 - share, 1 + share);
    return WithPeriods(300, [&](std::size_t) { return 2e-6 * jitter(random); });
}

/// The frequency swings by a share to either side, 10,000 times a second.
Waveform WithSpreadSpectrum(double share)
{
    return WithPeriods(300, [=](std::size_t i)
                       { return 2e-6 / (1 + share * std::sin(2 * std::numbers::pi * double(i) / 50)); });
}

Waveform WithNoise(const Waveform& record, double arms)
{
    std::mt19937 random(7);
    std::normal_distribution<double> noise(0, arms);
    std::vector<WavePoint> rows(record.Points().begin(), record.Points().end());
    for (WavePoint& row : rows)
    {
        row.Amperes += noise(random);
    }
    return Waveform(std::move(rows));
}

Waveform InSteps(const Waveform& record, double step)
{
    std::vector<WavePoint> rows(record.Points().begin(), record.Points().end());
    for (WavePoint& row : rows)
    {
        row.Amperes = std::round(row.Amperes / step) * step;
    }
    return Waveform(std::move(rows));
}

Shape Sum(Shape a, Shape b)
{
    return [=](double seconds) { return a(seconds) + b(seconds); };
}

/// Begins at `amperes` and dies away.
Shape Surge(double amperes, double tau)
{
    return [=](double seconds) { return amperes * std::exp(-seconds / tau); };
}

Shape Scaled(Shape a, double factor)
{
    return [=](double seconds) { return factor * a(seconds); };
}

Shape Times(Shape a, Shape b)
{
    return [=](double seconds) { return a(seconds) * b(seconds); };
}

double PercentOff(const Row& row, const LoadMoments& found, const LoadMoments& known)
{
    return (RiseOf(found, row.Heating) / RiseOf(known, row.Heating) - 1) * 100;
}

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.Name;
}

class RecordedRise : public testing::TestWithParam<Row>
{
};

TEST_P(RecordedRise, IsThatOfTheCurrent)
{
    const auto& row = GetParam();
    const auto load = LoadOfRecord(row.Record, row.Wishes);
    const auto all = load.Lines.Moments.Total();
    EXPECT_NEAR(PercentOff(row, all, row.Known), 0, row.MostPercent);
    if (row.MostStepPercent)
    {
        EXPECT_NEAR(PercentOff(row, load.Record->Thinned, all), 0, *row.MostStepPercent);
    }
}

std::vector<Row> Rows()
{
    return {
        {"Triangle500k", EvenRows(Triangle(500e3), 300 / 500e3, 1 / 500e3 / 200), ExactTriangle(500e3), 0.03,
         0.6},
        {"Triangle12k", EvenRows(Triangle(12e3), 40 / 12e3, 1 / 12e3 / 200), ExactTriangle(12e3), 0.03, 0.6},
        {"Trapezoid500k", Repeated({{0, 0}, {0.01, 1}, {0.3, 1}, {0.31, 0}}, 2e-6, 300),
         Exact(TrapezoidCorners(500e3), 500e3), 0.03, std::nullopt},
        {"Trapezoid65k", Repeated({{0, 0}, {0.0013, 1}, {0.3, 1}, {0.3013, 0}}, 1 / 65e3, 100),
         Exact(TrapezoidCorners(65e3), 65e3), 0.03, std::nullopt},
        {"TriangleUneven", UnevenRows(Triangle(500e3), 2e-6, 100), ExactTriangle(500e3), 0.03, 0.6},
        {"TriangleTenAPeriod", EvenRows(Triangle(500e3), 300 / 500e3, 1 / 500e3 / 10), ExactTriangle(500e3),
         0.45, std::nullopt},
        {"TrapezoidEvenSixtyFour", EvenRows(Trapezoid(500e3), 300 / 500e3, 1 / 500e3 / 64),
         Exact(TrapezoidCorners(500e3), 500e3), 2.7, std::nullopt},
        {"SineTen", EvenRows(Sine(1, 500e3), 300 / 500e3, 1 / 500e3 / 10), MomentsOf({{500e3, 0.5}}), 7.35,
         20.4},
        {"SineTwenty", EvenRows(Sine(1, 500e3), 300 / 500e3, 1 / 500e3 / 20), MomentsOf({{500e3, 0.5}}), 1.8,
         5.25},
        {"SineFifty", EvenRows(Sine(1, 500e3), 300 / 500e3, 1 / 500e3 / 50), MomentsOf({{500e3, 0.5}}), 0.3,
         0.9},
        {"SineTwoHundred", EvenRows(Sine(1, 500e3), 300 / 500e3, 1 / 500e3 / 200), MomentsOf({{500e3, 0.5}}),
         0.03, 0.06},
        {"RingingFifty", EvenRows(Ringing, 300 / 500e3, 1 / 500e3 / 50), ExactRinging(), 2.6, std::nullopt},
        {"RingingTwoHundred", EvenRows(Ringing, 300 / 500e3, 1 / 500e3 / 200), ExactRinging(), 0.45, 0.75},
        {"RingingThousand", EvenRows(Ringing, 300 / 500e3, 1 / 500e3 / 1000), ExactRinging(), 0.045, 0.15},
        {"Bursts5k", EvenRows(Straight(BurstCorners(40, 100), 5e3), 10 / 5e3, 1 / 500e3 / 100),
         Exact(BurstCorners(40, 100), 5e3), 0.23, std::nullopt},
        {"Bursts300Hz",
         EvenRows(Straight(BurstCorners(87, 217), 300), 6 / 300.0, 1 / 65.1e3 / 200),
         Exact(BurstCorners(87, 217), 300),
         0.05,
         0.45,
         {.Period = 1 / 300.0}},
        {"Jitter", WithJitter(0.05), ExactRecord(WithJitter(0.05)), 0.45, 0.6},
        {"SpreadSpectrum", WithSpreadSpectrum(0.06), ExactRecord(WithSpreadSpectrum(0.06)), 0.05, 0.6},
        {"EverySecondDiffers", Repeated({{0, -1}, {0.25, 1}, {0.5, -1}, {0.75, 0.6}}, 4e-6, 150),
         Exact({{0, -1}, {0.25, 1}, {0.5, -1}, {0.75, 0.6}}, 250e3), 0.03, std::nullopt},
        {"TwoThatFit", EvenRows(Sum(Sine(1, 500e3), Sine(1, 180e3)), 1e-3, 5e-9),
         MomentsOf({{500e3, 0.5}, {180e3, 0.5}}), 0.03, 0.6},
        {"TwoThatDoNotFit", EvenRows(Sum(Sine(1, 500e3), Sine(1, 431.7e3)), 1e-3, 5e-9),
         MomentsOf({{500e3, 0.5}, {431.7e3, 0.5}}), 0.23, 0.6},
        {"Noise5", WithNoise(EvenRows(Triangle(500e3), 600e-6, 10e-9), 0.05 * 0.577), ExactTriangle(500e3),
         0.38, 2.6},
        {"Noise30", WithNoise(EvenRows(Triangle(500e3), 600e-6, 10e-9), 0.3 * 0.577), ExactTriangle(500e3),
         7.5, 1.35},
        {"EightBits", InSteps(EvenRows(Triangle(500e3), 600e-6, 10e-9), 2.0 / 200), ExactTriangle(500e3), 0.3,
         0.9},
        {"StartSurge",
         EvenRows(Sum(Scaled(Triangle(500e3), 4), Surge(20, 30e-6)), 400e-6, 10e-9),
         ExactTriangle(500e3).Scaled(4),
         0.3,
         0.6,
         {},
         HeatingOfFortySevenMicrofarads()},
        {"MeanDrifts",
         EvenRows(Sum(Scaled(Triangle(500e3), 4), [](double s) { return 0.5 * s / 400e-6; }), 400e-6, 10e-9),
         ExactTriangle(500e3).Scaled(4), 0.45, 0.6},
        {"AmplitudeDrifts",
         EvenRows(Times(Scaled(Triangle(500e3), 4), [](double s) { return 0.8 + 0.2 * s / 400e-6; }), 400e-6,
                  10e-9),
         ExactTriangle(500e3).Scaled(4), 7.5, 0.6},
    };
}

INSTANTIATE_TEST_SUITE_P(, RecordedRise, testing::ValuesIn(Rows()),
                         [](const auto& info) { return std::string(info.param.Name); });
} // namespace
