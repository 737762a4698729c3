#pragma once

/// The book of the help on paper.

class QPagedPaintDevice;
class QTextDocument;

/// Sets breaks in a document that is laid out on pages, so that no page ends with a heading, and short tables
/// and blocks of code stand whole on one.
void BreakPages(QTextDocument& document);

/// Prints a book as it is shown, with page numbers and such breaks.
void PrintBook(QTextDocument& book, QPagedPaintDevice& paper);
