#pragma once

/// The vectors: parts of every kind, and curves of them that were computed independently of this program.

#include "calc/ChartRecord.h"
#include "partdata/PartTable.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

/// One curve: the part, the conditions, and the points, limits, refusal or error number to expect.
struct CurveVector
{
    std::size_t Line;
    std::size_t PartIndex;
    std::string PartNum;
    CodeView View;
    ChartRecord Conditions;
    nlohmann::json Expect;
};

void PrintTo(const CurveVector& vector, std::ostream* out);

/// The parts of the vectors, read once.
const PartTable& VectorParts();

/// All curves, one a line of the file.
std::vector<CurveVector> ReadCurveVectors();
