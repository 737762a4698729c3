#include "requests/CurveFormats.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "calc/CurveCsv.h"
#include "calc/DataFile.h"
#include "calc/NumberText.h"
#include "partdata/OneLine.h"
#include "requests/CurveJson.h"
#include "requests/ListText.h"
#include "requests/PlaceHeading.h"

#include <array>

static std::string DataFile(const RequestedCurve& curve, const CurveSettings& settings)
{
    return DataFileText(curve.Line, *curve.Part, curve.Code, settings.Date);
}

/// The 200 points, or a row for each point and crossing that were asked for in their place.
static std::string RowsOf(const RequestedCurve& curve)
{
    std::string rows = curve.HasOwnPoints() ? std::string() : CsvRows(curve.Line);
    for (const CurvePoint& point : curve.Points.value_or(std::vector<CurvePoint>()))
    {
        rows += CsvRow(point.X, point.Y.value_or(NoValue));
    }
    for (const CurveLevel& level : curve.Levels.value_or(std::vector<CurveLevel>()))
    {
        for (const float x : level.X)
        {
            rows += CsvRow(x, level.Y);
        }
    }
    return rows;
}

/// "DC Bias Voltage low [V]".
static std::string EndHeading(const ChartRecord& line, std::string_view end)
{
    return line.XAxisName + ' ' + std::string(end) + " [" + StoredUnitOf(line.XAxisName) + ']';
}

/// "least [pF],least at bias [V],least at ambient [°C]".
static void AddHeadings(ListRow& row, std::string_view extreme, const CurveExtreme& found,
                        const ChartRecord& line)
{
    row.push_back(std::string(extreme) + " [" + StoredUnitOf(line.YAxisName) + ']');
    for (const CurveCondition& condition : found.At)
    {
        row.push_back(PlaceHeading(extreme, condition.Measures));
    }
}

static void AddValues(ListRow& row, const CurveExtreme& extreme)
{
    row.push_back(NumberText(extreme.Y));
    for (const CurveCondition& condition : extreme.At)
    {
        row.push_back(NumberText(condition.Value));
    }
}

/// Conditions with both ends, and a row for each X.
static std::string WorstCsv(const RequestedCurve& curve, const CurveSettings& settings)
{
    const auto& line = curve.Line;
    const auto lower = ConditionLines(line);
    const auto upper = ConditionLines(curve.Upper.value_or(line));
    std::string text = "# part: " + WithoutControls(ShownPartNum(*curve.Part, curve.Code, settings)) + '\n';
    text.append("# chart: ").append(ChartKindOf(line.ChartType).Caption).append("\n");
    for (std::size_t i = 0; i < lower.size(); ++i)
    {
        const bool isRange = lower[i].Value != upper[i].Value;
        text += "# " + lower[i].Name + ": " + lower[i].Value + (isRange ? ".." + upper[i].Value : "") + ' ' +
                lower[i].Unit + '\n';
    }
    std::vector<ListRow> rows;
    for (const WorstPoint& point : *curve.Worst)
    {
        if (rows.empty())
        {
            ListRow& headings = rows.emplace_back(ListRow{EndHeading(line, "low"), EndHeading(line, "high")});
            AddHeadings(headings, "least", point.Least, line);
            AddHeadings(headings, "most", point.Most, line);
        }
        ListRow& row = rows.emplace_back(ListRow{NumberText(point.X.Low), NumberText(point.X.High)});
        AddValues(row, point.Least);
        AddValues(row, point.Most);
    }
    return text + CsvOf(rows);
}

static std::string Csv(const RequestedCurve& curve, const CurveSettings& settings)
{
    if (curve.Worst)
    {
        return WorstCsv(curve, settings);
    }
    return CsvHead(curve.Line, ShownPartNum(*curve.Part, curve.Code, settings)) + RowsOf(curve);
}

static std::string Json(const RequestedCurve& curve, const CurveSettings& settings)
{
    std::string text;
    AxisTexts axes;
    AppendCurveJson(text, curve, settings, axes);
    return text;
}

std::span<const CurveFormat> CurveFormats()
{
    static constexpr std::array<CurveFormat, 3> formats = {{
        {{"tvk", "the program's data file, if left out"}, DataFile},
        {{"csv", ""}, Csv},
        {{"json", ""}, Json},
    }};
    return formats;
}
