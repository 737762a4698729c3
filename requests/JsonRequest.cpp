#include "requests/JsonRequest.h"

#include "partdata/RunTimeError.h"
#include "requests/CurveJson.h"
#include "requests/RequestError.h"

#include <nlohmann/json.hpp>

#include <algorithm>

using nlohmann::json;

/// Number of every answer that is not the run-time error of a calculation.
static constexpr int refusedNumber = static_cast<int>(RunTimeErrorNumber::InvalidProcedureCall);

static std::string TextOf(const std::string& key, const json& value)
{
    if (value.is_string())
    {
        return value.get<std::string>();
    }
    if (value.is_number())
    {
        return value.dump();
    }
    throw RequestError(RequestErrorKind::Syntax, key, "is neither a text nor a number");
}

std::vector<std::string> RequestKeys()
{
    std::vector<std::string> keys = {"part", "chart", "x", "y"};
    for (const ConditionKind& kind : ConditionKinds())
    {
        if (!kind.Measures)
        {
            keys.emplace_back("parameter");
        }
        keys.emplace_back(kind.Key);
    }
    keys.emplace_back("code");
    return keys;
}

/// Puts a value into the request; false for a key that no request has.
static bool Take(CurveRequest& request, const std::string& key, const std::string& text)
{
    const auto conditions = ConditionKinds();
    const auto condition = std::ranges::find(conditions, key, &ConditionKind::Key);
    if (condition != conditions.end())
    {
        request.Conditions[condition->Id] = text;
        return true;
    }
    if (key == "x" || key == "y")
    {
        (key == "x" ? request.X : request.Y) = text;
        return true;
    }
    if (key == "parameter")
    {
        request.Parameter = text;
        return true;
    }
    if (key == "part" || key == "chart")
    {
        (key == "part" ? request.Part : request.Chart) = text;
        return true;
    }
    if (key == "code")
    {
        request.Code = CodeViewOf(text);
        return true;
    }
    return false;
}

CurveRequest RequestOfJson(std::string_view text, const CurveRequest& defaults)
{
    const auto object = json::parse(text, nullptr, false);
    if (!object.is_object())
    {
        throw RequestError(RequestErrorKind::Syntax, "", "the line is not a JSON object");
    }
    CurveRequest request = defaults;
    for (const auto& [key, value] : object.items())
    {
        if (!value.is_null() && !Take(request, key, TextOf(key, value)))
        {
            throw RequestError(RequestErrorKind::UnknownKey, key, "no request has a key \"" + key + '"');
        }
    }
    if (request.Part.empty() || request.Chart.empty())
    {
        throw RequestError(RequestErrorKind::MissingKey, request.Part.empty() ? "part" : "chart",
                           "is missing");
    }
    return request;
}

/// The message with the key where it goes on behind it.
static std::string MessageOf(const RequestError& error)
{
    const bool namesKey = FollowsKey(error.Kind()) && !error.Key().empty();
    return (namesKey ? '"' + error.Key() + "\" " : "") + error.Message();
}

bool AppendAnswer(std::string& text, std::string_view request, const CurveRequest& defaults,
                  const PartTable& parts, const CurveSettings& settings, AxisTexts& axes)
{
    try
    {
        const auto curve = RequestOfJson(request, defaults);
        AppendCurveJson(text, CurveOf(curve, parts, settings), settings, axes);
        return true;
    }
    catch (const RequestError& error)
    {
        AppendErrorJson(text, refusedNumber, MessageOf(error), error.Limit());
    }
    catch (const RunTimeError& error)
    {
        AppendErrorJson(text, error.Number(), error.Description(), std::nullopt);
    }
    return false;
}
