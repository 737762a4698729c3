#include "tests/calc/PlainCurves.h"

#include "partdata/SpecialParts.h"

#include <algorithm>
#include <cmath>

namespace
{
using std::pow;

double PlainLog10(double value)
{
    return std::log(value) / std::log(10.0);
}

double PlainPolynomial(const PartRecord& part, std::size_t k, double x)
{
    const auto& d = part.Data;
    return d[k] * pow(x, 6) + d[k + 1] * pow(x, 5) + d[k + 2] * pow(x, 4) + d[k + 3] * pow(x, 3) +
           d[k + 4] * pow(x, 2) + d[k + 5] * x;
}

double PlainQuadratic(const PartRecord& part, std::size_t k, double v)
{
    return part.Data[k] * pow(v, 2) + part.Data[k + 1] * v + part.Data[k + 2];
}

bool IsPeaked(const PartRecord& part)
{
    return part.Tcc[0] == "Y5V" && !IsSpecialPart(part.PartNum[0]);
}

/// Change in percent at a temperature and bias, relative to the nominal capacitance.
double PlainChange(const PartRecord& part, double celsius, double volts)
{
    const auto& d = part.Data;
    const double b = PlainPolynomial(part, 3, volts);
    if (!IsPeaked(part))
    {
        const double p = PlainPolynomial(part, 9, celsius - 25);
        return p * b / 100 + b + p;
    }
    const double peak = PlainQuadratic(part, 17, volts);
    const bool above = peak <= celsius;
    const double k = PlainQuadratic(part, above ? 23 : 20, volts);
    const double n = above ? d[27] : d[26];
    return (b + 100) * d[15] / 100 * std::exp(-k * pow(std::abs(celsius - peak), n)) + d[16];
}

double PlainCapacitance(const PartRecord& part, double celsius, double volts)
{
    return part.Data[1] * (PlainChange(part, celsius, volts) / 100 + 1);
}

struct Ends
{
    double Min;
    double Max;
};

Ends PlainTemperatures(std::string_view tcc, CodeView view)
{
    const bool jis = view == CodeView::Jis;
    if (tcc == "X7R")
    {
        return {-55, 125};
    }
    if (tcc == "X5R")
    {
        return {jis ? -25.0 : -55.0, 85};
    }
    return tcc == "Y5V" ? Ends{jis ? -25.0 : -30.0, 85} : Ends{0, 0};
}

PlainCurve PlainCapacitanceCurve(const PartRecord& part, const ChartRecord& record, CodeView view)
{
    const bool overTemperature = record.ChartType == 2;
    const auto ends = overTemperature ? PlainTemperatures(part.Tcc[0], view) : Ends{0, part.Data[2]};
    const double reference = PlainCapacitance(part, 20, 0);
    PlainCurve curve;
    double x = ends.Min;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const double celsius = overTemperature ? x : record.AmbientTemp;
        const double volts = overTemperature ? record.DCBiasVoltage : x;
        double y = PlainChange(part, celsius, volts);
        const double capacitance = part.Data[1] * (y / 100 + 1);
        if (view == CodeView::Jis)
        {
            y = (capacitance - reference) / reference * 100;
        }
        curve.XData[i] = static_cast<float>(x);
        curve.YData[i] = static_cast<float>(record.YAxisName == "Capacitance" ? capacitance : y);
        x += (ends.Max - ends.Min) / 199;
    }
    return curve;
}

/// The heating laws of a part under the conditions of a record.
struct PlainPower
{
    double Q1, Q2, Q3, S1, S2, S3, Rref, Rth, Vr;

    PlainPower(const PartRecord& part, const ChartRecord& record)
        : Rref(part.Data[31])
        , Rth(record.HeatResistance)
        , Vr(part.Data[2])
    {
        const auto& d = part.Data;
        const double r = record.DCBiasVoltage / Vr;
        const double t = record.AmbientTemp - 20.0;
        const auto group = [&](std::size_t k) { return d[k] * pow(r, 2) + d[k + 1] * r + d[k + 2]; };
        const auto surface = [&](std::size_t k)
        { return group(k + 6) + t * group(k + 3) + pow(t, 2) * group(k); };
        Q1 = d[28] + t * d[32] + pow(t, 2) * d[33];
        Q2 = d[29] + t * d[34] + pow(t, 2) * d[35];
        Q3 = d[30] + t * d[36] + pow(t, 2) * d[37];
        S1 = pow(10, surface(38));
        S2 = surface(47);
        S3 = surface(56);
    }

    double kI(double f) const
    {
        const double sum = Q1 / f + Q2 + f * Q3;
        return sum <= 0 ? 1.0 : sum * Rth / Rref;
    }

