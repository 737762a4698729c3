#include "calc/CornerVoltage.h"

#include "calc/AllowablePower.h"
#include "calc/Bounds.h"
#include "calc/Log10.h"
#include "calc/SearchBox.h"
#include "calc/TemperatureRise.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

static constexpr int nodesASide = 5;

static double QuadraticAt(const std::array<double, 3>& coefficients, double r)
{
    return (coefficients[0] * r + coefficients[1]) * r + coefficients[2];
}

/// A surface at one temperature: its coefficients are quadratics in t, which stand three apart.
static std::array<double, 3> RowOf(const PartRecord& part, ValueGroup surface, double t)
{
    std::array<double, 3> row{};
    for (std::size_t i = 0; i < row.size(); ++i)
    {
        const auto first = surface.First + i;
        row[i] = (part.Data[first] * t + part.Data[first + 3]) * t + part.Data[first + 6];
    }
    return row;
}

static double LnLog10(double hertz)
{
    return std::log(Log10(hertz));
}

VoltageCorners::VoltageCorners(const PartRecord& heated, const HeatingBox& asked, PermittedRise rise,
                               double resistance)
    : part(heated)
    , box(asked)
    , permitted(rise)
    , heatResistance(resistance)
    , lnHeatResistance(std::log(resistance / part.Data[Value::HeatResistance]))
    , biases(EvenNodes(box.BiasVolts.Low, box.BiasVolts.High, nodesASide))
    , temperatures(EvenNodes(box.AmbientC.Low, box.AmbientC.High, nodesASide))
{
    if (const float seam = permitted.FallsFrom(); seam > box.AmbientC.Low && seam < box.AmbientC.High)
    {
        temperatures.push_back(seam);
    }
}

VoltageCorners::Row VoltageCorners::RowAt(double ambientC) const
{
    const double t = ambientC - HeatingReferenceC;
    const double rise = permitted.At(ambientC);
    return {.AmbientC = ambientC,
            .Permitted = rise,
            .LnPermitted = std::log(rise),
            .Amplitude = RowOf(part, Values::AmplitudeSurface, t),
            .FrequencyExponent = RowOf(part, Values::FrequencyExponentSurface, t),
            .VoltageExponent = RowOf(part, Values::VoltageExponentSurface, t)};
}

/// What is looked for the least of, from the logarithm of kV, the exponent of the voltage and the row.
template <class Wish>
double VoltageCorners::WishAt(const Row& row, double biasVolts, double lnLog10Hz, const Wish& wish) const
{
    const double r = biasVolts / RatedVoltage(part);
    const double lnkV = lnHeatResistance + std::numbers::ln10 * QuadraticAt(row.Amplitude, r) +
                        QuadraticAt(row.FrequencyExponent, r) * lnLog10Hz;
    const double value = wish(lnkV, QuadraticAt(row.VoltageExponent, r), row);
    // A fault is the worst, for the law to tell it.
    return std::isnan(value) ? -std::numeric_limits<double>::infinity() : value;
}

/// The node at which a wish is least.
template <class Wish> Extreme VoltageCorners::LeastNode(const Wish& wish) const
{
    Extreme best{.Value = std::numeric_limits<double>::infinity(),
                 .At = {box.BiasVolts.Low, box.AmbientC.Low, box.LowestHertz}};
    const std::array<double, 2> lnLog10Hz = {LnLog10(box.LowestHertz), LnLog10(box.HighestHertz)};
    for (const double celsius : temperatures)
    {
        const Row row = RowAt(celsius);
        for (const double volts : biases)
        {
            const Extreme low{WishAt(row, volts, lnLog10Hz[0], wish), {volts, celsius, box.LowestHertz}};
            const Extreme high{WishAt(row, volts, lnLog10Hz[1], wish), {volts, celsius, box.HighestHertz}};
            const Extreme& worse = high.IsBeyond(low, -1) ? high : low;
            best = worse.IsBeyond(best, -1) ? worse : best;
        }
    }
    return best;
}

static bool IsEnd(double value, const ConditionRange& range)
{
    return value == range.Low || value == range.High;
}

template <class Wish> Place VoltageCorners::LeastOf(const Wish& wish) const
{
    const Extreme node = LeastNode(wish);
    if (IsEnd(node.At.BiasVolts, box.BiasVolts) && IsEnd(node.At.AmbientC, box.AmbientC))
    {
        return node.At;
    }
    const double lnLog10Hz = LnLog10(node.At.Hertz);
    const auto& bias = box.BiasVolts;
    const auto& ambient = box.AmbientC;
    const auto found = Refined(
        [&](double volts, double celsius) { return WishAt(RowAt(celsius), volts, lnLog10Hz, wish); },
        {node.At.BiasVolts, node.At.AmbientC, node.Value}, {bias.Low, bias.High}, {ambient.Low, ambient.High},
        {(bias.High - bias.Low) / (nodesASide - 1), (ambient.High - ambient.Low) / (nodesASide - 1)});
    return {found.X, found.Y, node.At.Hertz};
}

PowerModel VoltageCorners::ModelAt(const Place& place) const
{
    return PowerModelOf(part, place.BiasVolts, place.AmbientC, heatResistance);
}

double VoltageCorners::LeastVoltage() const
{
    const auto place =
        LeastOf([](double lnkV, double s3, const Row& row) { return (row.LnPermitted - lnkV) / s3; });
    const auto model = ModelAt(place);
    const double bound = AllowableVoltageBound(RatedVoltage(part), box.BiasVolts.High);
    return std::min(VoltageOfRise(permitted.At(place.AmbientC), model.kV(place.Hertz), model.S3), bound);
}

double VoltageCorners::RiseOf(double volts, const Place& place) const
{
    return RiseAt(ModelAt(place), Quantity::RmsVoltage, volts, place.Hertz);
}

Extreme VoltageCorners::MostRise(double volts) const
{
    const double lnVolts = std::log(volts);
    const auto place = LeastOf([=](double lnkV, double s3, const Row&) { return -(lnkV + s3 * lnVolts); });
    return {RiseOf(volts, place), place};
}

Extreme VoltageCorners::MostBody(double volts) const
{
    const double lnVolts = std::log(volts);
    const auto place = LeastOf([=](double lnkV, double s3, const Row& row)
                               { return -(row.AmbientC + std::exp(lnkV + s3 * lnVolts)); });
    return {place.AmbientC + RiseOf(volts, place), place};
}

double VoltageCorners::LeastBody(double volts) const
{
    const double lnVolts = std::log(volts);
    const auto place = LeastOf([=](double lnkV, double s3, const Row& row)
                               { return row.AmbientC + std::exp(lnkV + s3 * lnVolts); });
    return place.AmbientC + RiseOf(volts, place);
}

Extreme VoltageCorners::LeastMargin(double volts) const
{
    const double lnVolts = std::log(volts);
    const auto place = LeastOf([=](double lnkV, double s3, const Row& row)
                               { return row.Permitted - std::exp(lnkV + s3 * lnVolts); });
    return {permitted.At(place.AmbientC) - RiseOf(volts, place), place};
}
