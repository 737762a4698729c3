#include "requests/CurveJson.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "requests/Names.h"
#include "requests/UnitEntry.h"

#include <nlohmann/json.hpp>

#include <charconv>

/// Any number as JSON takes it. Curves hold finite values only.
template <class Number> static void AppendNumber(std::string& text, Number value)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    text.append(digits, end);
}

static void AppendText(std::string& text, std::string_view value)
{
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

static void AddText(std::string& text, std::string_view key, std::string_view value)
{
    AppendKey(text, key);
    AppendText(text, value);
}

static void AddConditions(std::string& text, const ChartRecord& line)
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
        AddNumber(text, kind.Key, line.*kind.Value);
    }
    text += '}';
}

void AppendCurveJson(std::string& text, const RequestedCurve& curve, const CurveSettings& settings,
                     AxisTexts& axes)
{
    const ChartRecord& line = curve.Line;
    text += '{';
    AddText(text, "part", ShownPartNum(*curve.Part, curve.Code, settings));
    AddText(text, "chart", ChartKindOf(line.ChartType).CommandName);
    AddText(text, "xName", line.XAxisName);
    AddText(text, "xUnit", StoredUnitOf(line.XAxisName));
    AddText(text, "yName", line.YAxisName);
    AddText(text, "yUnit", StoredUnitOf(line.YAxisName));
    AddConditions(text, line);
    AppendKey(text, "x");
    text += axes.Of(line.XData);
    AppendKey(text, "y");
    AppendValues(text, line.YData);
    AddNumber(text, "xMax", line.XMax);
    AddNumber(text, "yMax", line.YMax);
    AddNumber(text, "xMin", line.XMin);
    AddNumber(text, "yMin", line.YMin);
    AddNumber(text, "extraValue", line.ExtraValue);
    text += "}\n";
}

void AppendErrorJson(std::string& text, int number, std::string_view message, std::optional<double> limit)
{
    text += "{\"error\":{";
    AppendKey(text, "number");
    AppendNumber(text, number);
    AddText(text, "message", message);
    if (limit)
    {
        AppendKey(text, "limit");
        AppendNumber(text, *limit);
    }
    text += "}}\n";
}
