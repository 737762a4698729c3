#pragma once

/// Edges of boxes and frames that can be seen in every palette.

#include <QColor>
#include <QString>

class QPalette;

/// How much two colours differ in lightness, from 1 for the same to 21 for black on white.
double ContrastOf(const QColor& one, const QColor& other);

/// True for a palette in which an edge in its usual colour would not be seen, as on black, and for those
/// whose text is as strong as it can be.
bool NeedsStrongEdges(const QPalette& palette);

/// The colour of an edge: the palette's own, or where that is too weak one half-way to the text.
QColor EdgeColor(const QPalette& palette);

/// The style sheet of a box whose entry is refused: a frame in the red that is seen best in the palette.
QString RefusedFrame(const QPalette& palette);
