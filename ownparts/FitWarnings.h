#pragma once

/// What a fit's report warns of.

#include "ownparts/FitGroups.h"

/// Adds what was left out or taken for granted, and what looks wrong with the points: residuals beyond what a
/// good measurement leaves, a point far from all others, repeats that scatter less than the law is off, a
/// capacitance that grows under bias.
void AddWarnings(FittedPart& fitted, const FitStory& story);
