#include "stress/WaveformTable.h"

#include "separatedtext/DecimalNumber.h"
#include "separatedtext/Encoding.h"
#include "separatedtext/LineCells.h"
#include "separatedtext/Separator.h"
#include "stress/WaveHeading.h"
#include "stress/WaveformError.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr std::size_t fewestRows = 8;
/// The square of what is larger, times a frequency, would fit no single.
constexpr double largestValue = 1e12;
/// In s; nothing that is recorded is shorter.
constexpr double shortestRecord = 1e-12;

using Cells = std::vector<std::string_view>;

[[noreturn]] void FailAt(std::size_t line, const std::string& what)
{
    throw WaveformError("line " + std::to_string(line) + ": " + what);
}

/// A text of ours within a message, on one line and not too long.
std::string Quoted(std::string_view text)
{
    constexpr std::size_t most = 40;
    return '"' + std::string(text.substr(0, most)) + (text.size() > most ? "..." : "") + '"';
}

bool IsIndex(std::string_view cell)
{
    return cell == "Index" || cell == "index";
}

bool IsRule(std::string_view line)
{
    return line.find_first_not_of("- \t") == std::string_view::npos;
}

/// The cells of a line; a separator at its end begins none.
void TakeCells(std::string_view line, char separator, Cells& cells)
{
    SplitLine(line, separator, cells);
    if (cells.size() > 1 && cells.back().empty())
    {
        cells.pop_back();
    }
}

bool AreNumbers(const Cells& cells, bool takesComma)
{
    return cells.size() > 1 &&
           std::ranges::all_of(cells, [=](auto cell) { return DecimalIn(cell, takesComma).has_value(); });
}

/// Rows of numbers under one heading.
struct Block
{
    std::vector<std::string> Headings;
    char Separator = ' ';
    bool HasIndex = false;
    std::vector<std::vector<double>> Columns;

    std::size_t Rows() const { return Columns.front().size(); }
    const std::vector<double>& Times() const { return Columns[HasIndex ? 1 : 0]; }
};

/// Takes the lines of a text apart into blocks.
class BlockReader
{
public:
    BlockReader(std::string_view utf8, const std::function<void()>& betweenLines)
        : lines(utf8)
        , pause(betweenLines)
    {
    }

    std::vector<Block> Read()
    {
        for (std::string_view line; lines.Read(line);)
        {
            Pause();
            line.remove_prefix(line.starts_with('\f') ? 1 : 0);
            if (!IsRule(line) && !(inRows && TakeRow(line)))
            {
                TakeText(line);
            }
        }
        return std::move(blocks);
    }

private:
    /// Gives way to the caller every so many lines.
    void Pause()
    {
        constexpr std::size_t seldom = 4096;
        if (pause && ++linesRead % seldom == 0)
        {
            pause();
        }
    }

    /// A further row of the block at hand; false for a line that may stand between rows.
    bool TakeRow(std::string_view line)
    {
        Block& block = blocks.back();
        TakeCells(line, block.Separator, cells);
        const bool takesComma = TakesDecimalComma(block.Separator);
        const auto first = cells.empty() ? std::nullopt : DecimalIn(cells.front(), takesComma);
        if (!first && (block.HasIndex || IsBetweenRows(line)))
        {
            return false;
        }
        if (cells.size() != block.Columns.size())
        {
            FailAt(lines.Line(), std::to_string(cells.size()) + " cells, where the lines before have " +
                                     std::to_string(block.Columns.size()));
        }
        for (std::size_t i = 0; i < cells.size(); ++i)
        {
            const auto value = DecimalIn(cells[i], takesComma);
            if (!value || std::abs(*value) > largestValue)
            {
                FailAt(lines.Line(), Quoted(cells[i]) + (value ? " is too large" : " is no finite number"));
            }
            block.Columns[i].push_back(*value);
        }
        CheckTimes(block);
        return true;
    }

    /// Throws for what tells of another run.
    bool IsBetweenRows(std::string_view line) const
    {
        if (line.starts_with("Step Information"))
        {
            FailAt(lines.Line(), "a second run begins; export one run");
        }
        return line == heading;
    }

    void CheckTimes(const Block& block) const
    {
        const auto& times = block.Times();
        if (times.size() > 1 && times.back() < times[times.size() - 2])
        {
            FailAt(lines.Line(), "the time falls, so a second run begins; export one run");
        }
        if (times.size() > MostWaveformRows)
        {
            throw WaveformError("there are more than " + std::to_string(MostWaveformRows) + " rows");
        }
    }

    /// A line that is no row of the block at hand: a heading, the first row of a block, or what comes before.
    void TakeText(std::string_view line)
    {
        const char separator = SeparatorOf(line);
        TakeCells(line, separator, cells);
        if (AreNumbers(cells, TakesDecimalComma(separator)))
        {
            BeginBlock(separator);
            TakeRow(line);
            return;
        }
        // A page repeats its heading; another one that begins so heads further columns.
        const bool endsBlock = inRows && !cells.empty() && IsIndex(cells.front()) && line != heading;
        inRows = inRows && !endsBlock;
        if (!inRows)
        {
            lineBefore = heading;
            heading = line;
        }
    }

