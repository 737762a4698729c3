#include "requests/CurvePoints.h"

#include "calc/NumberText.h"
#include "calc/Quantities.h"
#include "calc/ValueAt.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <cmath>

std::string ReachOf(const ChartRecord& line)
{
    const auto x = QuantityNamed(line.XAxisName);
    return "the curve reaches from " + NumberText(ShownValue(x, line.XData.front())) + " to " +
           NumberText(ShownValue(x, line.XData.back())) + ' ' + UnitOf(x) + " of " + line.XAxisName;
}

std::vector<CurvePoint> PointsOf(const PartRecord& part, const ChartRecord& line, CodeView code,
                                 const std::vector<std::string>& at)
{
    const auto quantity = QuantityNamed(line.XAxisName);
    std::vector<CurvePoint> points;
    for (const std::string& typed : at)
    {
        const float x = StoredValueInUnit(typed, quantity, "at");
        const auto y = ValueAt(part, line, x, code);
        if (!Reaches(line, x))
        {
            throw RequestError(RequestErrorKind::Condition, "at", ReachOf(line)).Of(typed);
        }
        points.push_back({x, y ? std::optional(static_cast<float>(*y)) : std::nullopt});
    }
    return points;
}

std::vector<CurveLevel> LevelsOf(const PartRecord& part, const ChartRecord& line, CodeView code,
                                 const std::vector<std::string>& where)
{
    const auto quantity = QuantityNamed(line.YAxisName);
    std::vector<CurveLevel> levels;
    for (const std::string& typed : where)
    {
        const float y = StoredValueInUnit(typed, quantity, "where");
        if (!std::isfinite(y))
        {
            // The answer names the value, and has no way to write this one.
            throw RequestError(RequestErrorKind::Condition, "where", "no curve takes a value so large")
                .Of(typed);
        }
        levels.push_back({y, CrossingsOf(part, line, y, code)});
    }
    return levels;
}
