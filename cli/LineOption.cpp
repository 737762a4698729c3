#include "cli/LineOption.h"

#include "calc/ChartKinds.h"
#include "cli/Command.h"
#include "cli/RequestWords.h"
#include "requests/Names.h"

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

/// Throws UsageError that says what no condition is called.
static void TakeCondition(CurveRequest& request, const std::string& name, const std::string& value)
{
    const auto conditions = ConditionKinds();
    const auto condition = std::ranges::find_if(conditions, [&](const ConditionKind& kind)
                                                { return kind.Measures && OptionNameOf(kind.Key) == name; });
    if (condition != conditions.end())
    {
        request.Conditions[condition->Id] = value;
        return;
    }
    if (std::ranges::none_of(Parameters, [&](Quantity load) { return RequestNameOf(NameOf(load)) == name; }))
    {
        const auto meant = NameMeantBy(name, LineNames());
        throw UsageError('"' + name + "\" is none of: " + ListOf(LineNames()) +
                         (meant ? "; did you mean \"" + *meant + "\"?" : ""));
    }
    request.Parameter = name;
    request.Conditions[Condition::Parameter] = value;
}

static void TakeWord(CurveRequest& request, const std::string& word)
{
    const auto equals = word.find('=');
    if (equals == std::string::npos)
    {
        throw UsageError('"' + word + "\" is not NAME=VALUE");
    }
    TakeCondition(request, word.substr(0, equals), word.substr(equals + 1));
}

CurveRequest RequestOfLine(const std::string& line, const CurveRequest& defaults)
{
    CurveRequest request = defaults;
    std::istringstream words(line);
    if (!(words >> request.Part))
    {
        throw UsageError("--line is empty");
    }
    std::string word;
    while (words >> word)
    {
        try
        {
            TakeWord(request, word);
        }
        catch (const UsageError& error)
        {
            throw UsageError("--line \"" + line + "\": " + error.what());
        }
    }
    return request;
}
