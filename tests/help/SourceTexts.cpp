#include "tests/help/SourceTexts.h"

#include <algorithm>
#include <cctype>

namespace
{

/// Where the literal that begins at a quote ends: at its closing quote.
std::size_t EndOfLiteral(const std::string& source, std::size_t quote)
{
    std::size_t at = quote + 1;
    while (at < source.size() && source[at] != source[quote])
    {
        at += source[at] == '\\' ? 2 : 1;
    }
    return at;
}

/// Comments and lines of the preprocessor are taken away, literals kept.
std::string WithoutComments(const std::string& source)
{
    std::string code;
    for (std::size_t at = 0; at < source.size(); ++at)
    {
        if (source.compare(at, 2, "//") == 0 || source[at] == '#')
        {
            at = std::min(source.find('\n', at), source.size() - 1);
        }
        else if (source[at] == '"' || source[at] == '\'')
        {
            const auto end = EndOfLiteral(source, at);
            code += source.substr(at, end + 1 - at);
            at = end;
            continue;
        }
        code += source[at];
    }
    return code;
}

std::size_t NextWord(const std::string& code, std::size_t at)
{
    while (at < code.size() && std::isspace(static_cast<unsigned char>(code[at])) != 0)
    {
        ++at;
    }
    return at;
}

} // namespace

std::vector<SourceText> TextsOfSource(const std::string& source)
{
    const auto code = WithoutComments(source);
    std::vector<SourceText> texts;
    std::size_t statement = NextWord(code, 0);
    std::size_t joinsAt = std::string::npos;
    for (std::size_t at = 0; at < code.size(); ++at)
    {
        if (code[at] == ';' || code[at] == '{' || code[at] == '}')
        {
            statement = NextWord(code, at + 1);
        }
        if (code[at] != '"' && code[at] != '\'')
        {
            continue;
        }
        const auto end = EndOfLiteral(code, at);
        const auto text = code.substr(at + 1, end - at - 1);
        if (code[at] == '"' && at == joinsAt)
        {
            texts.back().Text += text;
        }
        else
        {
            texts.push_back(
                {.Text = text, .Before = code.substr(statement, at - statement), .Statement = statement});
        }
        joinsAt = NextWord(code, end + 1);
        at = end;
    }
    return texts;
}

std::vector<std::filesystem::path> SourcesIn(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> sources;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
    {
        const auto ending = entry.path().extension();
        if (ending == ".cpp" || ending == ".h")
        {
            sources.push_back(entry.path());
        }
    }
    std::ranges::sort(sources);
    return sources;
}