    void BeginBlock(char separator)
    {
        const auto count = cells.size();
        auto names = HeadingsOf(heading);
        const bool areUnits = std::ranges::all_of(
            names, [](const auto& name) { return UnitInHeading(name) && WithoutUnit(name).empty(); });
        if (const auto before = HeadingsOf(lineBefore); areUnits && before.size() == names.size())
        {
            // A line of units under the names.
            std::ranges::transform(before, names, names.begin(),
                                   [](const auto& name, const auto& unit)
                                   { return name + " [" + unit.substr(1, unit.size() - 2) + ']'; });
        }
        names.resize(names.size() == count ? count : 0);
        const bool hasIndex = !names.empty() && count > 2 && IsIndex(names.front());
        blocks.push_back({std::move(names), separator, hasIndex, std::vector<std::vector<double>>(count)});
        inRows = true;
    }

    static std::vector<std::string> HeadingsOf(std::string_view line)
    {
        Cells names;
        TakeCells(line, SeparatorOf(line), names);
        return {names.begin(), names.end()};
    }

    TextLines lines;
    const std::function<void()>& pause;
    std::size_t linesRead = 0;
    Cells cells;
    std::string_view heading;
    std::string_view lineBefore;
    bool inRows = false;
    std::vector<Block> blocks;
};

double ScaleOf(const std::optional<WaveUnit>& unit)
{
    return unit ? unit->Scale : 1;
}

void Scale(std::vector<double>& values, double factor)
{
    if (factor != 1)
    {
        std::ranges::for_each(values, [=](double& value) { value *= factor; });
    }
}

/// Adds the columns of a block, whose time is that of the table.
void AddColumns(WaveformTable& table, Block& block, std::size_t& number)
{
    const std::size_t first = block.HasIndex ? 2 : 1;
    for (std::size_t i = first; i < block.Columns.size(); ++i)
    {
        ++number;
        auto& values = block.Columns[i];
        if (values == block.Times())
        {
            continue;
        }
        const auto heading = block.Headings.empty() ? std::string() : block.Headings[i];
        const auto unit = UnitInHeading(heading);
        Scale(values, ScaleOf(unit));
        table.Columns.push_back({.Name = heading.empty() ? std::to_string(number) : heading,
                                 .Number = number,
                                 .Unit = unit ? unit->Name : "",
                                 .Values = std::move(values)});
    }
}

void CheckBlocks(const std::vector<Block>& blocks)
{
    if (blocks.empty())
    {
        throw WaveformError("there are no rows of numbers, of which the first is the time");
    }
    if (blocks.front().Rows() < fewestRows)
    {
        throw WaveformError("there are only " + std::to_string(blocks.front().Rows()) + " rows; at least " +
                            std::to_string(fewestRows) + " are wanted");
    }
    for (const Block& block : blocks)
    {
        if (block.Times() != blocks.front().Times())
        {
            throw WaveformError("the blocks of columns have different times; export one run");
        }
    }
}

/// Throws for what simulators keep for themselves.
void CheckText(std::string_view text)
{
    constexpr std::string_view toldBy = ": export the waveform as text";
    if (text.starts_with("Title:"))
    {
        throw WaveformError("is a raw file" + std::string(toldBy));
    }
    if (text.find('\0') != std::string_view::npos)
    {
        throw WaveformError("is a binary file" + std::string(toldBy));
    }
}
} // namespace

void RefuseTooLarge(std::uintmax_t bytes)
{
    if (bytes > MostWaveformBytes)
    {
        throw WaveformError("is larger than 1 GiB: export fewer columns, a shorter time or coarser steps");
    }
}

WaveformTable ReadWaveforms(std::string bytes, const std::function<void()>& betweenLines)
{
    RefuseTooLarge(bytes.size());
    const auto text = Utf8Of(std::move(bytes));
    CheckText(text);
    auto blocks = BlockReader(text, betweenLines).Read();
    CheckBlocks(blocks);
    const Block& first = blocks.front();
    WaveformTable table{.Seconds = first.Times(), .Columns = {}};
    const auto timeHeading = first.Headings.empty() ? std::string() : first.Headings[first.HasIndex ? 1 : 0];
    std::size_t number = 1;
    for (Block& block : blocks)
    {
        AddColumns(table, block, number);
    }
    Scale(table.Seconds, ScaleOf(UnitInHeading(timeHeading)));
    if (table.Columns.empty())
    {
        throw WaveformError("there is no column besides the time");
    }
    if (!(table.Seconds.back() - table.Seconds.front() > shortestRecord))
    {
        throw WaveformError("the time does not go by");
    }
    return table;
}
