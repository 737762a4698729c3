#include "samplerange/CapacitanceLaws.h"

#include "calc/ChangePolynomial.h"
#include "fit/LeastSquares.h"
#include "fit/PlainMath.h"

#include <vector>

namespace
{

/// Reference temperature of the coefficients.
constexpr double ReferenceC = 25;

/// A capacitance curve with a rounded peak: relative change
/// (1 + rise) / (1 + ((T - peak)·slope)²) - 1, with a slope for each side of the peak.
struct RoundedPeak
{
    double PeakC;
    double Rise;
    double ColdSlopeSquare;
    double HotSlopeSquare;
};

/// Where a curve ends: temperatures, and relative changes there.
struct CurveEnds
{
    double PeakC;
    double ColdC;
    double ColdChange;
    double HotC;
    double HotChange;
};

/// The ends of the temperature curve: the thinner the layers, the steeper.
CurveEnds EndsOf(const PartDesign& part)
{
    const double thin = Thinness(part);
    const Ceramic& ceramic = CeramicOf(part.Characteristic);
    const auto& range = CharacteristicNamed(part.Characteristic).RangeIn(CodeView::Eia);
    return {.PeakC = ceramic.PeakC.At(thin),
            .ColdC = range.MinC,
            .ColdChange = ceramic.ColdChange.At(thin),
            .HotC = range.MaxC,
            .HotChange = ceramic.HotChange.At(thin)};
}

double Square(double x)
{
    return x * x;
}

RoundedPeak PeakThrough(const CurveEnds& ends)
{
    const bool referenceIsHot = ReferenceC >= ends.PeakC;
    const double nearChange = referenceIsHot ? ends.HotChange : ends.ColdChange;
    const double nearSquare = Square((referenceIsHot ? ends.HotC : ends.ColdC) - ends.PeakC);
    const double farChange = referenceIsHot ? ends.ColdChange : ends.HotChange;
    const double farSquare = Square((referenceIsHot ? ends.ColdC : ends.HotC) - ends.PeakC);
    const double referenceSquare = Square(ReferenceC - ends.PeakC);

    // No change at the reference, the given change at the end of the same side.
    const double nearSlope = -nearChange / ((1 + nearChange) * nearSquare - referenceSquare);
    const double rise = nearSlope * referenceSquare;
    const double farSlope = ((1 + rise) / (1 + farChange) - 1) / farSquare;
    return {ends.PeakC, rise, referenceIsHot ? farSlope : nearSlope, referenceIsHot ? nearSlope : farSlope};
}

double ChangeAt(const RoundedPeak& peak, double temperatureC)
{
    const double slopeSquare = temperatureC >= peak.PeakC ? peak.HotSlopeSquare : peak.ColdSlopeSquare;
    return (1 + peak.Rise) / (1 + slopeSquare * Square(temperatureC - peak.PeakC)) - 1;
}

} // namespace

void WriteBiasLaw(const PartDesign& part, PartValues& data)
{
    constexpr int steps = 50;
    std::vector<Sample> samples;
    for (int i = 0; i <= steps; ++i)
    {
        const double r = static_cast<double>(i) / steps;
        samples.push_back({r, 100 * BiasLoss(part, r)});
    }
    const auto loss = FitRising(samples, 0.08 * samples.back().Y);
    double scale = 1;
    for (std::size_t j = 0; j < loss.size(); ++j)
    {
        scale *= part.Volts;
        data[Values::BiasPolynomial.Last - j] = 0 - loss[j] / scale;
    }
}

void WriteTemperaturePolynomial(const PartDesign& part, PartValues& data)
{
    constexpr int steps = 60;
    constexpr double span = 100;
    const auto ends = EndsOf(part);
    const auto peak = PeakThrough(ends);
    std::vector<Sample> samples;
    for (int i = 0; i <= steps; ++i)
    {
        const double temperatureC = ends.ColdC + (ends.HotC - ends.ColdC) * i / steps;
        samples.push_back({(temperatureC - ReferenceC) / span, 100 * ChangeAt(peak, temperatureC)});
    }
    const auto change = FitThroughOrigin(samples);
    double scale = 1;
    for (std::size_t j = 0; j < change.size(); ++j)
    {
        scale *= span;
        data[Values::TemperaturePolynomial.Last - j] = change[j] / scale;
    }
}

