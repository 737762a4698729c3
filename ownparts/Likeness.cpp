#include "ownparts/Likeness.h"

#include "calc/Bounds.h"
#include "calc/Capacitance.h"
#include "ownparts/MeasurementNeeds.h"
#include "ownparts/Sweeps.h"
#include "partdata/Availability.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr std::size_t LeastBorrowedBiases = 5;
constexpr std::size_t ScalingPoints = 3;
constexpr double FirstBiasShare = 0.1;
constexpr double TemperatureStrideC = 20;
constexpr double OutsideC = 5;

/// Lends capacitance to one part.
class Lender
{
public:
    Lender(const MeasuredPart& measured, const PartRecord& likePart)
        : part(measured)
        , like(likePart)
        , sweeps(SweepsOf(part.Measured.Capacitances, part.RatedVolts))
    {
    }

    std::vector<MeasuredCapacitance> OverBias() const;
    std::vector<MeasuredCapacitance> OverTemperature() const;

private:
    /// Capacitance of the like part at a fraction of its own rated voltage.
    double LikeAt(double volts, double celsius) const
    {
        const double r = volts / part.RatedVolts;
        return CapacitancePointAt(like, r * like.Data[Value::RatedVoltage], celsius, CodeView::Eia)
            ->PicoFarads;
    }
    /// Mean of measured over like capacitance of the points that `distance` calls the nearest settings.
    template <class Points, class Distance> double RatioOf(const Points& points, Distance distance) const;
    void AddTemperature(std::vector<MeasuredCapacitance>& borrowed, double celsius) const;

    const MeasuredPart& part;
    const PartRecord& like;
    CapacitanceSweeps sweeps;
};

template <class Points, class Distance> double Lender::RatioOf(const Points& points, Distance distance) const
{
    auto nearest = points;
    std::ranges::stable_sort(nearest, {}, distance);
    nearest.resize(std::min(nearest.size(), ScalingPoints));
    double sum = 0;
    for (const auto& point : nearest)
    {
        sum += point.Picofarads / LikeAt(point.Volts, point.Celsius);
    }
    return sum / static_cast<double>(nearest.size());
}

std::vector<MeasuredCapacitance> Lender::OverBias() const
{
    std::vector<MeasuredCapacitance> sweep;
    std::ranges::copy_if(part.Measured.Capacitances, std::back_inserter(sweep),
                         [this](const auto& point) { return sweeps.BiasTemperature.Holds(point.Celsius); });
    const double last = sweeps.Biases.back().Most;
    const double ratio = RatioOf(sweep, [](const auto& point) { return -point.Volts; });
    const auto count =
        std::max(LeastBorrowedBiases, LeastBiases - std::min(LeastBiases, sweeps.Biases.size()));
    const double first = std::min(last / part.RatedVolts + FirstBiasShare, 1.0);
    std::vector<MeasuredCapacitance> borrowed;
    for (std::size_t i = 0; i < count; ++i)
    {
        const double r = first + (1 - first) * static_cast<double>(i) / static_cast<double>(count - 1);
        const double volts = r * part.RatedVolts;
        const double celsius = sweeps.BiasTemperature.Least;
        borrowed.push_back({0, volts, celsius, ratio * LikeAt(volts, celsius)});
    }
    return borrowed;
}

void Lender::AddTemperature(std::vector<MeasuredCapacitance>& borrowed, double celsius) const
{
    std::vector<MeasuredCapacitance> sweep;
    std::ranges::copy_if(part.Measured.Capacitances, std::back_inserter(sweep),
                         [this](const auto& point) { return IsUnbiased(point.Volts, part.RatedVolts); });
    const double ratio =
        RatioOf(sweep, [celsius](const auto& point) { return std::abs(point.Celsius - celsius); });
    borrowed.push_back({0, 0, celsius, ratio * LikeAt(0, celsius)});
}

std::vector<MeasuredCapacitance> Lender::OverTemperature() const
{
    const auto& range = FindCharacteristic(part.Names[FirstTccField])->RangeIn(CodeView::Eia);
    std::vector<MeasuredCapacitance> borrowed;
    for (double celsius = range.MinC; celsius < sweeps.Temperatures.front().Least - OutsideC;
         celsius += TemperatureStrideC)
    {
        AddTemperature(borrowed, celsius);
    }
    for (double celsius = range.MaxC; celsius > sweeps.Temperatures.back().Most + OutsideC;
         celsius -= TemperatureStrideC)
    {
        AddTemperature(borrowed, celsius);
    }
    return borrowed;
}

