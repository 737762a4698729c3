#pragma once

/// Curve requests as JSON objects, and their answers.

#include "requests/AxisTexts.h"
#include "requests/CurveRequest.h"

#include <string>
#include <string_view>
#include <vector>

/// The keys of requests: part, chart, x, y, the conditions, parameter and code.
std::vector<std::string> RequestKeys();

/// The request of an object with `RequestKeys`; values are numbers or texts with a unit. What stands in
/// `defaults` holds where a key is missing; a null is a missing key.
///
/// Throws RequestError for a text that is no such object.
CurveRequest RequestOfJson(std::string_view text, const CurveRequest& defaults);

/// Appends the answer to a request, one line of JSON: the curve, or the number and message of an error; false
/// when it is an error. A stream of requests hands over the same axis texts with each.
bool AppendAnswer(std::string& text, std::string_view request, const CurveRequest& defaults,
                  const PartTable& parts, const CurveSettings& settings, AxisTexts& axes);
