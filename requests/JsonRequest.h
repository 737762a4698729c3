#pragma once

/// Curve requests as JSON objects, and their answers.

#include "requests/AxisTexts.h"
#include "requests/CurveRequest.h"

#include <string>
#include <string_view>
#include <vector>

/// The keys of requests: part, chart, x, y, the conditions, parameter, code, at, where and id.
std::vector<std::string> RequestKeys();

/// The request of an object with `RequestKeys`; values are numbers or texts with a unit, of at and where also
/// lists of them. The id is not looked at. What stands in `defaults` holds where a key is missing; a null is
/// a missing key.
///
/// Throws RequestError for a text that is no such object.
CurveRequest RequestOfJson(std::string_view text, const CurveRequest& defaults);

/// One line of a stream.
struct RequestLine
{
    std::string_view Text;
    /// Counted from 1.
    std::size_t Number = 1;
};

/// Appends the answer to a request, one line of JSON: the curve, or why there is none; false when there is
/// none. Either echoes the member id of the request. A stream of requests hands over the same axis texts with
/// each.
bool AppendAnswer(std::string& text, RequestLine request, const CurveRequest& defaults,
                  const PartTable& parts, const CurveSettings& settings, AxisTexts& axes);
