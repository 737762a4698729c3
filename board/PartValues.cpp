#include "board/PartValues.h"

#include "calc/NumberText.h"
#include "partdata/Windows1252.h"
#include "requests/Names.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
constexpr std::size_t longestWord = 40;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsLetter(char c)
{
    return LowerCase(c) >= 'a' && LowerCase(c) <= 'z';
}

std::string LowerCased(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), LowerCase);
    return lower;
}

/// The text with "u" for the micro sign and the Greek letter, and a point for a comma between digits.
std::string Plain(std::string_view cell)
{
    std::string text(cell);
    for (const std::string_view micro : {"\u00B5", "\u03BC"})
    {
        for (auto at = text.find(micro); at != std::string::npos; at = text.find(micro))
        {
            text.replace(at, micro.size(), "u");
        }
    }
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
    {
        text[i] = text[i] == ',' && IsDigit(text[i - 1]) && IsDigit(text[i + 1]) ? '.' : text[i];
    }
    return text;
}

/// Words between all that is neither letter, digit nor point; a number and the unit behind it are one.
std::vector<std::string> WordsOf(std::string_view cell)
{
    constexpr std::array<std::string_view, 8> units = {"p", "n", "u", "pf", "nf", "uf", "v", "vdc"};
    std::vector<std::string> words;
    std::string word;
    const auto end = [&]
    {
        const bool isBehindNumber = !words.empty() && std::ranges::all_of(words.back(), [](char c)
                                                                          { return IsDigit(c) || c == '.'; });
        const bool isUnit =
            isBehindNumber && std::ranges::find(units, LowerCased(word)) != std::ranges::end(units);
        isUnit ? static_cast<void>(words.back() += word) : words.push_back(word);
        word.clear();
    };
    for (const char c : Plain(cell) + ' ')
    {
        if (IsDigit(c) || IsLetter(c) || c == '.')
        {
            word += c;
        }
        else if (!word.empty())
        {
            end();
        }
    }
    return words;
}

/// A number with its unit behind it or in the place of its point, "4.7u" or "4u7"; nothing for another word.
std::optional<float> NumberAround(const std::string& word, char unit)
{
    const auto place = word.find(unit);
    const auto before = word.substr(0, std::min(place, word.size()));
    const auto behind = place == std::string::npos ? "" : word.substr(place + 1);
    const bool isNumber = !before.empty() && IsDigit(before.front()) && IsDigit(before.back()) &&
                          std::ranges::all_of(behind, IsDigit) &&
                          (behind.empty() || std::ranges::all_of(before, IsDigit));
    return place != std::string::npos && isNumber ? ReadEntry(behind.empty() ? before : before + '.' + behind)
                                                  : std::nullopt;
}

/// In pF, of "4.7uf" or "4u7".
std::optional<float> CapacitanceOf(std::string word)
{
    struct Prefix
    {
        char Letter;
        double Picofarads;
    };
    word.erase(word.size() - (word.ends_with('f') ? 1 : 0));
    for (const auto& [letter, picofarads] : {Prefix{'p', 1}, Prefix{'n', 1e3}, Prefix{'u', 1e6}})
    {
        if (const auto number = NumberAround(word, letter))
        {
            return static_cast<float>(picofarads * *number);
        }
    }
    return std::nullopt;
}

/// In V, of "25v", "6v3" or "25vdc".
std::optional<float> VoltageOf(std::string word)
{
    word.erase(word.size() - (word.ends_with("dc") ? 2 : 0));
    return NumberAround(word, 'v');
}

bool IsAlike(float one, float other)
{
    constexpr float rounding = 1e-5F;
    return std::abs(one - other) <= rounding * std::abs(one);
}

void Take(std::optional<float>& known, float value, PartValues& values)
{
    values.IsContrary = values.IsContrary || (known && !IsAlike(*known, value));
    known = value;
}

void Take(std::string& known, const std::string& name, PartValues& values)
{
    values.IsContrary = values.IsContrary || (!known.empty() && known != name);
    known = name;
}

std::vector<std::string> NamesOf(const PartTable& parts,
                                 std::array<std::string_view, CodeForms> PartRecord::*names, CodeView view)
{
    std::vector<std::string> known;
    for (const PartRecord& part : parts.PartData)
    {
        const auto name = Utf8FromWindows1252((part.*names)[static_cast<std::size_t>(view)]);
        if (std::ranges::find(known, name) == known.end())
        {
            known.push_back(name);
        }
    }
    return known;
}
} // namespace

PartWords::PartWords(const PartTable& parts, CodeView view)
    : characteristics(NamesOf(parts, &PartRecord::Tcc, view))
    , sizes(NamesOf(parts, &PartRecord::SizeCode, view))
{
}

void PartWords::Read(std::string_view cell, PartValues& values) const
{
    for (const auto& word : WordsOf(cell))
    {
        if (word.size() <= longestWord)
        {
            TakeWord(word, values);
        }
    }
}

void PartWords::TakeWord(const std::string& word, PartValues& values) const
{
    const auto lower = LowerCased(word);
    const auto isWord = [&](const std::string& name) { return LowerCased(name) == lower; };
    const auto characteristic = std::ranges::find_if(characteristics, isWord);
    const auto size = std::ranges::find_if(sizes, isWord);
    if (characteristic != characteristics.end())
    {
        Take(values.Characteristic, *characteristic, values);
    }
    else if (size != sizes.end())
    {
        Take(values.Size, *size, values);
    }
    else if (const auto capacitance = CapacitanceOf(lower))
    {
        Take(values.Capacitance, *capacitance, values);
    }
    else if (const auto voltage = VoltageOf(lower))
    {
        Take(values.RatedVoltage, *voltage, values);
    }
}

const PartRecord* PartOfValues(const PartValues& values, const PartTable& parts, CodeView view)
{
    if (values.IsContrary || !values.Capacitance || !values.RatedVoltage)
    {
        return nullptr;
    }
    const auto code = static_cast<std::size_t>(view);
    const PartRecord* only = nullptr;
    for (const PartRecord& part : parts.PartData)
    {
        const bool isSame = IsAlike(*values.Capacitance, part.Data[Value::NominalCapacitance]) &&
                            IsAlike(*values.RatedVoltage, part.Data[Value::RatedVoltage]) &&
                            Utf8FromWindows1252(part.Tcc[code]) == values.Characteristic &&
                            Utf8FromWindows1252(part.SizeCode[code]) == values.Size;
        if (isSame && only != nullptr)
        {
            return nullptr;
        }
        only = isSame ? &part : only;
    }
    return only;
}
