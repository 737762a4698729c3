#include "requests/JsonRequest.h"

#include "partdata/RunTimeError.h"
#include "requests/CurveJson.h"
#include "requests/Names.h"
#include "requests/RequestError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>

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
    if (value.is_object() && value.size() == 2 && value.contains("low") && value.contains("high"))
    {
        return TextOf(key, value["low"]) + ".." + TextOf(key, value["high"]);
    }
    throw RequestError(RequestErrorKind::NotANumber, key, "is neither a text nor a number");
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
    for (const char* last : {"code", "at", "where", "id"})
    {
        keys.emplace_back(last);
    }
    return keys;
}

/// A value, or each of a list of them.
static std::vector<std::string> TextsOf(const std::string& key, const json& value)
{
    std::vector<std::string> texts;
    for (const json& each : value.is_array() ? value : json::array({value}))
    {
        texts.push_back(TextOf(key, each));
    }
    return texts;
}

/// Puts a value into the request. Throws RequestError for a key that no request has.
static void Take(CurveRequest& request, const std::string& key, const json& value)
{
    const auto conditions = ConditionKinds();
    const auto condition = std::ranges::find(conditions, key, &ConditionKind::Key);
    if (condition != conditions.end())
    {
        request.Conditions[condition->Id] = TextOf(key, value);
    }
    else if (key == "x" || key == "y")
    {
        (key == "x" ? request.X : request.Y) = TextOf(key, value);
    }
    else if (key == "part" || key == "chart")
    {
        (key == "part" ? request.Part : request.Chart) = TextOf(key, value);
    }
    else if (key == "parameter")
    {
        request.Parameter = TextOf(key, value);
    }
    else if (key == "code")
    {
        request.Code = CodeViewOf(TextOf(key, value));
    }
    else if (key == "at" || key == "where")
    {
        (key == "at" ? request.At : request.Where) = TextsOf(key, value);
    }
    else if (key != "id")
    {
        throw RequestError(RequestErrorKind::UnknownKey, key, "no request has a key \"" + key + '"')
            .Meaning(NameMeantBy(key, RequestKeys()));
    }
}

/// The first place, in bytes from 1, at which values stand deeper in each other than any request needs.
/// Writing them again would take a stack as deep.
static std::optional<std::size_t> PlaceTooDeep(std::string_view text)
{
    constexpr std::size_t deepest = 100;
    std::size_t depth = 0;
    bool isText = false;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const char c = text[i];
        if (isText && c == '\\')
        {
            ++i;
        }
        else if (c == '"')
        {
            isText = !isText;
        }
        else if (!isText && (c == '[' || c == '{') && ++depth > deepest)
        {
            return i + 1;
        }
        else if (!isText && (c == ']' || c == '}') && depth > 0)
        {
            --depth;
        }
    }
    return std::nullopt;
}

/// Throws RequestError, with the place where there is one.
static json ParsedLine(std::string_view text)
{
    if (text.find_first_not_of(" \t\r") == std::string_view::npos)
    {
        throw RequestError(RequestErrorKind::BlankLine, "", "the line is blank");
    }
    if (const auto place = PlaceTooDeep(text))
    {
        throw RequestError(RequestErrorKind::Syntax, "", "the line is nested too deep").AtByte(*place);
    }
    const RequestError noObject(RequestErrorKind::Syntax, "", "the line is not a JSON object");
    json object;
    try
    {
        object = json::parse(text);
    }
    catch (const json::parse_error& error)
    {
        throw noObject.AtByte(error.byte);
    }
    catch (const json::exception&)
    {
        throw RequestError(RequestErrorKind::Syntax, "", "the line has a number beyond all that can be held");
    }
    // To the parser this character is the end of the line.
    if (const auto end = text.find('\0'); end != std::string_view::npos)
    {
        throw noObject.AtByte(end + 1);
    }
    if (!object.is_object())
    {
        throw noObject;
    }
    return object;
}

static CurveRequest RequestOf(const json& object, const CurveRequest& defaults)
{
    CurveRequest request = defaults;
    for (const auto& [key, value] : object.items())
    {
        if (!value.is_null())
        {
            Take(request, key, value);
        }
    }
    if (request.Part.empty() || request.Chart.empty())
    {
        throw RequestError(RequestErrorKind::MissingKey, request.Part.empty() ? "part" : "chart",
                           "is missing");
    }
    return request;
}

CurveRequest RequestOfJson(std::string_view text, const CurveRequest& defaults)
{
    return RequestOf(ParsedLine(text), defaults);
}

/// The message with the key where it goes on behind it.
static std::string MessageOf(const RequestError& error)
{
    const bool namesKey = FollowsKey(error.Kind()) && !error.Key().empty();
    return (namesKey ? '"' + error.Key() + "\" " : "") + error.Message();
}

static ErrorAnswer AnswerOf(const RequestError& error, std::size_t line, const std::string& part)
{
    return {.Number = refusedNumber,
            .Code = CodeOf(error),
            .Message = MessageOf(error),
            .Line = line,
            .Part = part,
            .Key = error.Key(),
            .Limit = error.Limit(),
            .Position = error.Position(),
            .Hint = error.Hint()};
}

/// The part that an object asks for, as far as it can be told.
static std::string PartOf(const json& object, const CurveRequest& defaults)
{
    const auto part = object.find("part");
    return part != object.end() && part->is_string() ? part->get<std::string>() : defaults.Part;
}

static std::string IdOf(const json& object)
{
    const auto id = object.find("id");
    return id != object.end() ? id->dump() : "";
}

bool AppendAnswer(std::string& text, RequestLine request, const CurveRequest& defaults,
                  const PartTable& parts, const CurveSettings& settings, AxisTexts& axes)
{
    std::string id;
    std::string part = defaults.Part;
    try
    {
        const auto object = ParsedLine(request.Text);
        id = IdOf(object);
        part = PartOf(object, defaults);
        AppendCurveJson(text, CurveOf(RequestOf(object, defaults), parts, settings), settings, axes, id);
        return true;
    }
    catch (const RequestError& error)
    {
        AppendErrorJson(text, AnswerOf(error, request.Number, part), id);
    }
    catch (const RunTimeError& error)
    {
        AppendErrorJson(text,
                        {.Number = error.Number(),
                         .Code = "calculation",
                         .Message = error.Description(),
                         .Line = request.Number,
                         .Part = part},
                        id);
    }
    return false;
}
