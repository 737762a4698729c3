#pragma once

/// What tells a range from a value in what is typed: "10.8..13.2V", "12V±10%".

#include <array>
#include <string_view>

/// Between the ends of a range.
inline constexpr std::string_view EndsSign = "..";
/// Between the middle and the distance of the ends from it.
inline constexpr std::array<std::string_view, 2> SpreadSigns = {"\u00B1", "+-"};

/// True for a text with the sign of a range in it, well formed or not.
bool IsTypedAsRange(std::string_view typed);
