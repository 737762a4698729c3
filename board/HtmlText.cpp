#include "board/HtmlText.h"

#include "partdata/OneLine.h"

namespace
{
std::string_view EscapeOf(char c)
{
    switch (c)
    {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    default:
        return {};
    }
}
} // namespace

std::string HtmlText(std::string_view text)
{
    std::string html;
    for (const char c : WithoutControls(text))
    {
        const auto escape = EscapeOf(c);
        escape.empty() ? html.push_back(c) : static_cast<void>(html.append(escape));
    }
    return html;
}
