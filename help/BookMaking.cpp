#include "help/BookMaking.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace
{

struct Heading
{
    std::string Anchor;
    std::string Title;
};

void ReplaceAll(std::string& text, const std::string& from, const std::string& to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    {
        text.replace(at, from.size(), to);
    }
}

std::string Trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t\r");
    const auto last = text.find_last_not_of(" \t\r");
    return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
}

/// Calls `make` with each text between the two marks, and puts what it makes in place of text and marks.
void ReplaceEach(std::string& text, const std::string& opening, const std::string& closing,
                 const std::function<std::string(const std::string&)>& make)
{
    for (auto at = text.find(opening); at != std::string::npos; at = text.find(opening, at))
    {
        const auto begin = at + opening.size();
        const auto end = text.find(closing, begin);
        if (end == std::string::npos)
        {
            throw std::runtime_error(opening + " is not closed");
        }
        const auto made = make(text.substr(begin, end - begin));
        text.replace(at, end + closing.size() - at, made);
        at += made.size();
    }
}

/// The title without the number that an author gave it.
std::string Unnumbered(const std::string& title)
{
    const auto digits = title.find_first_not_of("0123456789");
    const bool isNumbered = digits != 0 && digits != std::string::npos && title.compare(digits, 2, ". ") == 0;
    return isNumbered ? title.substr(digits + 2) : title;
}

/// Name and text of `name="anchor">Title</a>`.
Heading HeadingOf(const std::string& link)
{
    const auto quote = link.find('"');
    const auto title = quote + 2;
    return {.Anchor = link.substr(0, quote), .Title = link.substr(title, link.find("</a>") - title)};
}

std::vector<Heading> NumberChapters(std::string& book)
{
    std::vector<Heading> chapters;
    ReplaceEach(book, "<h2><a name=\"", "</h2>",
                [&chapters](const std::string& link)
                {
                    auto heading = HeadingOf(link);
                    heading.Title = Unnumbered(heading.Title);
                    chapters.push_back(heading);
                    return "<h2><a name=\"" + heading.Anchor + "\">" + std::to_string(chapters.size()) +
                           ". " + heading.Title + "</a></h2>";
                });
    return chapters;
}

std::string Link(const Heading& to)
{
    return "<a href=\"#" + to.Anchor + "\">" + to.Title + "</a>";
}

std::string ContentsHtml(const std::vector<Heading>& chapters)
{
    std::string html = "<ol>\n";
    for (const auto& chapter : chapters)
    {
        html += "<li>" + Link(chapter) + "</li>\n";
    }
    return html + "</ol>";
}

/// The heading that an anchor stands in.
Heading HeadingAt(const std::string& book, const std::string& anchor)
{
    const auto at = book.find("<a name=\"" + anchor + "\"");
    if (at == std::string::npos)
    {
        throw std::runtime_error("index: no place is called " + anchor);
    }
    const auto heading =
        std::max(book.rfind("<h2><a name=\"", at) + 1, book.rfind("<h3><a name=\"", at) + 1) - 1;
    const auto link = heading + std::string("<h2><a name=\"").size();
    const auto title = HeadingOf(book.substr(link, book.find("</h", link) - link)).Title;
    return {.Anchor = anchor, .Title = Unnumbered(title)};
}

std::string IndexLine(const std::string& book, const IndexWord& word)
{
    std::string line = "<b>" + word.Word + "</b>: ";
    for (const auto& anchor : word.Anchors)
    {
        line += (&anchor == word.Anchors.data() ? "" : "; ") + Link(HeadingAt(book, anchor));
    }
    return line;
}

std::string IndexHtml(const std::string& book, std::vector<IndexWord> words)
{
    std::ranges::stable_sort(words, {}, &IndexWord::Reading);
    std::string html;
    for (const auto& word : words)
    {
        html += "<p style=\"margin-top:2px; margin-bottom:2px\">" + IndexLine(book, word) + "</p>\n";
    }
    return html;
}

