#pragma once

/// The unit texts behind axis and parameter names.

#include <string>
#include <string_view>

/// The degree sign of charts, panes and pages.
inline constexpr std::string_view defaultDegreeSign = "\u00B0";

/// Unit text that follows an axis or parameter name in titles and tables: "Current" has "[Arms]". The degree
/// sign stands in the unit of temperatures; an empty one makes it the plain "[C]" of data files and messages.
///
/// Throws RunTimeError 5 that tells the name when no quantity is called so.
std::string GetUnit(std::string_view name, std::string_view degreeSign);