    double kV(double f) const { return pow(PlainLog10(f), S2) * S1 * Rth / Rref; }

    double Current(double rise, double f) const { return pow(rise / kI(f), 0.5); }

    double Voltage(double rise, double f, double bound) const
    {
        return std::min(pow(rise / kV(f), 1 / S3), bound);
    }

    double RiseAtVoltage(double rise, double f, double bound) const
    {
        return pow(rise / kV(f), 1 / S3) < bound ? rise : kV(f) * pow(bound, S3);
    }

    double ApparentPower(double rise, double f, double bound) const
    {
        return Voltage(rise, f, bound) * Current(RiseAtVoltage(rise, f, bound), f);
    }

    double RiseOfApparentPower(double x, double f) const
    {
        return pow(x * pow(kI(f), 0.5) * pow(kV(f), 1 / S3), 2 * S3 / (S3 + 2));
    }
};

double PlainLoadEnd(const PlainPower& power, std::string_view load, double f)
{
    const double bound = 0.3536 * power.Vr;
    if (load == "Current")
    {
        return power.Current(80, f);
    }
    if (load == "Voltage")
    {
        return power.Voltage(80, f, bound);
    }
    return load == "Apparent Power" ? power.ApparentPower(80, f, bound) : 80 / power.Rth;
}

double PlainRise(const PlainPower& power, std::string_view load, double x, double f)
{
    if (load == "Current")
    {
        return pow(x, 2) * power.kI(f);
    }
    if (load == "Voltage")
    {
        return power.kV(f) * pow(x, power.S3);
    }
    return load == "Apparent Power" ? power.RiseOfApparentPower(x, f) : x * power.Rth;
}

double PlainAllowable(const PlainPower& power, std::string_view load, double rise, double f, double bound)
{
    if (load == "Current")
    {
        return power.Current(rise, f);
    }
    if (load == "Voltage")
    {
        return power.Voltage(rise, f, bound);
    }
    return load == "Apparent Power" ? power.ApparentPower(rise, f, bound)
                                    : power.RiseAtVoltage(rise, f, bound) / power.Rth;
}

double PlainFrequency(std::size_t i)
{
    return pow(10, 4 + 2 * static_cast<double>(i) / 199);
}

PlainCurve PlainRiseOverLoad(const PlainPower& power, const ChartRecord& record)
{
    const double f = record.Frequency * pow(10, 3);
    const double end = PlainLoadEnd(power, record.XAxisName, f);
    PlainCurve curve;
    double x = 0;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        curve.XData[i] = static_cast<float>(x);
        curve.YData[i] = static_cast<float>(PlainRise(power, record.XAxisName, x, f));
        x += end / 199;
    }
    return curve;
}

PlainCurve PlainRiseOverFrequency(const PlainPower& power, const ChartRecord& record)
{
    PlainCurve curve;
    curve.Limit = HUGE_VAL;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        curve.Limit = std::min(curve.Limit, PlainLoadEnd(power, record.ParameterName, PlainFrequency(i)));
    }
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const double f = PlainFrequency(i);
        curve.XData[i] = static_cast<float>(f);
        curve.YData[i] = static_cast<float>(PlainRise(power, record.ParameterName, record.ParameterValue, f));
    }
    return curve;
}

PlainCurve PlainAllowableCurve(const PlainPower& power, const PartRecord& part, const ChartRecord& record)
{
    const double biasVolts = record.DCBiasVoltage;
    const double bound = biasVolts <= 0.5 * power.Vr ? 0.354 * power.Vr : 0.707 * (power.Vr - biasVolts);
    const double left = double{part.Data[65]} - record.AmbientTemp;
    const double rise = record.AmbientTemp < part.Data[65] - 20 ? 20 : std::max(left, 0.0);
    PlainCurve curve;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const double f = PlainFrequency(i);
        curve.XData[i] = static_cast<float>(f);
        curve.YData[i] = static_cast<float>(PlainAllowable(power, record.YAxisName, rise, f, bound));
    }
    return curve;
}
} // namespace

PlainCurve PlainCurveOf(const PartRecord& part, const ChartRecord& record, CodeView view)
{
    if (record.ChartType >= 2)
    {
        return PlainCapacitanceCurve(part, record, view);
    }
    const PlainPower power(part, record);
    if (record.ChartType == 1)
    {
        return PlainAllowableCurve(power, part, record);
    }
    return record.XAxisName == "Frequency" ? PlainRiseOverFrequency(power, record)
                                           : PlainRiseOverLoad(power, record);
}
