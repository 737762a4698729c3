#pragma once

/// The case sizes of chip capacitors by their two names.

#include <optional>
#include <string_view>

/// The JIS name of a size of this EIA name, and the other way round; nothing for a name that is none.
///
///     JisSizeOf("0201")   // "0603"
std::optional<std::string_view> JisSizeOf(std::string_view eia);
std::optional<std::string_view> EiaSizeOf(std::string_view jis);
