#pragma once

/// How much room the texts of a chart take, before there is a surface to draw on.

#include <string_view>

/// Measures texts of one font, in device-independent pixels.
class TextRuler
{
public:
    virtual ~TextRuler() = default;

    /// Size of the font, which distances between texts go by.
    virtual double TextSize() const = 0;
    virtual double LineHeight() const = 0;
    virtual double WidthOf(std::string_view text) const = 0;
};
