#include "calc/PowerModel.h"

#include "calc/Bounds.h"
#include "calc/Log10.h"
#include "partdata/RunTimeError.h"

#include <cstddef>

namespace
{
using PartData = std::array<float, DataValues>;

double QuadraticIn(double t, float constant, float linear, float square)
{
    return CheckedFinite(constant + t * linear + t * t * square);
}

/// a·r² + b·r + c of the three coefficients from `first` on.
double Group(const PartData& data, std::size_t first, double r)
{
    return data[first] * (r * r) + data[first + 1] * r + data[first + 2];
}

/// Quadratic in t whose coefficients are quadratics in r, by nine coefficients.
double Surface(const PartData& data, ValueGroup coefficients, double r, double t)
{
    const auto first = coefficients.First;
    return CheckedFinite(Group(data, first + 6, r) + t * Group(data, first + 3, r) +
                         t * t * Group(data, first, r));
}
} // namespace

PowerModel CurrentModelOf(const PartRecord& part, double ambientC, double heatResistance)
{
    const auto& data = part.Data;
    const double t = ambientC - HeatingReferenceC;
    return {
        .Q1 = QuadraticIn(t, data[Value::CurrentPerF], data[Value::CurrentTPerF], data[Value::CurrentT2PerF]),
        .Q2 = QuadraticIn(t, data[Value::Current], data[Value::CurrentT], data[Value::CurrentT2]),
        .Q3 = QuadraticIn(t, data[Value::CurrentF], data[Value::CurrentTF], data[Value::CurrentT2F]),
        .S1 = 0,
        .S2 = 0,
        .S3 = 0,
        .Rref = data[Value::HeatResistance],
        .Rth = heatResistance};
}

PowerModel PowerModelOf(const PartRecord& part, double biasVolts, double ambientC, double heatResistance)
{
    const double r = CheckedQuotient(biasVolts, RatedVoltage(part));
    const double t = ambientC - HeatingReferenceC;
    auto model = CurrentModelOf(part, ambientC, heatResistance);
    model.S1 = CheckedPower(10, Surface(part.Data, Values::AmplitudeSurface, r, t));
    model.S2 = Surface(part.Data, Values::FrequencyExponentSurface, r, t);
    model.S3 = Surface(part.Data, Values::VoltageExponentSurface, r, t);
    return model;
}

std::optional<double> PowerModel::LossResistance(double frequencyHz) const
{
    constexpr double milliohmsPerOhm = 1000;
    const double sum = CurrentHeating(Q1, Q2, Q3, frequencyHz);
    const double milliohms = sum > 0 ? milliohmsPerOhm * CheckedQuotient(sum, Rref) : 0;
    return milliohms > 0 ? std::optional(milliohms) : std::nullopt;
}

double PowerModel::kVConstant() const
{
    return CheckedQuotient(S1 * Rth, Rref);
}

double PowerModel::kV(double frequencyHz) const
{
    if (frequencyHz <= 0)
    {
        throw RunTimeError(RunTimeErrorNumber::InvalidProcedureCall);
    }
    return CheckedFinite(CheckedPower(Log10(frequencyHz), S2) * kVConstant());
}

double dTallow(float maxC, double ambientC)
{
    const float fullRiseBelow = maxC - RecommendedRise;
    if (ambientC < fullRiseBelow)
    {
        return RecommendedRise;
    }
    return ambientC <= maxC ? double{maxC} - ambientC : 0;
}

double VoltageOfRise(double rise, double kV, double S3)
{
    return CheckedPower(CheckedQuotient(rise, kV), CheckedQuotient(1, S3));
}

double ApparentPowerExponent(double S3)
{
    return CheckedQuotient(2 * S3, S3 + 2);
}
