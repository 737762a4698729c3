#include "terminal/HelpText.h"

static constexpr std::size_t longestLine = 112;

std::string Wrapped(std::string_view text)
{
    std::string wrapped;
    while (text.size() > longestLine)
    {
        // A word that is longer than a line stands on one of its own.
        const auto lastBlank = text.substr(0, longestLine + 1).rfind(' ');
        const auto end = lastBlank != std::string_view::npos ? lastBlank : text.find(' ');
        if (end == std::string_view::npos)
        {
            break;
        }
        wrapped.append(text.substr(0, end)).append("\n");
        text.remove_prefix(end + 1);
    }
    return wrapped.append(text);
}
