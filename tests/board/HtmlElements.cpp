#include "tests/board/HtmlElements.h"

#include <regex>
#include <stdexcept>

namespace
{
[[noreturn]] void Refuse(const std::string& text)
{
    throw std::runtime_error("not well-formed at: " + text.substr(0, 60));
}

void CheckText(const std::string& text)
{
    static const std::regex ampersand("&(?!(amp|lt|gt|quot|#39);)");
    if (text.find('>') != std::string::npos || std::regex_search(text, ampersand))
    {
        Refuse(text);
    }
}

HtmlElement ElementOf(const std::string& tag)
{
    static const std::regex whole(R"(([a-z][a-z0-9]*)((?: [A-Za-z-]+="[^"<]*")*)/?)");
    static const std::regex attribute(R"re( ([A-Za-z-]+)="([^"]*)")re");
    std::smatch match;
    if (!std::regex_match(tag, match, whole))
    {
        Refuse(tag);
    }
    HtmlElement element{.Name = match[1], .Attributes = {}};
    const std::string attributes = match[2];
    for (std::sregex_iterator at(attributes.begin(), attributes.end(), attribute);
         at != std::sregex_iterator(); ++at)
    {
        element.Attributes[(*at)[1]] = (*at)[2];
    }
    return element;
}
} // namespace

std::vector<HtmlElement> ElementsOf(const std::string& html)
{
    const std::string doctype = "<!DOCTYPE html>";
    if (!html.starts_with(doctype))
    {
        Refuse(html);
    }
    std::vector<HtmlElement> elements;
    std::vector<std::string> open;
    for (auto at = doctype.size(); at < html.size();)
    {
        const auto start = std::min(html.find('<', at), html.size());
        // Rules of style are not text.
        if (open.empty() || open.back() != "style")
        {
            CheckText(html.substr(at, start - at));
        }
        const auto end = html.find('>', start);
        if (start == html.size())
        {
            break;
        }
        const auto tag = html.substr(start + 1, end - start - 1);
        at = end + 1;
        if (tag.starts_with('/'))
        {
            if (end == std::string::npos || open.empty() || open.back() != tag.substr(1))
            {
                Refuse(html.substr(start));
            }
            open.pop_back();
            continue;
        }
        elements.push_back(ElementOf(tag));
        if (!tag.ends_with('/') && elements.back().Name != "meta")
        {
            open.push_back(elements.back().Name);
        }
    }
    if (!open.empty())
    {
        Refuse(open.back());
    }
    return elements;
}
