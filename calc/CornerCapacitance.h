#pragma once

/// The least and the most capacitance of a part over ranges of bias and temperature.
///
/// In the polynomial model bias and temperature each scale the capacitance, so that only the least and the
/// most of either can meet. In the peaked model it rises to a peak over the temperature and falls behind it,
/// so that only the ends of the ambient range and the ridge of the peaks count, each a curve over the bias.

#include "calc/Box.h"
#include "calc/Capacitance.h"

#include <optional>

/// A capacitance and where it occurs.
struct CapacitanceAtPlace
{
    CapacitancePoint Point{};
    Place At;
};

struct CapacitanceExtremes
{
    CapacitanceAtPlace Least;
    CapacitanceAtPlace Most;
};

/// Both over every bias and temperature of the box, as `CapacitancePointAt` gives them there; of several
/// places with the same value the one of the lowest bias, then of the lowest temperature. Nothing for a part
/// without a model. Throws RunTimeError 5, 6 or 11 at the step that goes wrong.
std::optional<CapacitanceExtremes> CapacitanceExtremesIn(const PartRecord& part, const ConditionBox& box,
                                                         CodeView view);