/// True where the temperatures that were measured without bias do not do.
bool LacksTemperatures(const MeasuredPart& part, const CapacitanceSweeps& sweeps, const PartRecord& like)
{
    const auto* const characteristic = FindCharacteristic(part.Names[FirstTccField]);
    const auto needed = NeededTemperatures(*characteristic);
    return sweeps.Temperatures.size() < LeastTemperatures(CapacitanceModelOf(like)) ||
           sweeps.Temperatures.front().Least > needed.MinC || sweeps.Temperatures.back().Most < needed.MaxC;
}

CurrentFit CurrentLawOf(const PartRecord& like)
{
    CurrentFit law;
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        law.Terms[k] = like.Data[Values::CurrentHeating.First + k];
        law.Linear[k] = like.Data[Values::CurrentHeatingOverTemperature.First + 2 * k];
        law.Square[k] = like.Data[Values::CurrentHeatingOverTemperature.First + 2 * k + 1];
    }
    return law;
}

/// A law as many times as strong.
CurrentFit Scaled(CurrentFit law, double factor)
{
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        law.Terms[k] *= factor;
        law.Linear[k] *= factor;
        law.Square[k] *= factor;
    }
    return law;
}
} // namespace

Borrowed BorrowPoints(const MeasuredPart& part, const PartRecord& like)
{
    const auto sweeps = SweepsOf(part.Measured.Capacitances, part.RatedVolts);
    Borrowed borrowed;
    if (sweeps.Temperatures.empty())
    {
        return borrowed;
    }
    const Lender lender(part, like);
    if (BiasEndsEarly(part))
    {
        borrowed.OverBias = lender.OverBias();
    }
    if (LacksTemperatures(part, sweeps, like))
    {
        borrowed.OverTemperature = lender.OverTemperature();
    }
    return borrowed;
}

PeakByBias BorrowPeakByBias(const PartRecord& like)
{
    const auto& data = like.Data;
    const double square = double{data[Value::RatedVoltage]} * data[Value::RatedVoltage];
    const auto relative = [&](Value::Index change, Value::Index decay)
    { return data[decay] == 0 ? 0 : data[change] * square / data[decay]; };
    return {.Shift = data[Value::PeakTemperatureV2] * square,
            .DecayBelow = relative(Value::DecayBelowV2, Value::DecayBelow),
            .DecayAbove = relative(Value::DecayAboveV2, Value::DecayAbove)};
}

CurrentFit BorrowCurrentLaw(std::span<const MeasuredRise> rises, const PartRecord& like)
{
    const auto law = CurrentLawOf(like);
    double sum = 0;
    for (const auto& rise : rises)
    {
        sum += rise.Rise / (rise.Load * rise.Load) / law.At(rise.Hz, rise.Celsius);
    }
    return Scaled(law, sum / static_cast<double>(rises.size()));
}

CurrentFit BorrowAmbient(CurrentFit fit, double ambientC, const PartRecord& like)
{
    const auto law = CurrentLawOf(like);
    const double t = ambientC - double{HeatingReferenceC};
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        const double there = law.Terms[k] + t * law.Linear[k] + t * t * law.Square[k];
        const double factor = there > 0 ? fit.Terms[k] / there : 0;
        fit.Terms[k] = there > 0 ? law.Terms[k] * factor : fit.Terms[k];
        fit.Linear[k] = law.Linear[k] * factor;
        fit.Square[k] = law.Square[k] * factor;
    }
    return fit;
}

std::optional<std::string> RefuseLike(const MeasuredPart& part, const PartRecord& like)
{
    const std::string name(like.PartNum[0]);
    if (like.Tcc[0] != part.Names[FirstTccField])
    {
        return "--like " + name + ": is " + std::string(like.Tcc[0]) + ", the part " +
               part.Names[FirstTccField];
    }
    const bool lacksCapacitance =
        !part.Measured.Capacitances.empty() && !HasData(like, Values::OfCapacitance);
    const bool lacksHeating = !part.Measured.RisesByCurrent.empty() && !HasData(like, Values::CurrentHeating);
    if (lacksCapacitance || lacksHeating)
    {
        return "--like " + name + ": has no data of " + (lacksCapacitance ? "capacitance" : "heating");
    }
    return std::nullopt;
}
