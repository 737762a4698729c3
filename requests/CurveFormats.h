#pragma once

/// The formats that a curve is written in.

#include "requests/CurveRequest.h"
#include "requests/OutputFormat.h"

#include <span>
#include <string>

/// A format of one curve with its conditions, as the bytes of a file.
using CurveFormat = OutputFormat<std::string (*)(const RequestedCurve& curve, const CurveSettings& settings)>;

/// All formats, the one that holds where none is named foremost: the program's data file, CSV and JSON, the
/// last two in UTF-8 with lines ended by line feeds.
std::span<const CurveFormat> CurveFormats();
