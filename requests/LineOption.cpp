#include "requests/LineOption.h"

#include "calc/ChartKinds.h"
#include "requests/Names.h"
#include "requests/RequestWords.h"

#include <algorithm>
#include <sstream>
#include <vector>

std::vector<std::string> ConditionOptionNames()
{
    std::vector<std::string> names;
    for (const ConditionKind& kind : ConditionKinds())
    {
        if (kind.Measures)
        {
            names.push_back(OptionNameOf(kind.Key));
        }
    }
    return names;
}

/// What a word of the option may name, as options are called: the conditions, then the parameters.
static std::vector<std::string> LineNames()
{
    auto names = ConditionOptionNames();
    std::ranges::copy(ParameterRequestNames(), std::back_inserter(names));
    return names;
}

/// False where no condition bears the name.
static bool TakeCondition(CurveRequest& request, const std::string& name, const std::string& value)
{
    const auto conditions = ConditionKinds();
    const auto condition = std::ranges::find_if(conditions, [&](const ConditionKind& kind)
                                                { return kind.Measures && OptionNameOf(kind.Key) == name; });
    if (condition != conditions.end())
    {
        request.Conditions[condition->Id] = value;
        return true;
    }
    if (std::ranges::none_of(Parameters, [&](Quantity load) { return RequestNameOf(NameOf(load)) == name; }))
    {
        return false;
    }
    request.Parameter = name;
    request.Conditions[Condition::Parameter] = value;
    return true;
}

static RequestError WrongLine(const std::string& message)
{
    return {RequestErrorKind::Syntax, "line", message};
}

/// @param line the whole line, which the error tells
static void TakeWord(CurveRequest& request, const std::string& word, const std::string& line)
{
    const auto where = '"' + line + "\": \"";
    const auto equals = word.find('=');
    if (equals == std::string::npos)
    {
        throw WrongLine(where + word + "\" is not NAME=VALUE");
    }
    const auto name = word.substr(0, equals);
    if (!TakeCondition(request, name, word.substr(equals + 1)))
    {
        const auto names = LineNames();
        throw WrongLine(where + name + "\" is none of: " + ListOf(names)).Meaning(NameMeantBy(name, names));
    }
}

CurveRequest RequestOfLine(const std::string& line, const CurveRequest& defaults)
{
    CurveRequest request = defaults;
    std::istringstream words(line);
    if (!(words >> request.Part))
    {
        throw WrongLine("is empty");
    }
    std::string word;
    while (words >> word)
    {
        TakeWord(request, word, line);
    }
    return request;
}
