#pragma once

/// Lines and their cells as views into a text, for records too long to copy.

#include <cstddef>
#include <string_view>
#include <vector>

/// A cursor over the lines of a text. CRLF, LF and CR end a line.
class TextLines
{
public:
    explicit TextLines(std::string_view utf8)
        : text(utf8)
    {
    }

    /// Reads the next line, which may be empty; false at the end of the text.
    bool Read(std::string_view& line);

    /// Number of the line that was read last, counted from 1.
    std::size_t Line() const { return number; }

private:
    std::string_view text;
    std::size_t number = 0;
};

/// Where the first cell of a line ends: at a separator outside double quotes and outside brackets, "V(a,b)";
/// at the line's end where there is none, or where a quote or a bracket stays open.
std::size_t EndOfCell(std::string_view line, char separator);

/// The cells of a line without the blanks around them, and without the quotes of a cell that stands in some;
/// quotes written twice within stay so. A blank as separator stands for any run of blanks. The cells that
/// stood in `cells` are dropped, and its room is used again.
void SplitLine(std::string_view line, char separator, std::vector<std::string_view>& cells);
