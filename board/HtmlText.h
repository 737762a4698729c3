#pragma once

/// Texts of others within HTML and SVG.

#include <string>
#include <string_view>

/// A text in UTF-8 as it stands for itself between tags and in quoted attributes, its control characters as
/// "\x0A".
///
///     HtmlText("<b>R&D</b>")   // "&lt;b&gt;R&amp;D&lt;/b&gt;"
std::string HtmlText(std::string_view text);
