#include "tests/e2e/mutated/Accidents.h"

#include <array>

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();)
    {
        const auto end = std::min(text.size(), text.find('\n', at)) + 1;
        lines.push_back(text.substr(at, end - at));
        at = end;
    }
    return lines;
}

static std::string TextOf(const std::vector<std::string>& lines)
{
    std::string text;
    for (const auto& line : lines)
    {
        text += line;
    }
    return text;
}

void Accidents::InsertMark(std::string& text)
{
    static constexpr std::array<const char*, 8> marks = {"\"", ",", "\n", "\r", " ", "\x1A", "\t", "\"\""};
    text.insert(Place(text), marks[Lot(marks.size())]);
}

void Accidents::LoseMark(std::string& text)
{
    const auto at = text.find_first_of("\",\r\n", Place(text));
    if (at != std::string::npos)
    {
        text.erase(at, 1);
    }
}

void Accidents::OtherLineEnds(std::string& text)
{
    static constexpr std::array<const char*, 5> ends = {"\n", "\r", "\n\r", "\r\n\r\n", ","};
    const std::string end = ends[Lot(ends.size())];
    std::string other;
    for (const char c : text)
    {
        other += c == '\n' ? end : c == '\r' ? std::string() : std::string(1, c);
    }
    text = other;
}

void Accidents::LongField(std::string& text)
{
    static constexpr std::array<std::size_t, 5> lengths = {80, 300, 2000, 30000, 300000};
    const auto place = text.find_first_not_of("\r\n,\"", Place(text));
    const auto length = lengths[Lot(lengths.size())];
    std::string field(length, static_cast<char>('A' + Lot(26)));
    for (std::size_t i = 0; i < length && Lot(2) == 0; i += 1 + Lot(9))
    {
        field[i] = ' ';
    }
    text.insert(std::min(place, text.size()), field);
}

void Accidents::SwapLines(std::string& text)
{
    auto lines = LinesOf(text);
    if (!lines.empty())
    {
        std::swap(lines[Lot(lines.size())], lines[Lot(lines.size())]);
        text = TextOf(lines);
    }
}

void Accidents::DropLine(std::string& text)
{
    auto lines = LinesOf(text);
    if (!lines.empty())
    {
        lines[Lot(lines.size())].clear();
        text = TextOf(lines);
    }
}

void Accidents::DoubleLine(std::string& text)
{
    auto lines = LinesOf(text);
    if (!lines.empty())
    {
        lines.push_back(lines[Lot(lines.size())]);
        text = TextOf(lines);
    }
}

void Accidents::OtherCase(std::string& text)
{
    const auto at = Place(text);
    const auto length = Length(text.size() - at);
    std::transform(text.begin() + static_cast<std::ptrdiff_t>(at),
                   text.begin() + static_cast<std::ptrdiff_t>(at + length),
                   text.begin() + static_cast<std::ptrdiff_t>(at),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c; });
}

void Accidents::HighCharacters(std::string& text)
{
    for (auto left = 1 + Lot(40); left > 0 && !text.empty(); --left)
    {
        const auto at = text.find_first_not_of("\r\n,\"", Lot(text.size()));
        if (at != std::string::npos)
        {
            text[at] = static_cast<char>(0x80 + Lot(0x80));
        }
    }
}

void Accidents::ForeignEnds(std::string& text)
{
    static constexpr std::array<const char*, 5> starts = {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xEF\xBB",
                                                          "\r\n \t"};
    static constexpr std::array<const char*, 6> ends = {"", "\x1A", "\x1A\x1A", "\r\n\x1A", " \t \r\n", "\""};
    text = starts[Lot(starts.size())] + text + ends[Lot(ends.size())];
}

void Accidents::TwoBytesACharacter(std::string& text)
{
    std::string wide;
    for (const char c : text)
    {
        wide += c;
        wide += '\0';
    }
    text = wide;
}
