#include "cli/RequestWords.h"

#include "requests/Names.h"

std::string OptionNameOf(std::string_view key)
{
    std::string name;
    for (const char c : key)
    {
        const bool beginsWord = c >= 'A' && c <= 'Z';
        name.append(beginsWord ? 1 : 0, '-').append(1, LowerCase(c));
    }
    return name;
}

/// The option that a key is given with. Parameter and value are one option.
static std::string OptionOf(const std::string& key)
{
    return "--" + (key == "parameterValue" ? "parameter" : OptionNameOf(key));
}

ExitStatus StatusOf(const RequestError& error)
{
    return IsMistaken(error.Kind()) ? ExitStatus::Usage : ExitStatus::Failed;
}

std::string WordsOf(const RequestError& error)
{
    if (IsMistaken(error.Kind()))
    {
        const bool namesOption = FollowsKey(error.Kind()) && !error.Key().empty();
        return (namesOption ? OptionOf(error.Key()) + ' ' : "") + error.Message();
    }
    std::string words = error.Part().empty() ? "" : error.Part() + ": ";
    if (error.Kind() == RequestErrorKind::Condition)
    {
        words +=
            OptionOf(error.Key()) + (error.Entry().empty() ? " is not given" : ' ' + error.Entry()) + ": ";
    }
    return words + error.Message();
}
