#pragma once

/// Orders of lists as they are typed.

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

/// One key of an order, the first of them the weightiest.
struct TypedKey
{
    /// Which of the names.
    std::size_t Index;
    bool Downwards = false;
};

/// "size,-capacitance": names separated by commas, a hyphen before those that go downwards. Throws
/// RequestError that lists the names.
std::vector<TypedKey> TypedKeysOf(std::string_view typed, std::span<const std::string_view> names);
