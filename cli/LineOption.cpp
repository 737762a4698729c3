#include "cli/LineOption.h"

#include "calc/ChartNames.h"
#include "cli/Command.h"
#include "cli/RequestWords.h"
#include "requests/Names.h"

#include <algorithm>
#include <sstream>
#include <vector>

/// What a word of the option may name, as options are called: the conditions, then the parameters.
static std::vector<std::string> LineNames()
{
    std::vector<std::string> names;
    std::ranges::transform(ConditionFields, std::back_inserter(names), OptionNameOf, &RequestField::Key);
    std::ranges::transform(ParameterNames, std::back_inserter(names), RequestNameOf);
    return names;
}

static void TakeCondition(CurveRequest& request, const std::string& name, const std::string& value)
{
    const auto names = LineNames();
    const auto found = static_cast<std::size_t>(std::ranges::find(names, name) - names.begin());
    if (found == names.size())
    {
        throw UsageError('"' + name + "\" is none of: " + ListOf(names));
    }
    if (found < ConditionFields.size())
    {
        request.*ConditionFields[found].Text = value;
        return;
    }
    request.Parameter = name;
    request.ParameterValue = value;
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
        const auto equals = word.find('=');
        if (equals == std::string::npos)
        {
            throw UsageError("--line \"" + line + "\": \"" + word + "\" is not NAME=VALUE");
        }
        TakeCondition(request, word.substr(0, equals), word.substr(equals + 1));
    }
    return request;
}
