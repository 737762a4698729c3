#pragma once

/// How large the texts of a chart are that fits its window.

/// Text size for a window, in device-independent pixels: 11 for 600 by 400, 16 for 1200 by 800, 32 for 3840
/// by 2160. It grows in steps, so that fonts seldom change while a window is resized, and is never below 11.
///
/// @param scale the user's wish, 1 for none: the size times this, to the nearest pixel
double FittingTextSize(double width, double height, double scale = 1);
