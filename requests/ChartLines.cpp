#include "requests/ChartLines.h"

#include "calc/NumberText.h"
#include "calc/Units.h"
#include "chart/drawing/AxisLimits.h"
#include "chart/drawing/ChartSheet.h"
#include "partdata/RunTimeError.h"
#include "requests/Quantity.h"

#include <algorithm>
#include <sstream>

static void TakeCondition(CurveRequest& request, const std::string& name, const std::string& value)
{
    if (name == "dc-bias")
    {
        request.DCBias = value;
    }
    else if (name == "frequency")
    {
        request.Frequency = value;
    }
    else if (name == "heat-resistance")
    {
        request.HeatResistance = value;
    }
    else if (name == "ambient")
    {
        request.Ambient = value;
    }
    else if (name == "current" || name == "voltage" || name == "effective-power" || name == "apparent-power")
    {
        request.Parameter = name;
        request.ParameterValue = value;
    }
    else
    {
        throw UsageError("\"" + name +
                         "\" is none of: dc-bias, frequency, heat-resistance, ambient, current, "
                         "voltage, effective-power, apparent-power");
    }
}

CurveRequest RequestOfLine(const std::string& line, const CurveRequest& defaults)
{
    CurveRequest request = defaults;
    std::istringstream words(line);
    if (!(words >> request.Part))
    {
        throw UsageError("--line is empty");
    }
    std::string word;
    while (words >> word)
    {
        const auto equals = word.find('=');
        if (equals == std::string::npos)
        {
            throw UsageError("--line \"" + line + "\": \"" + word + "\" is not NAME=VALUE");
        }
        TakeCondition(request, word.substr(0, equals), word.substr(equals + 1));
    }
    return request;
}

static RequestedCurve NamedCurveOf(const CurveRequest& request, const PartTable& parts,
                                   const CurveSettings& settings)
{
    try
    {
        return CurveOf(request, parts, settings);
    }
    catch (const Failure& failure)
    {
        throw Failure(request.Part + ": " + failure.what());
    }
    catch (const RunTimeError& error)
    {
        throw error.At(request.Part);
    }
}

std::vector<RequestedCurve> CurvesOf(const std::vector<CurveRequest>& requests, const PartTable& parts,
                                     const CurveSettings& settings)
{
    std::vector<RequestedCurve> curves;
    for (const CurveRequest& request : requests)
    {
        auto curve = NamedCurveOf(request, parts, settings);
        if (std::ranges::any_of(curves, [&](const auto& other) { return SameLine(other.Line, curve.Line); }))
        {
            throw Failure(request.Part + ": This Chart is already opened!");
        }
        if (curves.size() == static_cast<std::size_t>(maximumLines))
        {
            throw Failure(request.Part + ": Maximum Numbers of this Chart Type open!");
        }
        curves.push_back(std::move(curve));
    }
    return curves;
}

namespace
{
/// One axis of a chart: its quantity, the range in force and what is permitted, as shown to the user.
struct Axis
{
    const char* Name;
    std::string Quantity;
    PermittedRange Permitted;
};
} // namespace

/// Throws UsageError that names the option of the end.
static float EndOf(const std::string& typed, const Axis& axis, const char* end)
{
    try
    {
        return ValueInUnit(typed, QuantityOf(axis.Quantity));
    }
    catch (const UsageError& error)
    {
        throw UsageError(std::string(axis.Name == std::string("X") ? "--x-" : "--y-") + end + ' ' +
                         error.what());
    }
}

/// Replaces the ends that are typed.
static void Take(float& from, float& to, const std::optional<std::string>& typedFrom,
                 const std::optional<std::string>& typedTo, const Axis& axis)
{
    // A frequency is kept in Hz and shown in kHz.
    const float factor = axis.Quantity == "Frequency" ? 1000.0F : 1.0F;
    const float shownFrom = typedFrom ? EndOf(*typedFrom, axis, "from") : from / factor;
    const float shownTo = typedTo ? EndOf(*typedTo, axis, "to") : to / factor;
    if (!axis.Permitted.Contains(shownFrom) || !axis.Permitted.Contains(shownTo) || !(shownFrom < shownTo))
    {
        throw Failure("Set " + std::string(axis.Name) + " Range of " + axis.Quantity + " from " +
                      NumberText(axis.Permitted.Lowest) + " to " + NumberText(axis.Permitted.Highest) + " " +
                      UnitOf(axis.Quantity));
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
             {"X", view.Chart.XAxisName, PermittedXRange(view.Chart, defaults)});
        Take(view.Range.YMin, view.Range.YMax, typed.YFrom, typed.YTo,
             {"Y", view.Chart.YAxisName, PermittedYRange(view.Chart, defaults)});
    }
    return view;
}
