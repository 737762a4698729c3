#pragma once

/// A curve with its conditions, and what is told in its place, as JSON.

#include "requests/AxisTexts.h"
#include "requests/CurveRequest.h"

/// Appends one line of JSON in UTF-8: part, chart, names and units of the axes, the conditions that the curve
/// depends on by the names that requests use, 200 X and 200 Y values, the default limits and the extra value.
/// Each number is the shortest text of its single; frequencies of X are in Hz. A stream of curves hands over
/// the same axis texts with each.
void AppendCurveJson(std::string& text, const RequestedCurve& curve, const CurveSettings& settings,
                     AxisTexts& axes);

/// Appends one line of JSON: {"error":{"number":5,"message":"...","limit":9.93}}, the limit only where there
/// is one.
void AppendErrorJson(std::string& text, int number, std::string_view message, std::optional<double> limit);
