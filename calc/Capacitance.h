#pragma once

/// Capacitance of a part over temperature and over DC bias voltage.
///
/// The curves follow one of two models of the capacitance change c in percent, with B(V) the change by the
/// bias alone. Polynomial: c = P(T - 25) combined with B(V). Peaked: a bell around a peak temperature Tp(V),
/// c = (B(V) + 100) · A / 100 · exp(-k(V) · |T - Tp(V)|^n) + offset, with its own k and n on either side.
/// In the JIS view the change refers to the capacitance at 20 °C without bias, else to the nominal one.

#include "calc/Curve.h"
#include "calc/Quantities.h"
#include "partdata/Characteristic.h"
#include "partdata/PartRecord.h"

#include <optional>

/// Capacitance (pF) or capacitance change (%), as `y` says, over the temperature range of the part's
/// characteristic at a fixed bias. 200 points, both ends included. A part without a model has no points, but
/// default limits.
///
/// Throws RunTimeError 5 for another quantity, and 5, 6 or 11 at the step that goes wrong.
Curve CalcCapTemperature(const PartRecord& part, float biasVolts, Quantity y, CodeView view);

/// As `CalcCapTemperature`, over the bias from 0 to the rated voltage at a fixed temperature.
Curve CalcCapDCVoltage(const PartRecord& part, float ambientC, Quantity y, CodeView view);

/// A part at one bias and one temperature.
struct CapacitancePoint
{
    double PicoFarads;
    /// Change in percent of the view's reference.
    double Change;
};

/// Both for a part at one bias and one temperature; nothing for a part without a model. Throws RunTimeError
/// 5, 6 or 11 at the step that goes wrong.
std::optional<CapacitancePoint> CapacitancePointAt(const PartRecord& part, double biasVolts, double celsius,
                                                   CodeView view);

/// Capacitance (pF) or capacitance change (%) of a part at one bias and one temperature; nothing for a part
/// without a model. Throws RunTimeError 5, 6 or 11 at the step that goes wrong.
std::optional<double> CapacitanceAt(const PartRecord& part, double biasVolts, double celsius, Quantity y,
                                    CodeView view);
