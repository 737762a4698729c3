#include "cli/Requests.h"

#include "cli/Progress.h"
#include "partdata/RunTimeError.h"
#include "requests/CurveText.h"

#include <nlohmann/json.hpp>

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>

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
    throw UsageError('"' + key + "\" is neither a text nor a number");
}

/// Puts a value into the request; false for a key that no request has.
static bool Take(CurveRequest& request, const std::string& key, const std::string& text)
{
    struct NamedField
    {
        std::string_view Key;
        std::optional<std::string> CurveRequest::*Field;
    };
    static constexpr std::array<NamedField, 8> fields = {{
        {"x", &CurveRequest::X},
        {"y", &CurveRequest::Y},
        {"dcBias", &CurveRequest::DCBias},
        {"frequency", &CurveRequest::Frequency},
        {"heatResistance", &CurveRequest::HeatResistance},
        {"ambient", &CurveRequest::Ambient},
        {"parameter", &CurveRequest::Parameter},
        {"parameterValue", &CurveRequest::ParameterValue},
    }};
    const auto field = std::ranges::find(fields, key, &NamedField::Key);
    if (field != fields.end())
    {
        request.*field->Field = text;
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

CurveRequest RequestOfJson(std::string_view line, const CurveRequest& defaults)
{
    const auto object = json::parse(line, nullptr, false);
    if (!object.is_object())
    {
        throw UsageError("the line is not a JSON object");
    }
    CurveRequest request = defaults;
    for (const auto& [key, value] : object.items())
    {
        if (!value.is_null() && !Take(request, key, TextOf(key, value)))
        {
            throw UsageError("no request has a key \"" + key + '"');
        }
    }
    if (request.Part.empty() || request.Chart.empty())
    {
        throw UsageError(request.Part.empty() ? "\"part\" is missing" : "\"chart\" is missing");
    }
    return request;
}

bool AppendAnswer(std::string& text, std::string_view line, const CurveRequest& defaults,
                  const PartTable& parts, const CurveSettings& settings, AxisTexts& axes)
{
    try
    {
        const auto request = RequestOfJson(line, defaults);
        AppendCurveJson(text, CurveOf(request, parts, settings), settings, axes);
        return true;
    }
    catch (const RefusedRequest& refused)
    {
        AppendErrorJson(text, refusedNumber, refused.Message(), refused.Limit());
    }
    catch (const CommandError& error)
    {
        AppendErrorJson(text, refusedNumber, error.what(), std::nullopt);
    }
    catch (const RunTimeError& error)
    {
        AppendErrorJson(text, error.Number(), error.Description(), std::nullopt);
    }
    return false;
}

/// Bytes of a file, or nothing where that is not known.
static std::uintmax_t SizeOf(const std::string& fileName)
{
    std::error_code fault;
    const auto size = std::filesystem::file_size(fileName, fault);
    return fault ? 0 : size;
}

static RequestCounts AnswerLines(std::istream& in, Progress progress, const CurveRequest& defaults,
                                 const PartTable& parts, const CurveSettings& settings, Output& output)
{
    RequestCounts counts;
    std::string line;
    std::string answer;
    AxisTexts axes;
    while (std::getline(in, line))
    {
        progress.Advance(line.size() + 1);
        if (line.find_first_not_of(" \t\r") == std::string::npos)
        {
            continue;
        }
        answer.clear();
        ++counts.Requests;
        counts.WithoutCurve += AppendAnswer(answer, line, defaults, parts, settings, axes) ? 0 : 1;
        output.Write(answer);
        if (in.rdbuf()->in_avail() <= 0)
        {
            output.Flush();
        }
    }
    return counts;
}

RequestCounts AnswerRequests(const std::string& fileName, const CurveRequest& defaults,
                             const PartTable& parts, const CurveSettings& settings, Output& output)
{
    if (fileName == "-")
    {
        const auto counts = AnswerLines(std::cin, Progress("curves", 0), defaults, parts, settings, output);
        if (std::cin.bad())
        {
            throw Failure("standard input: cannot be read");
        }
        return counts;
    }
    std::ifstream file(fileName, std::ios::binary);
    // A folder opens, and fails with the first character.
    if (!file || (file.peek() == std::ifstream::traits_type::eof() && !file.eof()))
    {
        throw Failure(fileName + ": cannot be read");
    }
    file.clear();
    const auto counts =
        AnswerLines(file, Progress("curves", SizeOf(fileName)), defaults, parts, settings, output);
    if (file.bad())
    {
        throw Failure(fileName + ": cannot be read to its end");
    }
    return counts;
}