namespace
{

/// The peaked model: what is left far from the peak, and the two decays.
constexpr double FarOffset = -94.8;

struct PeakedModel
{
    double Amplitude;
    double PeakC;
    double ColdDecay;
    double ColdExponent;
    double HotDecay;
    double HotExponent;
};

PeakedModel PeakedModelOf(const PartDesign& part)
{
    const double thin = Thinness(part);
    const auto& range = CharacteristicNamed(part.Characteristic).RangeIn(CodeView::Eia);
    const double peakC = 16 + 5 * thin;
    const double hotExponent = 1.75 - 0.15 * thin;
    const double coldExponent = 1.6 - 0.1 * thin;
    const double hotChange = -79 + 6 * thin;
    const double coldChange = -60 + 10 * thin;

    // Amplitude·exp(-decay·|T - peak|^exponent) is what is missing to the far offset, at 25 °C and at the
    // hot end; the quotient of both leaves the amplitude.
    const double quotient = PlainPower((ReferenceC - peakC) / (range.MaxC - peakC), hotExponent);
    const double logAtReference = PlainLog(-FarOffset);
    const double logAtHot = PlainLog(hotChange - FarOffset);
    const double logAmplitude = (logAtReference - quotient * logAtHot) / (1 - quotient);
    return {.Amplitude = PlainExp(logAmplitude),
            .PeakC = peakC,
            .ColdDecay = (logAmplitude - PlainLog(coldChange - FarOffset)) /
                         PlainPower(peakC - range.MinC, coldExponent),
            .ColdExponent = coldExponent,
            .HotDecay = (logAmplitude - logAtHot) / PlainPower(range.MaxC - peakC, hotExponent),
            .HotExponent = hotExponent};
}

} // namespace

void WritePeakedModel(const PartDesign& part, PartValues& data)
{
    const auto model = PeakedModelOf(part);
    const double voltsSquare = part.Volts * part.Volts;
    const double loss = BiasLoss(part, 1);
    data[Value::PeakAmplitude] = model.Amplitude;
    data[Value::PeakOffset] = FarOffset;
    // Bias moves the peak to warmer and rounds it off, the more the more capacitance it takes away.
    data[Value::PeakTemperatureV2] = 1.6 * loss / voltsSquare;
    data[Value::PeakTemperature] = model.PeakC;
    data[Value::DecayBelowV2] = -0.02 * loss * model.ColdDecay / voltsSquare;
    data[Value::DecayBelow] = model.ColdDecay;
    data[Value::DecayAboveV2] = -0.02 * loss * model.HotDecay / voltsSquare;
    data[Value::DecayAbove] = model.HotDecay;
    data[Value::ExponentBelow] = model.ColdExponent;
    data[Value::ExponentAbove] = model.HotExponent;
}

static double PeakedCapacitance(const PartDesign& part, double temperatureC)
{
    const auto model = PeakedModelOf(part);
    const double distance = temperatureC - model.PeakC;
    const double decay = distance >= 0 ? model.HotDecay * PlainPower(distance, model.HotExponent)
                                       : model.ColdDecay * PlainPower(-distance, model.ColdExponent);
    return 1 + (model.Amplitude * PlainExp(-decay) + FarOffset) / 100;
}

static bool IsPeaked(const PartDesign& part)
{
    return CharacteristicNamed(part.Characteristic).Model == CapacitanceModel::Peaked;
}

double RelativeCapacitance(const PartDesign& part, double temperatureC)
{
    if (IsPeaked(part))
    {
        return PeakedCapacitance(part, temperatureC) / PeakedCapacitance(part, 20);
    }
    const auto peak = PeakThrough(EndsOf(part));
    return (1 + ChangeAt(peak, temperatureC)) / (1 + ChangeAt(peak, 20));
}

double BiasedCapacitance(const PartValues& data, double volts)
{
    // The peaked model keeps its far offset out of the fall, so its curves fall a little less than the
    // polynomial; the heating laws take four fifths of the difference.
    const double share = data[Value::PeakOffset] == 0 ? 1 : (1 + 4 * -data[Value::PeakOffset] / 100) / 5;
    return 1 + share * BiasChange(data, volts) / 100;
}
