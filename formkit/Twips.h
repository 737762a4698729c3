#pragma once

/// The unit in which window positions and sizes are laid down.

/// A length in twips as device-independent pixels: 15 twips are one pixel.
constexpr int Twips(int twips)
{
    return twips / 15;
}
