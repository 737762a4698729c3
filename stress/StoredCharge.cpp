#include "stress/StoredCharge.h"

#include "calc/Capacitance.h"
#include "calc/CheckedMath.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr std::size_t steps = 1024;

double FaradsAt(const PartRecord& part, double volts, double celsius, CodeView view)
{
    constexpr double faradsPerPicofarad = 1e-12;
    const auto point = CapacitancePointAt(part, volts, celsius, view);
    if (!point || !(point->PicoFarads > 0))
    {
        throw RunTimeError(RunTimeErrorNumber::InvalidProcedureCall);
    }
    return point->PicoFarads * faradsPerPicofarad;
}
} // namespace

StoredCharge::StoredCharge(const PartRecord& part, double celsius, CodeView view)
    : rated(part.Data[Value::RatedVoltage])
{
    CheckedDivisor(rated);
    const double width = rated / steps;
    double charge = 0;
    for (std::size_t i = 0; i <= steps; ++i)
    {
        farads.push_back(FaradsAt(part, static_cast<double>(i) * width, celsius, view));
        charge += i == 0 ? 0 : (farads[i - 1] + farads[i]) / 2 * width;
        charges.push_back(charge);
    }
}

double StoredCharge::ChargeAt(double volts) const
{
    const double size = std::abs(volts);
    if (size >= rated)
    {
        return std::copysign(charges.back() + (size - rated) * farads.back(), volts);
    }
    const double place = size / rated * steps;
    const auto i = std::min(static_cast<std::size_t>(place), steps - 1);
    const double behind = (place - static_cast<double>(i)) * rated / steps;
    const double slope = (farads[i + 1] - farads[i]) * steps / rated;
    return std::copysign(charges[i] + behind * (farads[i] + slope * behind / 2), volts);
}

double StoredCharge::VoltageAt(double charge) const
{
    const double size = std::abs(charge);
    if (size >= charges.back())
    {
        return std::copysign(rated + (size - charges.back()) / farads.back(), charge);
    }
    const auto next = std::ranges::upper_bound(charges, size);
    const auto i = static_cast<std::size_t>(next - charges.begin()) - 1;
    const double slope = (farads[i + 1] - farads[i]) * steps / rated;
    const double left = size - charges[i];
    // The root of slope/2·v² + farads·v = left, in the form that stays exact for a small slope.
    const double behind = 2 * left / (farads[i] + std::sqrt(farads[i] * farads[i] + 2 * slope * left));
    return std::copysign(static_cast<double>(i) * rated / steps + behind, charge);
}
