#include "simulation/ModelCharge.h"

#include "calc/Bounds.h"
#include "calc/ChangePolynomial.h"
#include "calc/Conditions.h"
#include "simulation/GaussPoints.h"
#include "simulation/ModelNumbers.h"

#include <algorithm>
#include <cmath>

namespace
{
double Quadratic(const ModelNumbers& numbers, ValueGroup group, double volts)
{
    return numbers[group.First + 2] + volts * (numbers[group.First + 1] + volts * numbers[group.First]);
}

/// Charge of a voltage, from the charge of its amount held to the rated voltage, and from the relative
/// capacitance at the rated voltage.
double Charge(double volts, double rated, double ofHeld, double atRated)
{
    const double beyond = std::max(std::abs(volts) - rated, 0.0);
    return std::copysign(ofHeld + beyond * atRated, volts);
}

// ---- Changes by bias and by temperature multiply ----

class ProductCharge
{
public:
    ProductCharge(const ModelNumbers& values, double celsius)
        : numbers(values)
        , rated(values[Value::RatedVoltage])
        , atTemperature(
              1 +
              ChangePolynomial(values, Values::TemperaturePolynomial, celsius - double{EiaReferenceC}) / 100)
    {
    }

    double operator()(double volts) const
    {
        const double atRated = atTemperature * (1 + BiasChange(numbers, rated) / 100);
        const double held = std::min(std::abs(volts), rated);
        return Charge(volts, rated, held * MeanUpTo(held), atRated);
    }

private:
    double MeanUpTo(double volts) const
    {
        double sum = 0;
        for (auto i = Values::BiasPolynomial.First; i <= Values::BiasPolynomial.Last; ++i)
        {
            const auto power = static_cast<double>(Values::BiasPolynomial.Last - i + 1);
            sum = (sum + numbers[i] / (power + 1)) * volts;
        }
        return atTemperature * (1 + sum / 100);
    }

    ModelNumbers numbers;
    double rated;
    double atTemperature;
};

// ---- The bias moves a peak over temperature ----

class PeakedCharge
{
public:
    PeakedCharge(const ModelNumbers& values, double temperature)
        : numbers(values)
        , rated(values[Value::RatedVoltage])
        , celsius(temperature)
        , start(VoltageOfPeak())
        , before(IntegralTo(0))
    {
    }

    double operator()(double volts) const
    {
        return Charge(volts, rated, IntegralTo(std::min(std::abs(volts), rated)) - before, RelativeAt(rated));
    }

private:
    double RelativeAt(double volts) const
    {
        const double distance = celsius - Quadratic(numbers, Values::PeakTemperature, volts);
        const double below = std::pow((std::abs(distance) - distance) / 2, numbers[Value::ExponentBelow]);
        const double above = std::pow((std::abs(distance) + distance) / 2, numbers[Value::ExponentAbove]);
        const double fall = Quadratic(numbers, Values::DecayBelow, volts) * below +
                            Quadratic(numbers, Values::DecayAbove, volts) * above;
        return 1 +
               (numbers[Value::PeakOffset] +
                numbers[Value::PeakAmplitude] * (1 + BiasChange(numbers, volts) / 100) * std::exp(-fall)) /
                   100;
    }

    /// The voltage within 0 to the rated one whose peak lies at the temperature, or the end next to it.
    double VoltageOfPeak() const
    {
        const auto group = Values::PeakTemperature;
        const double square = numbers[group.First];
        const double slope = numbers[group.First + 1];
        if (square == 0 && slope == 0)
        {
            return 0;
        }
        const double distance = celsius - numbers[group.First + 2];
        const double sign = slope + square * rated >= 0 ? 1 : -1;
        const double root = std::sqrt(std::max(slope * slope + 4 * square * distance, 0.0));
        return std::clamp(2 * distance / (slope + sign * root + sign * 1e-30), 0.0, rated);
    }

    double IntegralTo(double volts) const
    {
        double sum = 0;
        for (const auto& point : GaussPoints)
        {
            sum += point.Weight * RelativeAt(start + (volts - start) * point.Place);
        }
        return (volts - start) * sum;
    }

    ModelNumbers numbers;
    double rated;
    double celsius;
    double start;
    double before;
};
} // namespace

ModelCharge ModelChargeAt(const PartRecord& part, double celsius)
{
    const auto numbers = ModelNumbersOf(part);
    return CapacitanceModelOf(part) == CapacitanceModel::Peaked
               ? ModelCharge(PeakedCharge(numbers, celsius))
               : ModelCharge(ProductCharge(numbers, celsius));
}

TemperatureRange ModelTemperatures(const PartRecord& part)
{
    return ClassAmbientRange(part, CodeView::Eia);
}

double PeakTemperatureAt(const PartRecord& part, double volts)
{
    const auto range = ModelTemperatures(part);
    return std::clamp(Quadratic(ModelNumbersOf(part), Values::PeakTemperature, volts), double{range.MinC},
                      double{range.MaxC});
}
