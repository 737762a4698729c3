#pragma once

/// A stream of curve requests, one JSON object a line, answered line by line.

#include "cli/Output.h"
#include "requests/AxisTexts.h"
#include "requests/CurveRequest.h"

#include <iosfwd>

/// The request of a line with the keys part, chart, x, y, dcBias, frequency, heatResistance, ambient,
/// parameter, parameterValue and code; values are numbers or texts with a unit. What stands in `defaults`
/// holds where a key is missing; a null is a missing key.
///
/// Throws UsageError for a line that is no such object.
CurveRequest RequestOfJson(std::string_view line, const CurveRequest& defaults);

/// What a stream came to.
struct RequestCounts
{
    std::size_t Requests = 0;
    std::size_t WithoutCurve = 0;
};

/// Appends the answer to one line; false when it is an error. The axis texts are those of the stream.
bool AppendAnswer(std::string& text, std::string_view line, const CurveRequest& defaults,
                  const PartTable& parts, const CurveSettings& settings, AxisTexts& axes);

/// Answers every line of a file, or of standard input for "-", in order; empty lines are skipped. Holds one
/// request and one answer at a time, and hands over answers whenever no further request is waiting.
///
/// Throws Failure for a file that cannot be read.
RequestCounts AnswerRequests(const std::string& fileName, const CurveRequest& defaults,
                             const PartTable& parts, const CurveSettings& settings, Output& output);
