#include "requests/CurveText.h"

#include "calc/ChartNames.h"
#include "calc/ConditionLines.h"
#include "calc/NumberText.h"
#include "calc/Units.h"
#include "requests/Names.h"

#include <nlohmann/json.hpp>

#include <charconv>

/// "Arms" of the axis text "Current"; an X of frequency is stored in Hz.
static std::string StoredUnit(const std::string& axisName)
{
    if (axisName == "Frequency")
    {
        return "Hz";
    }
    const auto unit = GetUnit(axisName, defaultDegreeSign);
    return unit.substr(1, unit.size() - 2);
}

std::string CurveCsv(const RequestedCurve& curve, const CurveSettings& settings)
{
    const ChartRecord& line = curve.Line;
    std::string text = "# part: " + ShownPartNum(*curve.Part, curve.Code, settings) + '\n';
    text.append("# chart: ").append(ChartTypeNames[static_cast<std::size_t>(line.ChartType)]).append("\n");
    for (const ConditionLine& condition : ConditionLines(line))
    {
        text += "# " + condition.Name + ": " + condition.Value + ' ' + condition.Unit + '\n';
    }
    text += line.XAxisName + " [" + StoredUnit(line.XAxisName) + "]," + line.YAxisName + " [" +
            StoredUnit(line.YAxisName) + "]\n";
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        text += NumberText(line.XData[i]) + ',' + NumberText(line.YData[i]) + '\n';
    }
    return text;
}

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

static void AppendKey(std::string& text, const char* key)
{
    text.append(text.ends_with('{') ? "\"" : ",\"").append(key).append("\":");
}

static void AddNumber(std::string& text, const char* key, float value)
{
    AppendKey(text, key);
    AppendNumber(text, value);
}

static void AddText(std::string& text, const char* key, std::string_view value)
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
        if (condition.Name == "DC Bias Voltage")
        {
            AddNumber(text, "dcBias", line.DCBiasVoltage);
        }
        else if (condition.Name == "Heat Resistance")
        {
            AddNumber(text, "heatResistance", line.HeatResistance);
        }
        else if (condition.Name == "Frequency")
        {
            AddNumber(text, "frequency", line.Frequency);
        }
        else if (condition.Name == "Ambient Temperature")
        {
            AddNumber(text, "ambient", line.AmbientTemp);
        }
        else
        {
            AddText(text, "parameter", RequestNameOf(line.ParameterName));
            AddNumber(text, "parameterValue", line.ParameterValue);
        }
    }
    text += '}';
}

void AppendCurveJson(std::string& text, const RequestedCurve& curve, const CurveSettings& settings,
                     AxisTexts& axes)
{
    const ChartRecord& line = curve.Line;
    text += '{';
    AddText(text, "part", ShownPartNum(*curve.Part, curve.Code, settings));
    AddText(text, "chart", ChartCommandNames[static_cast<std::size_t>(line.ChartType)]);
    AddText(text, "xName", line.XAxisName);
    AddText(text, "xUnit", StoredUnit(line.XAxisName));
    AddText(text, "yName", line.YAxisName);
    AddText(text, "yUnit", StoredUnit(line.YAxisName));
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
