#include "requests/CurveFormats.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "calc/DataFile.h"
#include "calc/NumberText.h"
#include "partdata/OneLine.h"
#include "requests/CurveJson.h"
#include "requests/UnitEntry.h"

#include <array>

static std::string DataFile(const RequestedCurve& curve, const CurveSettings& settings)
{
    return DataFileText(curve.Line, *curve.Part, curve.Code, settings.Date);
}

static std::string RowOf(float x, float y)
{
    return NumberText(x) + ',' + NumberText(y) + '\n';
}

/// The 200 points, or a row for each point and crossing that were asked for in their place.
static std::string RowsOf(const RequestedCurve& curve)
{
    std::string rows;
    for (std::size_t i = 0; !curve.HasOwnPoints() && i < CurvePoints; ++i)
    {
        rows += RowOf(curve.Line.XData[i], curve.Line.YData[i]);
    }
    for (const CurvePoint& point : curve.Points.value_or(std::vector<CurvePoint>()))
    {
        rows += RowOf(point.X, point.Y);
    }
    for (const CurveLevel& level : curve.Levels.value_or(std::vector<CurveLevel>()))
    {
        for (const float x : level.X)
        {
            rows += RowOf(x, level.Y);
        }
    }
    return rows;
}

/// Comment lines that begin with "#" tell part, chart and conditions; then a heading and lines of X and Y
/// as number text, in the unit of the heading.
static std::string Csv(const RequestedCurve& curve, const CurveSettings& settings)
{
    const ChartRecord& line = curve.Line;
    std::string text = "# part: " + WithoutControls(ShownPartNum(*curve.Part, curve.Code, settings)) + '\n';
    text.append("# chart: ").append(ChartKindOf(line.ChartType).Caption).append("\n");
    for (const ConditionLine& condition : ConditionLines(line))
    {
        text += "# " + condition.Name + ": " + condition.Value + ' ' + condition.Unit + '\n';
    }
    text += line.XAxisName + " [" + StoredUnitOf(line.XAxisName) + "]," + line.YAxisName + " [" +
            StoredUnitOf(line.YAxisName) + "]\n";
    return text + RowsOf(curve);
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
