#include "tests/help/SourceTexts.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <regex>
#include <sstream>

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

/// Where what begins at a place ends that is no literal though it has a quote: one between the digits of a
/// number, or a raw text, which holds examples and tables.
std::optional<std::size_t> EndOfNoLiteral(const std::string& source, std::size_t at)
{
    const std::string_view end = ")\"";
    if (source.compare(at, 3, "R\"(") == 0)
    {
        return source.find(end, at) + end.size() - 1;
    }
    const bool isInNumber =
        source[at] == '\'' && at > 0 && std::isxdigit(static_cast<unsigned char>(source[at - 1])) != 0;
    return isInNumber ? std::optional(at) : std::nullopt;
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
        else if (const auto end = EndOfNoLiteral(source, at))
        {
            at = *end;
            continue;
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

std::vector<std::string> PiecesOf(const std::string& text)
{
    const std::string plain = std::regex_replace(text, std::regex("%[0-9]|\\\\r\\\\n|\\\\n"), "\n");
    std::vector<std::string> pieces;
    std::istringstream lines(std::regex_replace(plain, std::regex("\\\\\""), "\""));
    for (std::string line; std::getline(lines, line);)
    {
        line = std::regex_replace(line, std::regex("^ +| +$"), "");
        if (std::regex_search(line, std::regex("[A-Za-z]{2}")))
        {
            pieces.push_back(line);
        }
    }
    return pieces;
}

bool HasWords(const std::string& text)
{
    static const std::regex words(" *[^ ]+ +[^ ]+.*");
    return std::regex_match(PiecesOf(text).empty() ? "" : text, words);
}
