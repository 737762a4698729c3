#pragma once

/// Which parts may stand for a part, by what they do over the conditions that it works under.

#include "calc/Box.h"
#include "find/SizeOrder.h"

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What is asked: who may stand for a part.
struct LikeQuestion
{
    const PartRecord* Original = nullptr;
    /// The part's own where they are left out: from 0 to its rated voltage, and the range of its
    /// characteristic.
    std::optional<ConditionRange> BiasVolts = {};
    std::optional<ConditionRange> AmbientC = {};
    /// In percent: so much less capacitance, and so much more heating, will do.
    float Worse = 5;
    /// In percent: no more capacitance than so much above the part's.
    std::optional<float> Most = {};
    /// The part's own size where it is left out.
    std::optional<PartSize> LargestSize = {};
    /// In °C/W; each part's own where it is left out.
    std::optional<float> HeatResistance = {};
    CodeView View = CodeView::Eia;

    ConditionBox Box() const;
    /// The ambient temperatures that heating is compared over; nothing where it cannot be judged.
    std::optional<ConditionRange> HeatingAmbientC() const;
};

/// In the order in which they count: a part counts under the first that holds.
enum class UnlikeReason : std::uint8_t
{
    TooLarge,
    RatedVoltageTooLow,
    NoCapacitanceData,
    TemperatureOutOfRange,
    LessCapacitance,
    MoreCapacitance,
    NoHeatingData,
    MoreLoss,
    CannotBeCalculated,
};

inline constexpr std::size_t UnlikeReasons = 9;

/// A part beside the one that it may stand for. Ratios are in percent against that part: 60.4 is 1.604 of it.
struct LikePart
{
    const PartRecord* Part = nullptr;
    Extreme Least = {};
    Extreme Most = {};
    /// Nothing where heating cannot be judged.
    std::optional<Extreme> Loss = {};
};

struct LikeParts
{
    /// The one that changes least foremost: by the amount of the most, by area, in the order of candidates.
    std::vector<LikePart> Parts;
    /// Where none fits, up to three of those that fit the board and the conditions, the fullest foremost.
    std::vector<LikePart> Nearest;
    std::array<std::size_t, UnlikeReasons> LeftOut{};
};

/// The candidates, other than the part itself, that may stand for it. The question is one that
/// `RefuseLikeQuestion` lets pass.
LikeParts FindLike(std::span<const PartRecord* const> candidates, const LikeQuestion& question);

/// "3 parts fit; left out: 12 too large, 4 more loss; loss not judged: no heating data".
std::string LikeText(const LikeParts& found, const LikeQuestion& question);
