#pragma once

/// Makes a help book out of its chapters: numbers them, and adds contents, index, version and formulas.

#include <functional>
#include <string>
#include <vector>

/// What the first page says of the book.
struct BookEdition
{
    std::string Version;
    /// As the book's language writes it.
    std::string Date;
};

/// A word of the index, and the anchors of the places that it leads to.
struct IndexWord
{
    std::string Word;
    /// What it is sorted by: its reading in a Japanese book, else the word itself.
    std::string Reading;
    std::vector<std::string> Anchors;
};

/// Text of a file of the book's chapters, by its name without an ending.
using ChapterReader = std::function<std::string(const std::string& name)>;

/// The whole book. In its frame, lines of their own ask for what is put in:
///
///     <!-- chapter worth -->   the chapter of that name
///     <!-- contents -->        links to all chapters
///     <!-- index -->           the words of `index`, with links to their places
///
/// `@version@` and `@date@` stand for the edition. Chapters are headings `<h2><a name="...">Title</a></h2>`
/// and get their numbers here. Formulas are set as `FormulaHtml` tells.
///
/// Throws std::runtime_error where an index word leads to no anchor of the book.
std::string MakeBook(const std::string& frame, const ChapterReader& chapter,
                     const std::vector<IndexWord>& index, const BookEdition& edition);

/// The words of an index file: `word = anchor anchor...`, or `word (reading) = anchor...`, one a line. Empty
/// lines and those that begin with `#` count for nothing.
///
/// Throws std::runtime_error, with the line, for any other line.
std::vector<IndexWord> ReadIndexWords(const std::string& text);

/// A formula as rich text: `{a|b}` is a fraction, anything else stays as it is.
///
///     FormulaHtml("I = {ΔI|2·√3}")
std::string FormulaHtml(const std::string& formula);
