#pragma once

/// The elements of a page.

#include <map>
#include <string>
#include <vector>

struct HtmlElement
{
    std::string Name;
    std::map<std::string, std::string> Attributes;
};

/// All elements in their order. Throws std::runtime_error for a page that is not well-formed: a tag that is
/// not closed by its like, an attribute without quotes, an ampersand that begins no name or number.
std::vector<HtmlElement> ElementsOf(const std::string& html);
