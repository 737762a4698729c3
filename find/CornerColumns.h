#pragma once

/// What a part heats up by anywhere in ranges of conditions, as columns.

#include "calc/CornerCurrent.h"
#include "calc/CornerVoltage.h"
#include "find/FoundPart.h"
#include "find/OperatingPoint.h"

/// One part in the ranges of a question, which have a frequency. All that it fills throws RunTimeError 5, 6
/// or 11 for a calculation that faults.
class CornerColumns
{
public:
    CornerColumns(const PartRecord& part, const OperatingPoint& at, PermittedRise permitted,
                  double heatResistance);

    /// The largest loss resistance and the least permitted rise.
    void FillHeating(FoundPart& row) const;
    /// The least of the allowed currents and voltages.
    void FillLoads(FoundPart& row) const;
    /// The largest rise and body temperature and the least margin, under so much of a current or voltage.
    void FillRise(FoundPart& row, const AcLoad& load, double ofEach) const;
    /// The least body temperature under it, in °C.
    double LeastBody(const AcLoad& load, double ofEach) const;

private:
    template <class Corners> static void FillRiseBy(FoundPart& row, const Corners& corners, double ofEach);

    HeatingBox box;
    PermittedRise permitted;
    CurrentCorners current;
    VoltageCorners voltage;
};
