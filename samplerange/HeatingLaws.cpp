#include "samplerange/HeatingLaws.h"

#include "fit/VoltageLaw.h"

namespace
{

constexpr double Pi = 3.14159265358979323846;
/// Frequency at which the skin effect has doubled the resistance of the electrodes.
constexpr double SkinHz = 50e6;
/// Capacitance at which so many electrodes lie side by side that they resist half as much.
constexpr double ManyLayersFarads = 47e-6;

constexpr TemperatureFactor ElectrodeChange{0.0039, 0};

double HighestOperatingC(const PartDesign& part)
{
    return CharacteristicNamed(part.Characteristic).RangeIn(CodeView::Eia).MaxC;
}

/// ESR = CeramicOhmHz/f + ElectrodeOhms·(1 + f/SkinHz).
struct SeriesResistance
{
    double CeramicOhmHz;
    double ElectrodeOhms;
    TemperatureFactor Ceramic;

    double At(double hz, double t) const
    {
        return CeramicOhmHz / hz * Ceramic.At(t) + ElectrodeOhms * (1 + hz / SkinHz) * ElectrodeChange.At(t);
    }
};

SeriesResistance SeriesResistanceOf(const PartDesign& part)
{
    const double farads = static_cast<double>(part.Picofarads) * 1e-12;
    const double electrodes = part.Size->ElectrodeMilliohms / 1000 / (1 + farads / ManyLayersFarads);
    return {LossFactor(part) / (2 * Pi * farads), electrodes, CeramicOf(part.Characteristic).LossChange};
}

void WriteCurrentLaw(const SeriesResistance& resistance, double heatResistance, PartValues& data)
{
    const double ceramic = resistance.CeramicOhmHz * heatResistance;
    const double electrode = resistance.ElectrodeOhms * heatResistance;
    data[Value::CurrentPerF] = ceramic;
    data[Value::CurrentTPerF] = ceramic * resistance.Ceramic.Linear;
    data[Value::CurrentT2PerF] = ceramic * resistance.Ceramic.Square;
    data[Value::Current] = electrode;
    data[Value::CurrentT] = electrode * ElectrodeChange.Linear;
    data[Value::CurrentT2] = electrode * ElectrodeChange.Square;
    data[Value::CurrentF] = electrode / SkinHz;
    data[Value::CurrentTF] = electrode / SkinHz * ElectrodeChange.Linear;
    data[Value::CurrentT2F] = electrode / SkinHz * ElectrodeChange.Square;
    data[Value::HeatResistance] = heatResistance;
}

/// Thin layers lose more than with the square of the voltage.
VoltageExponent ExponentOf(const PartDesign& part)
{
    const double base = CeramicOf(part.Characteristic).LossExponent;
    return {base + 0.2 * Thinness(part), 0.05 * BiasLoss(part, 1), -0.0006};
}

} // namespace

void WriteHeatingLaws(const PartDesign& part, PartValues& data)
{
    const auto resistance = SeriesResistanceOf(part);
    WriteCurrentLaw(resistance, part.Size->HeatResistance, data);

    WriteVoltageTerms(
        VoltageTermsOf({.SeriesOhms = [&](double hz, double t) { return resistance.At(hz, t); },
                        .HeatResistance = part.Size->HeatResistance,
                        .Farads = static_cast<double>(part.Picofarads) * 1e-12,
                        .OverBias = [&](double r) { return BiasedCapacitance(data, r * part.Volts); },
                        .OverTemperature = [&](double celsius) { return RelativeCapacitance(part, celsius); },
                        .Exponent = ExponentOf(part),
                        .HighestC = HighestOperatingC(part)}),
        data);
    data[Value::UpperTemperature] = HighestOperatingC(part);
}
