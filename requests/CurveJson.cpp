#include "requests/CurveJson.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "partdata/AnswersVersion.h"
#include "requests/Names.h"
#include "requests/UnitEntry.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>

/// Any number as JSON takes it: finite.
template <class Number> static void AppendNumber(std::string& text, Number value)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    text.append(digits, end);
}

/// True for what stands in JSON as it is written, as most texts do.
static bool IsPlain(char c)
{
    return c >= ' ' && c <= '~' && c != '"' && c != '\\';
}

static void AppendText(std::string& text, std::string_view value)
{
    if (std::ranges::all_of(value, IsPlain))
    {
        text.append(1, '"').append(value).append(1, '"');
        return;
    }
    text += nlohmann::json(value).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

static void AppendKey(std::string& text, std::string_view key)
{
    text.append(text.ends_with('{') ? "\"" : ",\"").append(key).append("\":");
}

static void AddNumber(std::string& text, std::string_view key, float value)
{
    AppendKey(text, key);
    AppendNumber(text, value);
}

/// The value of a point, which may have none.
static void AddValue(std::string& text, std::string_view key, std::optional<float> value)
{
    AppendKey(text, key);
    value ? AppendNumber(text, *value) : static_cast<void>(text += NoNumber);
}

static void AddText(std::string& text, std::string_view key, std::string_view value)
{
    AppendKey(text, key);
    AppendText(text, value);
}

/// A number, or both ends of a range.
static void AddRange(std::string& text, std::string_view key, const ConditionRange& range)
{
    if (range.IsPoint())
    {
        AddNumber(text, key, range.Low);
        return;
    }
    AppendKey(text, key);
    text += '{';
    AddNumber(text, "low", range.Low);
    AddNumber(text, "high", range.High);
    text += '}';
}

static void AddConditions(std::string& text, const ChartRecord& line, const ChartRecord& upper)
{
    AppendKey(text, "conditions");
    text += '{';
    for (const ConditionLine& condition : ConditionLines(line))
    {
        const ConditionKind& kind = KindOf(condition.Id);
        if (!kind.Measures)
        {
            AddText(text, "parameter", RequestNameOf(line.ParameterName));
        }
        AddRange(text, kind.Key, {line.*kind.Value, upper.*kind.Value});
    }
    text += '}';
}

static void AddConditionUnits(std::string& text, const ChartRecord& line)
{
    AppendKey(text, "conditionUnits");
    text += '{';
    for (const ConditionLine& condition : ConditionLines(line))
    {
        const ConditionKind& kind = KindOf(condition.Id);
        AddText(text, kind.Key,
                ShownUnitOf(kind.Measures ? *kind.Measures : QuantityNamed(line.ParameterName)));
    }
    text += '}';
}

static void AppendSeparated(std::string& text, std::size_t index)
{
    text.append(index == 0 ? 0 : 1, ',');
}

static void AddUnused(std::string& text, const std::vector<std::string>& keys)
{
    if (keys.empty())
    {
        return;
    }
    AppendKey(text, "unusedConditions");
    text += '[';
    for (std::size_t i = 0; i < keys.size(); ++i)
    {
        AppendSeparated(text, i);
        AppendText(text, keys[i]);
    }
    text += ']';
}

static void AddPoints(std::string& text, const std::vector<CurvePoint>& points)
{
    AppendKey(text, "points");
    text += '[';
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        AppendSeparated(text, i);
        text += '{';
        AddNumber(text, "x", points[i].X);
        AddValue(text, "y", points[i].Y);
        text += '}';
    }
    text += ']';
}

static void AddExtreme(std::string& text, std::string_view key, const CurveExtreme& extreme)
{
    AddNumber(text, key, extreme.Y);
    AppendKey(text, std::string(key) + "At");
    text += '{';
    for (const CurveCondition& condition : extreme.At)
    {
        AddNumber(text, condition.Key, condition.Value);
    }
    text += '}';
}

static void AddWorst(std::string& text, const std::vector<WorstPoint>& points)
{
    AppendKey(text, "points");
    text += '[';
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        AppendSeparated(text, i);
        text += '{';
        AddRange(text, "x", points[i].X);
        AddExtreme(text, "least", points[i].Least);
        AddExtreme(text, "most", points[i].Most);
        text += '}';
    }
    text += ']';
}

