#pragma once

/// A stream of curve requests, one JSON object a line, answered line by line.

#include "cli/Output.h"
#include "requests/CurveRequest.h"

#include <string>

/// What a stream came to.
struct RequestCounts
{
    std::size_t Requests = 0;
    std::size_t WithoutCurve = 0;
};

/// Answers every line of a file, or of standard input for "-", in order, blank ones too. Holds one
/// request and one answer at a time, and hands over answers whenever no further request is waiting.
///
/// Throws Failure for a file that cannot be read.
RequestCounts AnswerRequests(const std::string& fileName, const CurveRequest& defaults,
                             const PartTable& parts, const CurveSettings& settings, Output& output);
