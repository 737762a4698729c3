#include "requests/CurvePoints.h"

#include "calc/NumberText.h"
#include "calc/Quantities.h"
#include "calc/ValueAt.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

static std::string ReachOf(const ChartRecord& line)
{
    const auto x = QuantityNamed(line.XAxisName);
    return "the curve reaches from " + NumberText(ShownValue(x, line.XData.front())) + " to " +
           NumberText(ShownValue(x, line.XData.back())) + ' ' + UnitOf(x) + " of " + line.XAxisName;
}

static CurvePoint PointAt(const RequestedCurve& curve, const std::string& typed)
{
    const float x = StoredValueInUnit(typed, QuantityNamed(curve.Line.XAxisName), "at");
    const auto y = ValueAt(*curve.Part, curve.Line, x, curve.Code);
    if (!y)
    {
        throw RequestError(RequestErrorKind::Condition, "at", ReachOf(curve.Line)).Of(typed);
    }
    return {x, static_cast<float>(*y)};
}

static CurveLevel LevelOf(const RequestedCurve& curve, const std::string& typed)
{
    const float y = StoredValueInUnit(typed, QuantityNamed(curve.Line.YAxisName), "where");
    return {y, CrossingsOf(*curve.Part, curve.Line, y, curve.Code)};
}

void TakePoints(RequestedCurve& curve, const CurveRequest& request)
{
    if (request.At)
    {
        curve.Points.emplace();
        for (const std::string& typed : *request.At)
        {
            curve.Points->push_back(PointAt(curve, typed));
        }
    }
    if (request.Where)
    {
        curve.Levels.emplace();
        for (const std::string& typed : *request.Where)
        {
            curve.Levels->push_back(LevelOf(curve, typed));
        }
    }
}