/// Small letters, so that capitals stand among them.
std::string Lowered(std::string text)
{
    for (char& c : text)
    {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    }
    return text;
}

IndexWord IndexWordOf(const std::string& line)
{
    const auto equals = line.find(" = ");
    const auto bracket = line.find(" (");
    const bool hasReading = bracket < equals && line.compare(equals - 1, 1, ")") == 0;
    IndexWord word;
    word.Word = line.substr(0, std::min(hasReading ? bracket : equals, equals));
    word.Reading = Lowered(hasReading ? line.substr(bracket + 2, equals - bracket - 3) : word.Word);
    std::istringstream anchors(equals == std::string::npos ? "" : line.substr(equals + 3));
    for (std::string anchor; anchors >> anchor;)
    {
        word.Anchors.push_back(anchor);
    }
    return word;
}

std::string Cell(const char* attributes, const std::string& text)
{
    return "<td " + std::string(attributes) + ">" + text + "</td>";
}

/// Indents a formula alike on the screen and on paper, where the margin of a paragraph counts dots of the
/// printer.
std::string FormulaTable(const std::string& rows)
{
    return "<table border=\"0\" cellspacing=\"0\" cellpadding=\"1\" style=\"margin-left:24px; "
           "margin-top:8px\">" +
           rows + "</table>";
}

} // namespace

std::string FormulaHtml(const std::string& formula)
{
    const std::string& text = formula;
    std::string upper;
    std::string lower;
    std::size_t at = 0;
    for (auto open = text.find('{'); open != std::string::npos; open = text.find('{', at))
    {
        const auto bar = text.find('|', open);
        const auto close = text.find('}', open);
        if (bar > close || close == std::string::npos)
        {
            throw std::runtime_error("no fraction: " + formula);
        }
        upper += Cell("rowspan=\"2\" valign=\"middle\"", text.substr(at, open - at) + "&nbsp;");
        upper += Cell("align=\"center\" style=\"border-bottom: 1px solid #808080\"",
                      "&nbsp;" + text.substr(open + 1, bar - open - 1) + "&nbsp;");
        lower += Cell("align=\"center\"", "&nbsp;" + text.substr(bar + 1, close - bar - 1) + "&nbsp;");
        at = close + 1;
    }
    if (lower.empty())
    {
        return FormulaTable("<tr><td>" + text + "</td></tr>");
    }
    upper += Cell("rowspan=\"2\" valign=\"middle\"", "&nbsp;" + text.substr(at));
    return FormulaTable("<tr>" + upper + "</tr><tr>" + lower + "</tr>");
}

std::vector<IndexWord> ReadIndexWords(const std::string& text)
{
    std::vector<IndexWord> words;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
    {
        line = Trimmed(line);
        if (line.empty() || line.front() == '#')
        {
            continue;
        }
        words.push_back(IndexWordOf(line));
        if (words.back().Anchors.empty() || words.back().Word.empty())
        {
            throw std::runtime_error("index: " + line);
        }
    }
    return words;
}

std::string MakeBook(const std::string& frame, const ChapterReader& chapter,
                     const std::vector<IndexWord>& index, const BookEdition& edition)
{
    std::string book = frame;
    ReplaceEach(book, "<!-- chapter ", " -->", chapter);
    ReplaceEach(book, "<formula>", "</formula>", FormulaHtml);
    // Without a margin of its own a table touches the line above it.
    ReplaceAll(book, "cellpadding=\"4\">", "cellpadding=\"4\" style=\"margin-top:10px\">");
    const auto chapters = NumberChapters(book);
    ReplaceAll(book, "<!-- contents -->", ContentsHtml(chapters));
    ReplaceAll(book, "<!-- index -->", IndexHtml(book, index));
    ReplaceAll(book, "@version@", edition.Version);
    ReplaceAll(book, "@date@", edition.Date);
    return book;
}
