#include "partdata/IndexReader.h"

#include "partdata/RunTimeError.h"

#include <algorithm>
#include <utility>

static bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

static bool IsLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

static bool EndsField(char c)
{
    // Nearly all characters of a part name are above the comma, so one comparison settles most of them.
    return c <= ',' && (c == ',' || IsLineEnd(c));
}

IndexReader::IndexReader(std::string_view indexText, std::string name)
    : start(indexText.data())
    , fileName(std::move(name))
{
    if (indexText.starts_with("\xEF\xBB\xBF"))
    {
        indexText.remove_prefix(3);
    }
    if (indexText.ends_with('\x1A'))
    {
        indexText.remove_suffix(1);
    }
    next = indexText.data();
    end = next + indexText.size();
}

bool IndexReader::FindRecord()
{
    next = std::find_if(next, end, [](char c) { return !IsBlank(c) && !IsLineEnd(c); });
    return next != end;
}

void IndexReader::ReadRecord(PartRecord& part)
{
    part.PartNum = {ReadField(1), ReadField(2), ReadField(3), ReadField(4)};
    part.SizeCode = {ReadField(5), ReadField(6)};
    part.Tcc = {ReadField(7), ReadField(8)};
    ++recordCount;
}

std::string_view IndexReader::ReadField(std::size_t field)
{
    SkipBlanks();
    if (next == end)
    {
        FailAt(field);
    }
    const auto text = *next == '"' ? ReadQuoted(field) : ReadUnquoted();
    SkipSeparator();
    return text;
}

std::string_view IndexReader::ReadQuoted(std::size_t field)
{
    const auto* const first = next + 1;
    const auto* const last = std::find(first, end, '"');
    if (last == end)
    {
        FailAt(field);
    }
    next = last + 1;
    SkipBlanks();
    return {first, last};
}

std::string_view IndexReader::ReadUnquoted()
{
    const auto* const first = next;
    next = std::find_if(next, end, EndsField);
    const auto* last = next;
    while (last != first && IsBlank(last[-1]))
    {
        --last;
    }
    return {first, last};
}

void IndexReader::SkipBlanks()
{
    while (next != end && IsBlank(*next))
    {
        ++next;
    }
}

/// Goes past one comma or one line end, where there is one.
void IndexReader::SkipSeparator()
{
    if (next == end || !EndsField(*next))
    {
        return;
    }
    const char separator = *next++;
    if (separator == '\r' && next != end && *next == '\n')
    {
        ++next;
    }
}

void IndexReader::FailAt(std::size_t field) const
{
    throw RunTimeError(RunTimeErrorNumber::InputPastEndOfFile)
        .At(PlaceInFile{.File = fileName,
                        .Record = recordCount + 1,
                        .Field = field,
                        .Offset = static_cast<std::uintmax_t>(next - start)});
}
