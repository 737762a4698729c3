#include "tests/help/BookText.h"

#include <fstream>
#include <regex>
#include <sstream>

std::string FileText(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string BookText(const std::string& name)
{
    return FileText(std::string(BOOKS) + "/" + name);
}

std::vector<std::string> All(const std::string& text, const char* pattern)
{
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
    {
        found.push_back((*match)[1]);
    }
    return found;
}

std::string WithoutTags(std::string text)
{
    text = std::regex_replace(text, std::regex("<[^>]*>"), "");
    text = std::regex_replace(text, std::regex("&quot;"), "\"");
    text = std::regex_replace(text, std::regex("&gt;"), ">");
    text = std::regex_replace(text, std::regex("&lt;"), "<");
    text = std::regex_replace(text, std::regex("&nbsp;"), " ");
    return std::regex_replace(text, std::regex("&amp;"), "&");
}

std::string PlainText(std::string text)
{
    text = WithoutTags(std::regex_replace(text, std::regex("<br/>"), " "));
    return std::regex_replace(text, std::regex("\\s+"), " ");
}

std::string Section(const std::string& book, const std::string& anchor)
{
    const auto begin = book.find("<a name=\"" + anchor + "\"");
    return begin == std::string::npos ? "" : book.substr(begin, book.find("<h", begin) - begin);
}
