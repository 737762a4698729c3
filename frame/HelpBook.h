#pragma once

/// Reading of a help book: an HTML file in UTF-8.

#include <QString>

/// Largest book that is read, in bytes.
constexpr qint64 LargestHelpBook = qint64{2} * 1024 * 1024;

/// The HTML text of a book. Throws RunTimeError 53 for a missing file, 75 for something else than a
/// readable file, and 75 with a description of its own for a file that is no book: an empty, a binary
/// or a too large one. Never reads more than `LargestHelpBook` bytes.
QString ReadHelpBook(const QString& file);
