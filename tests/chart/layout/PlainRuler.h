#pragma once

/// A ruler whose characters are half as wide as the font's size.

#include "chart/layout/TextRuler.h"

#include <algorithm>

class PlainRuler : public TextRuler
{
public:
    explicit PlainRuler(double fontSize)
        : size(fontSize)
    {
    }

    double TextSize() const override { return size; }
    double LineHeight() const override { return 1.2 * size; }
    double WidthOf(std::string_view text) const override
    {
        // The first byte of a character tells it from those that follow.
        return size / 2 *
               static_cast<double>(
                   std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; }));
    }

private:
    double size;
};
