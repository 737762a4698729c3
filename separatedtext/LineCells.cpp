#include "separatedtext/LineCells.h"

#include <algorithm>

static constexpr std::string_view Blanks = " \t";

static std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(Blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

static std::string_view WithoutQuotes(std::string_view cell)
{
    const bool isQuoted = cell.size() >= 2 && cell.front() == '"' && cell.back() == '"';
    return isQuoted ? cell.substr(1, cell.size() - 2) : cell;
}

bool TextLines::Read(std::string_view& line)
{
    if (text.empty())
    {
        return false;
    }
    line = text.substr(0, text.find_first_of("\r\n"));
    text.remove_prefix(line.size());
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
    ++number;
    return true;
}

std::size_t EndOfCell(std::string_view line, char separator)
{
    bool isQuoted = false;
    std::size_t depth = 0;
    for (std::size_t i = 0; i < line.size(); ++i)
    {
        const char c = line[i];
        if (c == separator && !isQuoted && depth == 0)
        {
            return i;
        }
        isQuoted = isQuoted != (c == '"');
        const bool isOpening = !isQuoted && (c == '(' || c == '[');
        const bool isClosing = !isQuoted && (c == ')' || c == ']') && depth > 0;
        depth = depth + (isOpening ? 1 : 0) - (isClosing ? 1 : 0);
    }
    return line.size();
}

void SplitLine(std::string_view line, char separator, std::vector<std::string_view>& cells)
{
    cells.clear();
    if (separator == ' ')
    {
        line = Trimmed(line);
    }
    // Numbers, which most lines hold alone, need no look at brackets and quotes.
    const bool isPlain = line.find_first_of("\"()[]") == std::string_view::npos;
    for (bool more = !line.empty(); more;)
    {
        const auto end = isPlain ? std::min(line.find(separator), line.size()) : EndOfCell(line, separator);
        cells.push_back(WithoutQuotes(Trimmed(line.substr(0, end))));
        more = end < line.size();
        line.remove_prefix(more ? end + 1 : end);
        if (separator == ' ')
        {
            line = Trimmed(line);
        }
    }
}
