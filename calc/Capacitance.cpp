#include "calc/Capacitance.h"

#include "calc/Bounds.h"
#include "calc/CapacitanceAxes.h"
#include "calc/ChangePolynomial.h"
#include "calc/CheckedMath.h"
#include "calc/Sweep.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace
{
/// The values of a part up to those of capacitance, widened once to the precision of the arithmetic.
using Coefficients = std::array<double, Values::OfCapacitance.Last + 1>;

Coefficients CoefficientsOf(const PartRecord& part)
{
    Coefficients data;
    std::copy_n(part.Data.begin(), data.size(), data.begin());
    return data;
}

/// a·V² + b·V + c of the three coefficients.
double Quadratic(const Coefficients& data, ValueGroup coefficients, double volts)
{
    const auto first = coefficients.First;
    return (data[first] * volts + data[first + 1]) * volts + data[first + 2];
}

/// Change by the temperature alone in the polynomial model, in percent.
double TemperatureChange(const Coefficients& data, double celsius)
{
    return ChangePolynomial(data, Values::TemperaturePolynomial, celsius - double{EiaReferenceC});
}

/// Two changes in percent, one upon the other.
double Combined(double p, double b)
{
    return p * b / 100 + b + p;
}

double Changed(double nominal, double change)
{
    return nominal * (change / 100 + 1);
}

/// distance^exponent of a distance that is 0 or more.
double PowerOfDistance(double distance, double exponent)
{
    // Above 0 there is a power for every exponent; in base 2 it takes the least time.
    return distance > 0 ? CheckedFinite(std::exp2(exponent * std::log2(distance)))
                        : CheckedPower(distance, exponent);
}

/// How fast the bell falls on one side of its peak: exp(-Decay·distance^Exponent).
struct Flank
{
    double Decay;
    double Exponent;
};

/// The bell of the peaked model at one bias.
struct Peak
{
    double Amplitude;
    double Temperature;
    double Offset;
    Flank Below;
    Flank Above;

    double ChangeAt(double celsius) const
    {
        const Flank& flank = Temperature <= celsius ? Above : Below;
        const double power = PowerOfDistance(std::abs(celsius - Temperature), flank.Exponent);
        return Amplitude * std::exp(-flank.Decay * power) + Offset;
    }
};

Peak PeakAt(const Coefficients& data, double volts)
{
    return {.Amplitude = (BiasChange(data, volts) + 100) * data[Value::PeakAmplitude] / 100,
            .Temperature = Quadratic(data, Values::PeakTemperature, volts),
            .Offset = data[Value::PeakOffset],
            .Below = {Quadratic(data, Values::DecayBelow, volts), data[Value::ExponentBelow]},
            .Above = {Quadratic(data, Values::DecayAbove, volts), data[Value::ExponentAbove]}};
}

/// What the shown capacitance change refers to: the capacitance at 20 °C without bias, or nothing for the
/// nominal capacitance.
using Reference = std::optional<double>;

Reference ReferenceOf(const Coefficients& data, CapacitanceModel model, CodeView view)
{
    if (view == CodeView::Eia)
    {
        return std::nullopt;
    }
    const double change = model == CapacitanceModel::Peaked ? PeakAt(data, 0).ChangeAt(JisReferenceC)
                                                            : TemperatureChange(data, JisReferenceC);
    return CheckedFinite(Changed(data[Value::NominalCapacitance], change));
}

double ChangeFrom(double capacitance, double reference)
{
    return (capacitance - reference) / reference * 100;
}

/// Smallest and largest of the stored values.
struct Extremes
{
    float Largest = 0;
    float Smallest = 0;
};

Extremes ExtremesOf(const CurveValues& values)
{
    const auto [smallest, largest] = std::ranges::minmax_element(values);
    return {.Largest = *largest, .Smallest = *smallest};
}

/// The values as they are stored.
CurveValues StoredSingles(const SweepValues& values)
{
    CurveValues stored;
    bool allFit = true;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        stored[i] = static_cast<float>(values[i]);
        allFit &= std::abs(stored[i]) <= std::numeric_limits<float>::max();
    }
    if (!allFit)
    {
        throw RunTimeError(RunTimeErrorNumber::Overflow);
    }
    return stored;
}

