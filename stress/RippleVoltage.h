#pragma once

/// The voltage that a current of any shape makes across a part.

#include "stress/StoredCharge.h"
#include "stress/Waveform.h"

#include <span>
#include <vector>

/// Current and charge at one time, in A and As.
struct ChargePoint
{
    double Amperes;
    double Charge;
};

/// One period of a current, fine enough to find the peaks of its voltage: the current without its mean, and
/// the charge about its own mean.
std::vector<ChargePoint> ChargeOver(const Waveform& current, TimeSpan period, double meanCurrent);

/// The voltage of a part in V: peak to peak, and the highest.
struct RippleVoltage
{
    double PeakToPeak;
    double Highest;
};

/// The voltage about a bias, at which the mean charge is that of the bias: through the charge law, and by the
/// current across a resistance in ohms in series. `share` is the part's share of the current.
RippleVoltage RippleVoltageOf(std::span<const ChargePoint> period, double share, const StoredCharge& law,
                              double biasVolts, double ohms);
