#include "partfiles/TableWriter.h"

#include "calc/NumberText.h"
#include "partdata/Windows1252.h"
#include "partfiles/Columns.h"

#include <bit>
#include <cmath>
#include <cstdint>

static std::string BitsText(float value)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto bits = std::bit_cast<std::uint32_t>(value);
    std::string text = "0x";
    for (int shift = 28; shift >= 0; shift -= 4)
    {
        text += Digits[(bits >> shift) & 0xFU];
    }
    return text;
}

std::string NumberCell(float value)
{
    if (!std::isfinite(value))
    {
        return BitsText(value);
    }
    return value == 0 && std::signbit(value) ? "-0" : NumberText(value);
}

/// A text, quoted where a reader of tables would take it for something else.
static std::string TextCell(std::string_view text)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    const bool quoted = text.find_first_of(",\"\r\n") != std::string_view::npos ||
                        (!text.empty() && (isBlank(text.front()) || isBlank(text.back())));
    if (!quoted)
    {
        return std::string(text);
    }
    std::string cell = "\"";
    for (const char c : text)
    {
        cell += c == '"' ? "\"\"" : std::string(1, c);
    }
    return cell + '"';
}

std::string TableText(std::span<const PartRecord> parts, std::string_view lineEnd)
{
    std::string text;
    const auto add = [&](std::size_t column, const std::string& cell)
    {
        text += column == 0 ? "" : ",";
        text += cell;
    };
    for (std::size_t column = 0; column < TableColumns; ++column)
    {
        add(column, TextCell(ColumnHeading(column)));
    }
    text += lineEnd;
    for (const auto& part : parts)
    {
        const auto names = NamesOf(part);
        for (std::size_t i = 0; i < NameFields; ++i)
        {
            add(i, TextCell(Utf8FromWindows1252(names[i])));
        }
        for (std::size_t i = 0; i < DataValues; ++i)
        {
            add(NameFields + i, NumberCell(part.Data[i]));
        }
        text += lineEnd;
    }
    return text;
}