/// One sweep of either kind: works out every point from the change that `changeAt` gives for its X. Each loop
/// does one simple thing to all points, so that it can work on several at a time.
template <class ChangeAt>
void StorePoints(Curve& curve, const SweepValues& sweep, double nominal, const Reference& reference,
                 Quantity y, ChangeAt changeAt)
{
    // A fault of the first point comes before that of a reference of zero.
    CheckedFinite(Changed(nominal, changeAt(sweep[0])));
    const double divisor = reference ? CheckedDivisor(*reference) : 1;

    SweepValues values;
    std::ranges::transform(sweep, values.begin(), changeAt);
    const bool isCapacitance = y == Quantity::Capacitance;
    if (isCapacitance || reference)
    {
        std::ranges::transform(values, values.begin(),
                               [=](double change) { return Changed(nominal, change); });
    }
    if (!isCapacitance && reference)
    {
        std::ranges::transform(values, values.begin(),
                               [=](double capacitance) { return ChangeFrom(capacitance, divisor); });
    }
    curve.XData = StoredSingles(sweep);
    curve.YData = StoredSingles(values);
    curve.HasPoints = true;
}

/// Ends of the temperature sweep; both 0 for a characteristic that is not listed.
TemperatureRange SweepRangeOf(const PartRecord& part, CodeView view)
{
    const auto* const characteristic = FindCharacteristic(part.Tcc[0]);
    return characteristic == nullptr ? TemperatureRange{} : characteristic->RangeIn(view);
}

/// The finished curve: default limits around what was stored, or around 0 where nothing was.
void SetLimits(Curve& curve, float xMax, float xMin, Quantity quantity)
{
    const Extremes y = curve.HasPoints ? ExtremesOf(curve.YData) : Extremes{};
    curve.Limits = SetCapacitanceAxes(xMax, xMin, y.Largest, y.Smallest, quantity);
}
} // namespace

Curve CalcCapTemperature(const PartRecord& part, float biasVolts, Quantity y, CodeView view)
{
    const auto data = CoefficientsOf(part);
    const auto model = CapacitanceModelOf(part);
    const auto range = SweepRangeOf(part, view);
    Curve curve;
    if (model != CapacitanceModel::None)
    {
        const auto sweep = LinearSweep(range.MinC, range.MaxC);
        const auto reference = ReferenceOf(data, model, view);
        if (model == CapacitanceModel::Peaked)
        {
            const Peak peak = PeakAt(data, biasVolts);
            StorePoints(curve, sweep, data[Value::NominalCapacitance], reference, y,
                        [&](double celsius) { return peak.ChangeAt(celsius); });
        }
        else
        {
            const double b = BiasChange(data, biasVolts);
            StorePoints(curve, sweep, data[Value::NominalCapacitance], reference, y,
                        [&](double celsius) { return Combined(TemperatureChange(data, celsius), b); });
        }
    }
    SetLimits(curve, range.MaxC, range.MinC, y);
    return curve;
}

Curve CalcCapDCVoltage(const PartRecord& part, float ambientC, Quantity y, CodeView view)
{
    const auto data = CoefficientsOf(part);
    const auto model = CapacitanceModelOf(part);
    Curve curve;
    if (model != CapacitanceModel::None)
    {
        const auto sweep = LinearSweep(0, CheckedFinite(data[Value::RatedVoltage]));
        const auto reference = ReferenceOf(data, model, view);
        if (model == CapacitanceModel::Peaked)
        {
            StorePoints(curve, sweep, data[Value::NominalCapacitance], reference, y,
                        [&](double volts) { return PeakAt(data, volts).ChangeAt(ambientC); });
        }
        else
        {
            const double p = TemperatureChange(data, ambientC);
            StorePoints(curve, sweep, data[Value::NominalCapacitance], reference, y,
                        [&](double volts) { return Combined(p, BiasChange(data, volts)); });
        }
    }
    SetLimits(curve, part.Data[Value::RatedVoltage], 0, y);
    return curve;
}

std::optional<CapacitancePoint> CapacitancePointAt(const PartRecord& part, double biasVolts, double celsius,
                                                   CodeView view)
{
    const auto model = CapacitanceModelOf(part);
    if (model == CapacitanceModel::None)
    {
        return std::nullopt;
    }
    const auto data = CoefficientsOf(part);
    const double change = model == CapacitanceModel::Peaked
                              ? PeakAt(data, biasVolts).ChangeAt(celsius)
                              : Combined(TemperatureChange(data, celsius), BiasChange(data, biasVolts));
    const double capacitance = Changed(data[Value::NominalCapacitance], change);
    // A curve that has no reference to change from is none at all, whatever its Y.
    const auto reference = ReferenceOf(data, model, view);
    const double divisor = reference ? CheckedDivisor(*reference) : 1;
    return CapacitancePoint{.PicoFarads = capacitance,
                            .Change = reference ? ChangeFrom(capacitance, divisor) : change};
}

std::optional<double> CapacitanceAt(const PartRecord& part, double biasVolts, double celsius, Quantity y,
                                    CodeView view)
{
    const auto point = CapacitancePointAt(part, biasVolts, celsius, view);
    if (!point)
    {
        return std::nullopt;
    }
    return y == Quantity::Capacitance ? point->PicoFarads : point->Change;
}
