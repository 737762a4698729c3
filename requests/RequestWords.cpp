#include "requests/RequestWords.h"

#include "calc/ChartKinds.h"
#include "requests/Names.h"

#include <algorithm>

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

/// The message, and what was probably meant.
static std::string Message(const RequestError& error)
{
    return error.Message() + (error.Hint().empty() ? "" : "; did you mean \"" + error.Hint() + "\"?");
}

std::string NoteOnUnused(const RequestedCurve& curve, std::string_view partNum)
{
    std::vector<std::string> options;
    for (const std::string& key : curve.Unused)
    {
        if (const auto option = OptionOf(key); std::ranges::find(options, option) == options.end())
        {
            options.push_back(option);
        }
    }
    const auto chart = ChartKindOf(curve.Line.ChartType).CommandName;
    return options.empty()
               ? ""
               : std::string(partNum) + ": " + std::string(chart) + " does not use " + ListOf(options);
}

/// Where the error is: the part, and among several lines the line. What is wrong with the only one's command
/// line needs neither.
static std::string PlaceOf(const RequestError& error)
{
    if (error.Part().empty() || (error.Line() == 0 && IsMistaken(error.Kind())))
    {
        return "";
    }
    return error.Part() + (error.Line() == 0 ? "" : " (line " + std::to_string(error.Line()) + ')') + ": ";
}

std::string WordsOf(const RequestError& error)
{
    std::string words = PlaceOf(error);
    if (IsMistaken(error.Kind()))
    {
        const bool namesOption = FollowsKey(error.Kind()) && !error.Key().empty();
        return words + (namesOption ? OptionOf(error.Key()) + ' ' : "") + Message(error);
    }
    if (error.Kind() == RequestErrorKind::AxisRange && !error.Entry().empty())
    {
        words += OptionOf(error.Key()) + ' ' + error.Entry() + ' ';
    }
    if (error.Kind() == RequestErrorKind::Condition)
    {
        words +=
            OptionOf(error.Key()) + (error.Entry().empty() ? " is not given" : ' ' + error.Entry()) + ": ";
    }
    return words + Message(error);
}