static void AddLevels(std::string& text, const std::vector<CurveLevel>& levels)
{
    AppendKey(text, "crossings");
    text += '[';
    for (std::size_t i = 0; i < levels.size(); ++i)
    {
        AppendSeparated(text, i);
        text += '{';
        AddNumber(text, "y", levels[i].Y);
        AppendKey(text, "x");
        text += '[';
        for (std::size_t j = 0; j < levels[i].X.size(); ++j)
        {
            AppendSeparated(text, j);
            AppendNumber(text, levels[i].X[j]);
        }
        text += "]}";
    }
    text += ']';
}

/// The 200 points, or those that were asked for in their place.
static void AddValues(std::string& text, const RequestedCurve& curve, AxisTexts& axes)
{
    if (curve.Points)
    {
        AddPoints(text, *curve.Points);
    }
    if (curve.Worst)
    {
        AddWorst(text, *curve.Worst);
    }
    if (curve.Levels)
    {
        AddLevels(text, *curve.Levels);
    }
    if (!curve.HasOwnPoints())
    {
        AppendKey(text, "x");
        text += axes.Of(curve.Line.XData);
        AppendKey(text, "y");
        AppendValues(text, curve.Line.YData);
    }
}

/// The beginning of every object that stands alone: the version of its description, and what it is known by.
static void BeginAnswer(std::string& text, std::string_view id)
{
    text += '{';
    AppendKey(text, "schemaVersion");
    AppendNumber(text, AnswersVersion);
    if (!id.empty())
    {
        AppendKey(text, "id");
        text += id;
    }
}

void AppendCurveJson(std::string& text, const RequestedCurve& curve, const CurveSettings& settings,
                     AxisTexts& axes, std::string_view id)
{
    const ChartRecord& line = curve.Line;
    BeginAnswer(text, id);
    AddText(text, "part", ShownPartNum(*curve.Part, curve.Code, settings));
    AddText(text, "chart", ChartKindOf(line.ChartType).CommandName);
    AddText(text, "xName", line.XAxisName);
    AddText(text, "xUnit", StoredUnitOf(line.XAxisName));
    AddText(text, "yName", line.YAxisName);
    AddText(text, "yUnit", StoredUnitOf(line.YAxisName));
    AddConditions(text, line, curve.Upper.value_or(line));
    AddConditionUnits(text, line);
    AddUnused(text, curve.Unused);
    AddValues(text, curve, axes);
    AddNumber(text, "xMax", line.XMax);
    AddNumber(text, "yMax", line.YMax);
    AddNumber(text, "xMin", line.XMin);
    AddNumber(text, "yMin", line.YMin);
    AddNumber(text, "extraValue", line.ExtraValue);
    text += "}\n";
}

static std::string OnOneLine(std::string_view message)
{
    std::string text;
    for (const char c : message)
    {
        const bool isBreak = c == '\r' || c == '\n';
        text.append(isBreak && text.ends_with(' ') ? 0 : 1, isBreak ? ' ' : c);
    }
    return text;
}

template <class Number>
static void AddWhereKnown(std::string& text, std::string_view key, const std::optional<Number>& value)
{
    if (value)
    {
        AppendKey(text, key);
        AppendNumber(text, *value);
    }
}

static void AddWhereKnown(std::string& text, std::string_view key, const std::string& value)
{
    if (!value.empty())
    {
        AddText(text, key, value);
    }
}

void AppendErrorJson(std::string& text, const ErrorAnswer& error, std::string_view id)
{
    BeginAnswer(text, id);
    AppendKey(text, "error");
    text += '{';
    AppendKey(text, "number");
    AppendNumber(text, error.Number);
    AddText(text, "code", error.Code);
    AddText(text, "message", OnOneLine(error.Message));
    AppendKey(text, "line");
    AppendNumber(text, error.Line);
    AddWhereKnown(text, "part", error.Part);
    AddWhereKnown(text, "key", error.Key);
    AddWhereKnown(text, "limit", error.Limit);
    AddWhereKnown(text, "position", error.Position);
    AddWhereKnown(text, "hint", error.Hint);
    text += "}}\n";
}
