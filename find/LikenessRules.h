#pragma once

/// What is refused of a question for parts like another.

#include "find/Likeness.h"
#include "find/QuestionRules.h"

/// The first refusal, or nothing: a part whose capacitance is not known, or is not above 0 throughout, ranges
/// that it does not permit, percentages that make no sense, a heat resistance that no part permits. Keys are
/// "part", "dcBias", "ambient", "heatResistance", "worse" and "most".
std::optional<QuestionRefusal> RefuseLikeQuestion(const LikeQuestion& question);
