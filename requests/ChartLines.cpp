#include "requests/ChartLines.h"

#include "calc/Quantities.h"
#include "chart/layout/AxisLimits.h"
#include "chart/layout/ChartDrawing.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <algorithm>

/// A chart of one line needs no number to tell which line is wrong.
static RequestError InItsLine(const RequestError& error, std::size_t line, std::size_t lines)
{
    return lines > 1 ? error.InLine(line) : error;
}

/// No room on the chart is told before anything that is wrong with a line.
static void AddLine(std::vector<RequestedCurve>& curves, const CurveRequest& request, const PartTable& parts,
                    const CurveSettings& settings)
{
    const auto refuse = [&](const std::string& why)
    { throw RequestError(RequestErrorKind::Line, "part", why).OfPart(request.Part); };
    if (curves.size() >= MaximumLines)
    {
        refuse("a chart has at most " + std::to_string(MaximumLines) + " lines");
    }
    auto curve = CurveOf(request, parts, settings);
    const auto same =
        std::ranges::find_if(curves, [&](const auto& other) { return SameLine(other.Line, curve.Line); });
    if (same != curves.end())
    {
        refuse("is line " + std::to_string(same - curves.begin() + 1) + " already");
    }
    curves.push_back(std::move(curve));
}

std::vector<RequestedCurve> CurvesOf(const std::vector<CurveRequest>& requests, const PartTable& parts,
                                     const CurveSettings& settings)
{
    std::vector<RequestedCurve> curves;
    for (const CurveRequest& request : requests)
    {
        try
        {
            AddLine(curves, request, parts, settings);
        }
        catch (const RequestError& error)
        {
            throw InItsLine(error, curves.size() + 1, requests.size());
        }
    }
    return curves;
}

namespace
{
/// One axis of a chart: its quantity, the range in force and what is permitted, as shown to the user.
struct Axis
{
    const char* Name;
    /// Keys of its ends.
    const char* FromKey;
    const char* ToKey;
    std::string Quantity;
    PermittedRange Permitted;
};
} // namespace

/// Replaces the ends that are typed.
static void Take(float& from, float& to, const std::optional<std::string>& typedFrom,
                 const std::optional<std::string>& typedTo, const Axis& axis)
{
    const auto quantity = QuantityNamed(axis.Quantity);
    const float factor = KindOf(quantity).StoredPerShown;
    const float shownFrom = typedFrom ? ValueInUnit(*typedFrom, quantity, axis.FromKey) : from / factor;
    const float shownTo = typedTo ? ValueInUnit(*typedTo, quantity, axis.ToKey) : to / factor;
    if (typedFrom && typedTo && shownFrom >= shownTo)
    {
        throw RequestError(RequestErrorKind::AxisRange, axis.FromKey, "is not below " + *typedTo)
            .Of(*typedFrom);
    }
    if (const auto refusal = RefusalOfRange(axis.Name, axis.Quantity, axis.Permitted, shownFrom, shownTo))
    {
        throw RequestError(RequestErrorKind::AxisRange,
                           axis.Permitted.Contains(shownFrom) ? axis.ToKey : axis.FromKey, *refusal);
    }
    from = shownFrom * factor;
    to = shownTo * factor;
}

ChartView ViewOf(const std::vector<ChartRecord>& lines, const TypedRange& typed)
{
    ChartView view{.Chart = KeyOf(lines.front()), .Range = {}};
    const AxisRange defaults = DefaultRange(view.Chart, lines);
    view.Range = defaults;
    view.Rescaled = typed.XFrom || typed.XTo || typed.YFrom || typed.YTo;
    if (view.Rescaled)
    {
        Take(view.Range.XMin, view.Range.XMax, typed.XFrom, typed.XTo,
             {"X", "xFrom", "xTo", view.Chart.XAxisName, PermittedXRange(view.Chart, defaults)});
        Take(view.Range.YMin, view.Range.YMax, typed.YFrom, typed.YTo,
             {"Y", "yFrom", "yTo", view.Chart.YAxisName, PermittedYRange(view.Chart, defaults)});
    }
    return view;
}
