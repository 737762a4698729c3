#pragma once

/// The program's title: of windows, message boxes, saved files and printed pages.

#include <string_view>

inline constexpr std::string_view ProgramTitleText = "Halvex Chip Capacitor Characteristics Data Library";
