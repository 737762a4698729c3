#include "requests/SortKeys.h"

#include "requests/Names.h"

static TypedKey TypedKeyOf(std::string_view typed, std::span<const std::string_view> names)
{
    const bool downwards = typed.starts_with('-');
    return {IndexOfName(typed.substr(downwards ? 1 : 0), names, "key", "sort"), downwards};
}

std::vector<TypedKey> TypedKeysOf(std::string_view typed, std::span<const std::string_view> names)
{
    std::vector<TypedKey> keys;
    std::size_t comma = typed.find(',');
    for (; comma != std::string_view::npos; comma = typed.find(','))
    {
        keys.push_back(TypedKeyOf(typed.substr(0, comma), names));
        typed.remove_prefix(comma + 1);
    }
    keys.push_back(TypedKeyOf(typed, names));
    return keys;
}
