#include "calc/CurveCsv.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "calc/NumberText.h"
#include "partdata/OneLine.h"

#include <cmath>

static std::string Heading(std::string_view axisName)
{
    return std::string(axisName) + " [" + StoredUnitOf(axisName) + ']';
}

std::string CsvHead(const ChartRecord& line, std::string_view partNumber)
{
    std::string text = "# part: " + WithoutControls(partNumber) + '\n';
    text.append("# chart: ").append(ChartKindOf(line.ChartType).Caption).append("\n");
    for (const ConditionLine& condition : ConditionLines(line))
    {
        text += "# " + condition.Name + ": " + condition.Value + ' ' + condition.Unit + '\n';
    }
    return text + Heading(line.XAxisName) + ',' + Heading(line.YAxisName) + '\n';
}

std::string CsvRow(float x, float y)
{
    return NumberText(x) + ',' + (std::isnan(y) ? std::string() : NumberText(y)) + '\n';
}

std::string CsvRows(const ChartRecord& line)
{
    std::string rows;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        rows += CsvRow(line.XData[i], line.YData[i]);
    }
    return rows;
}

std::string CurvesCsv(std::span<const NamedLine> lines)
{
    std::string text;
    for (const NamedLine& line : lines)
    {
        text += text.empty() ? "" : "\n";
        text += CsvHead(line.Line, line.PartNumber) + CsvRows(line.Line);
    }
    return text;
}
