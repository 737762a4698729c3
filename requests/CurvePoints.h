#pragma once

/// Values of a curve at single points, and where it takes single values.

#include "requests/CurveRequest.h"

/// The points and levels that the request asks for, of a curve that is computed. Both are lists in the order
/// asked for, and nothing where the request asks for none.
///
/// Throws RequestError with the key "at" or "where" for a text that is no number, for a unit that does not
/// fit, and for a point that the curve does not reach.
void TakePoints(RequestedCurve& curve, const CurveRequest& request);
