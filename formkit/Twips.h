#pragma once

/// The unit in which window positions and sizes are laid down.

inline constexpr int TwipsPerPixel = 15;

/// A length in twips as device-independent pixels.
constexpr int Twips(int twips)
{
    return twips / TwipsPerPixel;
}
