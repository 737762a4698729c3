#pragma once

/// The least and the most that a curve is over ranges of its conditions and of its X.

#include "calc/Box.h"
#include "calc/ChartRecord.h"
#include "calc/Quantities.h"
#include "partdata/PartRecord.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One condition of the place at which a value occurs.
struct CurveCondition
{
    /// "dcBias", "ambient", "frequency", or "x" for a load.
    std::string_view Key;
    Quantity Measures;
    /// In the unit that it is entered in.
    float Value;
};

/// A value of a curve, and the place where it occurs.
struct CurveExtreme
{
    float Y;
    std::vector<CurveCondition> At;
};

/// What a curve is at an X, or over a range of it, in the units of the record.
struct WorstPoint
{
    ConditionRange X;
    CurveExtreme Least;
    CurveExtreme Most;
};

/// One line at both ends of its conditions, which are otherwise alike.
struct LineEnds
{
    const ChartRecord& Low;
    const ChartRecord& High;
};

/// The extremes of the lines between two, over a range of X. Capacitances are exact; what heating brings is
/// looked for on nodes, and from the best of these. Nothing where the curve has no value somewhere.
std::optional<WorstPoint> WorstOf(const PartRecord& part, const LineEnds& ends, const ConditionRange& x,
                                  CodeView code);

/// `WorstOf` each X as typed, a value or a range, in that order.
///
/// Throws RequestError with the key "at" for a text that is neither, for a unit that does not fit, for a
/// first end above the second, and for an X that one of the lines does not reach.
std::vector<WorstPoint> WorstPointsOf(const PartRecord& part, const LineEnds& ends, CodeView code,
                                      const std::vector<std::string>& at);
