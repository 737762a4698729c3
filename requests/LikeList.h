#pragma once

/// The parts that may stand for a part, as a list.

#include "find/Likeness.h"
#include "partdata/PartTable.h"
#include "requests/CurveRequest.h"
#include "requests/OutputFormat.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What such a list tells of each part.
enum class LikeColumn
{
    Part,
    Size,
    Characteristic,
    Capacitance,
    RatedVoltage,
    LeastRatio,
    MostRatio,
    LossRatio,
    Area,
};

/// A number of a part in the unit of its column; nothing where it is empty, and for names.
std::optional<float> ValueOf(const LikePart& like, LikeColumn column);

/// A ratio in percent against the part: "+3.3", "-1.7", "0"; "-" where it is empty.
std::string RatioText(std::optional<float> percent);

/// One key of an order, the first of them the weightiest.
struct LikeKey
{
    LikeColumn Column;
    bool Downwards = false;
};

/// What requests call the columns, in their order.
std::vector<std::string_view> LikeColumnNames();

/// "area,-least-ratio". Throws RequestError that lists the names.
std::vector<LikeKey> LikeKeysOf(std::string_view typed);

/// Sorts found parts of a table: parts by their place in it, sizes and characteristics by where it first
/// names them, the others by their values. Empty values stand last either way; what is equal in all keys
/// stays in its order.
void SortLike(std::vector<LikePart>& found, const PartTable& parts, const std::vector<LikeKey>& keys,
              CodeView code);

/// A format of the list. UTF-8, lines ended by line feeds; where none fits, table and CSV list the nearest
/// and mark them "short". JSON is one object with both lists.
using LikeListFormat = OutputFormat<std::string (*)(const LikeParts& found, const LikeQuestion& question,
                                                    const CurveSettings& settings)>;

/// All formats, the one that holds where none is named foremost: a table for people, CSV and JSON.
std::span<const LikeListFormat> LikeListFormats();
