#pragma once

/// Values of a curve at single points, and where it takes single values.

#include "calc/ChartRecord.h"
#include "partdata/PartRecord.h"

#include <optional>
#include <string>
#include <vector>

/// One point in the units of the record; without a Y where the law has no value.
struct CurvePoint
{
    float X;
    std::optional<float> Y;
};

/// Every X, upwards, at which a curve takes a value.
struct CurveLevel
{
    float Y;
    std::vector<float> X;
};

/// "the curve reaches from 0 to 25 [V] of DC Bias Voltage".
std::string ReachOf(const ChartRecord& line);

/// The points of a computed line at each X as typed, in that order.
///
/// Throws RequestError with the key "at" for a text that is no number, for a unit that does not fit, and for
/// an X that the line does not reach.
std::vector<CurvePoint> PointsOf(const PartRecord& part, const ChartRecord& line, CodeView code,
                                 const std::vector<std::string>& at);

/// Where a computed line takes each Y as typed, in that order.
///
/// Throws RequestError with the key "where" for a text that is no number, for a unit that does not fit, and
/// for a value that no single can hold.
std::vector<CurveLevel> LevelsOf(const PartRecord& part, const ChartRecord& line, CodeView code,
                                 const std::vector<std::string>& where);
