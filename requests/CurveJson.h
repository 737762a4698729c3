#pragma once

/// A curve with its conditions, and what is told in its place, as JSON.

#include "requests/AxisTexts.h"
#include "requests/CurveRequest.h"

/// Appends one line of JSON in UTF-8: part, chart, names and units of the axes, the conditions that the curve
/// depends on by the names that requests use, 200 X and 200 Y values, the default limits and the extra value.
/// Each number is the shortest text of its single; frequencies of X are in Hz. A stream of curves hands over
/// the same axis texts with each.
///
/// Points and levels that were asked for stand in place of the X and Y values. `id` is the JSON text of what
/// the answer is to be known by; empty where there is none.
void AppendCurveJson(std::string& text, const RequestedCurve& curve, const CurveSettings& settings,
                     AxisTexts& axes, std::string_view id = {});

/// Why there is no curve. What does not apply is empty.
struct ErrorAnswer
{
    int Number;
    std::string_view Code;
    std::string Message;
    std::size_t Line;
    std::string Part = {};
    std::string Key = {};
    std::optional<double> Limit = {};
    std::optional<std::size_t> Position = {};
    std::string Hint = {};
};

/// Appends one line of JSON, {"schemaVersion":1,"error":{"number":5,"code":"unit","message":"..."}}, with the
/// members that apply; line breaks of the message become one blank.
void AppendErrorJson(std::string& text, const ErrorAnswer& error, std::string_view id);
