#include "partfiles/Columns.h"

#include <algorithm>
#include <array>
#include <string>

static std::string HeadingOf(const ValueName& value)
{
    const std::string name(value.Name);
    return value.Unit.empty() ? name : name + " [" + std::string(value.Unit) + "]";
}

static std::array<std::string, TableColumns> MakeHeadings()
{
    std::array<std::string, TableColumns> headings;
    for (std::size_t i = 0; i < NameFields; ++i)
    {
        headings[i] = NameHeading(i);
    }
    std::ranges::transform(ValueNames, headings.begin() + NameFields, HeadingOf);
    return headings;
}

std::string_view ColumnHeading(std::size_t column)
{
    static const auto Headings = MakeHeadings();
    return Headings.at(column);
}
