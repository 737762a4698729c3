#pragma once

/// The lines of a chart that is asked for on a command line, and the ranges of its axes.

#include "chart/drawing/ChartDrawing.h"
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

/// The request of "PART NAME=VALUE ...", words between blanks: the names are dc-bias, frequency,
/// heat-resistance, ambient and the four parameters. What is not named is as in `defaults`.
///
///     RequestOfLine("KTS31NB51E106MA01 dc-bias=12V frequency=300kHz", common)
///
/// Throws UsageError for a name that no condition bears.
CurveRequest RequestOfLine(const std::string& line, const CurveRequest& defaults);

/// The curves of up to six requests of one chart. Throws as `CurveOf`, each error with the part; Failure for
/// a seventh line and for one that is there already, as Plot refuses them.
std::vector<RequestedCurve> CurvesOf(const std::vector<CurveRequest>& requests, const PartTable& parts,
                                     const CurveSettings& settings);

/// The view of the lines in the range that they need, or in the one that is typed, judged as the axis-range
/// dialog judges it. Throws UsageError for a value that is no number or has a wrong unit, Failure for a range
/// that is not permitted.
ChartView ViewOf(const std::vector<ChartRecord>& lines, const TypedRange& typed);
