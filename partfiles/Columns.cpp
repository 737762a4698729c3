#include "partfiles/Columns.h"

#include <algorithm>
#include <array>
#include <string>

/// What stands above the names, in the order of the index.
static constexpr std::array<std::string_view, NameFields> NameHeadings = {
    "global part number EIA",   "global part number JIS", "previous part number EIA",
    "previous part number JIS", "size code EIA",          "size code JIS",
    "characteristic EIA",       "characteristic JIS",
};
static_assert(!NameHeadings.back().empty());

static std::string HeadingOf(const ValueName& value)
{
    const std::string name(value.Name);
    return value.Unit.empty() ? name : name + " [" + std::string(value.Unit) + "]";
}

static std::array<std::string, TableColumns> MakeHeadings()
{
    std::array<std::string, TableColumns> headings;
    const auto firstValue = std::ranges::copy(NameHeadings, headings.begin()).out;
    std::ranges::transform(ValueNames, firstValue, HeadingOf);
    return headings;
}

std::string_view ColumnHeading(std::size_t column)
{
    static const auto Headings = MakeHeadings();
    return Headings.at(column);
}
