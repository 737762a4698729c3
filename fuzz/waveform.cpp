/// A waveform as a simulator or an oscilloscope writes it, and what is found in it: told why not, or a
/// current whose figures are numbers.

#include "fuzz/Allocations.h"
#include "fuzz/Require.h"
#include "stress/CurrentLoad.h"
#include "stress/WaveformError.h"
#include "stress/WaveformTable.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

static void RequireOneLine(const WaveformError& error)
{
    const std::string message = error.what();
    Require(!message.empty(), "a fault is told");
    Require(message.find('\n') == std::string::npos, "a fault is told on one line");
}

static void RequireRows(const WaveformTable& table)
{
    Require(table.Seconds.size() >= 8, "a table has rows");
    Require(std::ranges::is_sorted(table.Seconds), "time never falls");
    for (const WaveColumn& column : table.Columns)
    {
        Require(column.Values.size() == table.Seconds.size(), "each row has a value");
        Require(std::ranges::all_of(column.Values, [](double value) { return std::isfinite(value); }),
                "a value is a number");
        Require(!column.Name.empty(), "a column has a name");
    }
}

/// The lines of a long record are many, whatever its rows: they would leave the reader few executions.
static bool HasFewLines(const WaveformTable& table)
{
    constexpr double shortRecord = 100e-6;
    return table.Seconds.back() - table.Seconds.front() <= shortRecord;
}

static void RequireLoad(const WaveformTable& table)
{
    const auto current = table.WaveformOf(table.Columns.front());
    const auto load = LoadOfRecord(current, {.IsWhole = true});
    const auto moments = load.Lines.Moments.Total();
    Require(std::isfinite(load.Arms()) && load.Arms() > 0, "a current that changes has an r.m.s. value");
    Require(!(moments.Square < 0), "a square is not negative");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    ForgetAllocations();
    try
    {
        const auto table = ReadWaveforms(text);
        Require(LargestAllocation() <= 65536 + 64 * text.size(), "memory is in proportion to the text");
        RequireRows(table);
        if (HasFewLines(table))
        {
            RequireLoad(table);
        }
    }
    catch (const WaveformError& error)
    {
        RequireOneLine(error);
    }
    return 0;
}
