#pragma once

/// What is refused of a question, whatever the part.

#include "find/Wants.h"

#include <optional>
#include <string>
#include <string_view>

/// Why a question is refused.
struct QuestionRefusal
{
    /// What the entry is called: the key of a condition, "dcBias", or "minCapacitance", "minWarmCapacitance",
    /// "minLeft", "maxRise", "maxLossResistance", "tolerance".
    std::string_view Key;
    /// In the words of the form, two lines separated by carriage return and line feed.
    std::string Message;
    /// The entry is missing rather than wrong.
    bool IsMissing = false;
};

/// The first refusal, or nothing: a bias or wanted limit below 0, a frequency, heat resistance, rise or load
/// that no part permits, a frequency that is needed and left out. `largestRating` in V stands in the message
/// on the bias.
std::optional<QuestionRefusal> RefuseQuestion(const FindQuestion& question, float largestRating);
