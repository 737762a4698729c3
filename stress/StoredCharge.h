#pragma once

/// The charge of a part over its voltage.

#include "partdata/PartRecord.h"

#include <vector>

/// Charge and voltage of a part at one temperature: the charge is the integral of the capacitance from 0 V
/// on. Beyond the rated voltage the capacitance is held, and below 0 V it is as above.
class StoredCharge
{
public:
    /// Throws RunTimeError 5, 6 or 11 where the capacitance cannot be calculated, and 5 for a part without a
    /// model or a capacitance that is not above 0.
    StoredCharge(const PartRecord& part, double celsius, CodeView view);

    /// In As, at a voltage in V.
    double ChargeAt(double volts) const;
    /// The voltage of a charge.
    double VoltageAt(double charge) const;

private:
    double rated;
    /// Over equal steps from 0 V to the rated voltage.
    std::vector<double> farads;
    std::vector<double> charges;
};
