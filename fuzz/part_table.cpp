/// A table of parts, as "data build" takes it: faults told by line and column, or a pair of part files that
/// reads back to the very same parts.

#include "fuzz/Allocations.h"
#include "fuzz/Require.h"
#include "partdata/DataReader.h"
#include "partdata/IndexReader.h"
#include "partdata/KeyedCollection.h"
#include "partdata/RunTimeError.h"
#include "partfiles/Columns.h"
#include "partfiles/TablePair.h"
#include "partfiles/TableWriter.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

/// The line of headings, as "data export" writes it.
static const std::string& Headings()
{
    static const std::string line = TableText({}, "\n");
    return line;
}

static bool IsHeading(std::string_view text)
{
    for (std::size_t column = 0; column < TableColumns; ++column)
    {
        if (ColumnHeading(column) == text)
        {
            return true;
        }
    }
    return false;
}

static void RequireErrors(const TableContents& table, std::string_view text)
{
    const auto breaks = [&](char c) { return static_cast<std::size_t>(std::ranges::count(text, c)); };
    const auto lines = breaks('\n') + breaks('\r') + 1;
    for (const auto& error : table.Errors)
    {
        Require(error.Line >= 1 && error.Line <= lines, "a fault stands in a line of the table");
        Require(error.Column.empty() || IsHeading(error.Column), "a fault stands in a column of the table");
        Require(!error.Message.empty(), "a fault is told");
        const auto told = LineOf(error, "parts.csv");
        Require(told.starts_with("parts.csv: line " + std::to_string(error.Line) + ": "),
                "a message names file and line");
        Require(std::ranges::none_of(told, [](unsigned char c) { return c < ' ' || c == 0x7F; }),
                "a message is one line");
    }
}

/// The parts of both files; their names are views into the index.
static std::vector<PartRecord> PartsOf(const PairBytes& pair)
{
    std::vector<PartRecord> parts;
    IndexReader reader(pair.Index, "parts.idx");
    while (reader.FindRecord())
    {
        reader.ReadRecord(parts.emplace_back());
    }
    Require(pair.Data.size() == parts.size() * DataRecordBytes, "there is a data record for each part");
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        for (std::size_t value = 0; value < DataValues; ++value)
        {
            std::uint32_t bits = 0;
            for (std::size_t byte = 4; byte-- > 0;)
            {
                bits =
                    bits << 8 | static_cast<unsigned char>(pair.Data[i * DataRecordBytes + 4 * value + byte]);
            }
            std::memcpy(&parts[i].Data[value], &bits, sizeof bits);
        }
    }
    return parts;
}

static void RequireSameParts(const std::vector<TablePart>& table, const std::vector<PartRecord>& parts)
{
    Require(table.size() == parts.size(), "a line of the table is a part");
    std::array<KeyedCollection<std::int16_t>, PartNumForms> index;
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        Require(std::ranges::equal(NamesOf(parts[i]), table[i].Names), "the names read back");
        Require(std::memcmp(parts[i].Data.data(), table[i].Data.data(), DataRecordBytes) == 0,
                "the values read back");
        for (std::size_t form = 0; form < PartNumForms; ++form)
        {
            Require(index[form].Add(static_cast<std::int16_t>(i), parts[i].PartNum[form]),
                    "each number is new, so that the pair can be loaded");
        }
    }
}

static void RequirePair(const TableContents& table)
{
    PairBytes pair;
    try
    {
        pair = PairOf(table);
    }
    catch (const RunTimeError& error)
    {
        const bool marked = table.Parts.front().Names[0].starts_with("\xEF\xBB\xBF");
        Require(error.Number() == 5 && marked, "only a name like a byte-order mark cannot be held");
        return;
    }
    const auto parts = PartsOf(pair);
    RequireSameParts(table.Parts, parts);
    const auto exported = ReadTable(TableText(parts, table.LineEnd));
    Require(exported.Errors.empty(), "an exported table has no fault");
    Require(exported.LineEnd == table.LineEnd, "the line ends stay");
    RequireSameParts(exported.Parts, parts);
}

/// The first character tells whether the line of headings stands in the input ('h') or before it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
    if (data[0] != 'h')
    {
        text.insert(0, Headings());
    }
    ForgetAllocations();
    const auto table = ReadTable(text);
    Require(LargestAllocation() <= 65536 + 64 * text.size(), "memory is in proportion to the table");
    Require(table.LineEnd == "\n" || table.LineEnd == "\r\n", "a line ends in LF or CRLF");
    RequireErrors(table, text);
    if (table.Errors.empty())
    {
        RequirePair(table);
    }
    return 0;
}
