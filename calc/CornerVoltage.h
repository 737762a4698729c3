#pragma once

/// Heating by a voltage over ranges of bias, ambient temperature and frequency.
///
/// The logarithm of the heating rises or falls throughout over the frequency, so that an end is the worst.
/// Over bias and temperature it is looked for on nodes and, unless a corner is the worst, from there.

#include "calc/Box.h"
#include "calc/PermittedRise.h"

#include <array>
#include <vector>

/// One part over a box. The part must outlive it. All that it tells throws RunTimeError 5, 6 or 11 at the
/// step that goes wrong.
class VoltageCorners
{
public:
    VoltageCorners(const PartRecord& part, const HeatingBox& box, PermittedRise permitted,
                   double heatResistance);

    /// The least of the allowed voltages, in Vrms.
    double LeastVoltage() const;
    /// The largest rise of a voltage, in °C.
    Extreme MostRise(double volts) const;
    /// The largest body temperature, in °C.
    Extreme MostBody(double volts) const;
    /// The least body temperature, in °C.
    double LeastBody(double volts) const;
    /// What is least left of the permitted rise, in °C.
    Extreme LeastMargin(double volts) const;

private:
    /// The law at one temperature: quadratics in the bias over the rated voltage.
    struct Row
    {
        double AmbientC;
        double Permitted;
        double LnPermitted;
        std::array<double, 3> Amplitude;
        std::array<double, 3> FrequencyExponent;
        std::array<double, 3> VoltageExponent;
    };

    Row RowAt(double ambientC) const;
    template <class Wish>
    double WishAt(const Row& row, double biasVolts, double lnLog10Hz, const Wish& wish) const;
    template <class Wish> Extreme LeastNode(const Wish& wish) const;
    template <class Wish> Place LeastOf(const Wish& wish) const;
    PowerModel ModelAt(const Place& place) const;
    double RiseOf(double volts, const Place& place) const;

    const PartRecord& part;
    HeatingBox box;
    PermittedRise permitted;
    double heatResistance;
    double lnHeatResistance;
    std::vector<double> biases;
    std::vector<double> temperatures;
};
