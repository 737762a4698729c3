#pragma once

/// The lines of a chart that is asked for, and the ranges of its axes.

#include "chart/layout/ChartView.h"
#include "requests/CurveRequest.h"

#include <string>
#include <vector>

/// Axis ends as typed, in the unit of the axis and with a unit if wanted; what is left out stays as the lines
/// need it.
struct TypedRange
{
    std::optional<std::string> XFrom = {};
    std::optional<std::string> XTo = {};
    std::optional<std::string> YFrom = {};
    std::optional<std::string> YTo = {};
};

/// The curves of up to six requests of one chart. Throws as `CurveOf`, and RequestError for a seventh line
/// and for one that is there already; of several the error tells the line.
std::vector<RequestedCurve> CurvesOf(const std::vector<CurveRequest>& requests, const PartTable& parts,
                                     const CurveSettings& settings);

/// The view of the lines in the range that they need, or in the one that is typed, judged as the axis-range
/// dialog judges it. Throws RequestError for a value that is no number or has a wrong unit, and for a range
/// that is not permitted.
ChartView ViewOf(const std::vector<ChartRecord>& lines, const TypedRange& typed);
