/// Records of currents as a simulator writes them, beside a bare reader that turns the same text into numbers
/// and asks nothing of them.

#include "bench/Turns.h"
#include "stress/CurrentLoad.h"
#include "stress/WaveformTable.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{
constexpr double hertz = 500e3;
constexpr double rowsAPeriod = 155;

/// A trapezoid of 1 A.
double Current(std::size_t row)
{
    const double turns = static_cast<double>(row) / rowsAPeriod;
    const double phase = turns - std::floor(turns);
    return std::fmin(1, std::fmax(0, std::fmin(phase, 0.31 - phase) / 0.01));
}

/// So many rows of the time and as many columns more, each a share of the current.
std::string Record(std::size_t rows, int columns)
{
    std::string text = "time";
    for (int column = 1; column <= columns; ++column)
    {
        text += " i(c" + std::to_string(column) + ")";
    }
    text += '\n';
    const auto add = [&](double value)
    {
        char number[32];
        text.append(number, static_cast<std::size_t>(std::snprintf(number, sizeof number, " %.8e ", value)));
    };
    for (std::size_t row = 0; row < rows; ++row)
    {
        add(static_cast<double>(row) / rowsAPeriod / hertz);
        for (int column = 1; column <= columns; ++column)
        {
            add(Current(row) / column);
        }
        text += '\n';
    }
    return text;
}

std::vector<double> BareNumbers(const std::string& text)
{
    std::vector<double> numbers;
    const char* at = text.data() + text.find('\n');
    const char* const end = text.data() + text.size();
    while (at < end)
    {
        double number = 0;
        const auto read = std::from_chars(at, end, number);
        if (read.ec == std::errc())
        {
            numbers.push_back(number);
        }
        at = read.ec == std::errc() ? read.ptr : at + 1;
    }
    return numbers;
}

/// Ends the benchmark where what was timed was not done.
void Require(bool isDone)
{
    if (!isDone)
    {
        std::fputs("waveform_bench: a record was not read whole\n", stderr);
        std::exit(1);
    }
}

double TimeOfBare(const std::string& text, std::size_t numbers)
{
    return MicrosecondsOf([&] { Require(BareNumbers(text).size() == numbers); });
}

void CompareReading()
{
    constexpr std::size_t rows = 116'000;
    constexpr int columns = 4;
    const auto text = Record(rows, columns);
    const auto ours = [&](int)
    {
        auto copy = text;
        return MicrosecondsOf([&] { Require(ReadWaveforms(std::move(copy)).Seconds.size() == rows); });
    };
    CompareInTurns("waveform-read", 7, ours, [&](int) { return TimeOfBare(text, rows * (columns + 1)); });
}

void CompareAnswering()
{
    constexpr std::size_t rows = 1'000'000;
    const auto text = Record(rows, 1);
    const auto answer = [](std::string read)
    {
        const auto table = ReadWaveforms(std::move(read));
        const auto load = LoadOfRecord(table.WaveformOf(table.Columns.front()), {});
        Require(load.Record->Counted.Share() > 0.99);
    };
    const auto ours = [&](int)
    {
        auto copy = text;
        return MicrosecondsOf([&] { answer(std::move(copy)); });
    };
    CompareInTurns("waveform-answer", 7, ours, [&](int) { return TimeOfBare(text, rows * 2); });
}
} // namespace

int main()
{
    CompareReading();
    CompareAnswering();
    return 0;
}
