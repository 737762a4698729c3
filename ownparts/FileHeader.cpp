#include "ownparts/FileHeader.h"

#include "requests/Names.h"
#include "separatedtext/LineCells.h"

#include <algorithm>

static constexpr std::array<std::string_view, static_cast<std::size_t>(HeaderField::Count)> FieldTexts = {
    "part",          "part JIS",        "previous part",    "previous part JIS",
    "size",          "size JIS",        "characteristic",   "capacitance",
    "rated voltage", "heat resistance", "upper temperature"};

static constexpr std::string_view Blanks = " \t";
static constexpr std::string_view BlanksAndSeparators = " \t,;";

static std::string_view WithoutEnds(std::string_view text, std::string_view first, std::string_view last)
{
    text.remove_prefix(std::min(text.find_first_not_of(first), text.size()));
    return text.substr(0, text.find_last_not_of(last) + 1);
}

/// The text of a line behind its "#"; nothing for a line of the table.
static std::optional<std::string_view> HeaderText(std::string_view line)
{
    line = WithoutEnds(line, Blanks, BlanksAndSeparators);
    if (line.starts_with('"') && line.ends_with('"') && line.size() > 1)
    {
        line = line.substr(1, line.size() - 2);
    }
    return line.starts_with('#') ? std::optional(WithoutEnds(line.substr(1), Blanks, Blanks)) : std::nullopt;
}

std::string_view NameOf(HeaderField field)
{
    return FieldTexts.at(static_cast<std::size_t>(field));
}

std::optional<HeaderField> FieldNamed(std::string_view name)
{
    const auto isNamed = [name](std::string_view known)
    { return std::ranges::equal(known, name, {}, LowerCase, LowerCase); };
    const auto* const found = std::ranges::find_if(FieldTexts, isNamed);
    return found == FieldTexts.end() ? std::nullopt
                                     : std::optional(static_cast<HeaderField>(found - FieldTexts.begin()));
}

FileHeader HeaderOf(std::string_view text)
{
    FileHeader header;
    TextLines lines(text);
    for (std::string_view line; lines.Read(line);)
    {
        const auto content = HeaderText(line);
        if (!content && !WithoutEnds(line, Blanks, BlanksAndSeparators).empty())
        {
            header.Table = text.substr(static_cast<std::size_t>(line.data() - text.data()));
            header.HeadingLine = lines.Line();
            return header;
        }
        if (content)
        {
            const auto colon = content->find(':');
            const bool hasValue = colon != std::string_view::npos;
            header.Lines.push_back(
                {lines.Line(), std::string(WithoutEnds(content->substr(0, colon), Blanks, Blanks)),
                 std::string(hasValue ? WithoutEnds(content->substr(colon + 1), Blanks, Blanks)
                                      : std::string_view())});
        }
    }
    header.HeadingLine = lines.Line() + 1;
    return header;
}
