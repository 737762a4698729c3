#include "requests/CurveFormats.h"

#include "calc/CurveCsv.h"
#include "calc/DataFile.h"
#include "requests/CurveJson.h"

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

static std::string Csv(const RequestedCurve& curve, const CurveSettings& settings)
{
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
