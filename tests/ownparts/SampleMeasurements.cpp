#include "tests/ownparts/SampleMeasurements.h"

#include "calc/Capacitance.h"
#include "calc/PowerModel.h"
#include "files/PartLoading.h"
#include "partdata/Availability.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>

const PartTable& SampleRange()
{
    static const PartTable table = LoadPartData(RANGE_FOLDER);
    return table;
}

const PartRecord& SamplePart(std::string_view partNum)
{
    const auto& parts = SampleRange().PartData;
    const auto found = std::ranges::find(parts, partNum, [](const auto& part) { return part.PartNum[0]; });
    return found != parts.end() ? *found : throw std::runtime_error("no such part in the range");
}

namespace
{
class Measurer
{
public:
    Measurer(const PartRecord& truth, const Rig& usedRig)
        : part(truth)
        , rig(usedRig)
        , random(usedRig.Seed)
    {
    }

    void Capacitance(double volts, double celsius)
    {
        const double truth = CapacitancePointAt(part, volts, celsius, CodeView::Eia)->PicoFarads;
        measured.Capacitances.push_back({++line, volts, celsius, truth * Scattered(rig.Noise)});
    }

    void Rise(double hz, double celsius, double rise)
    {
        const auto model =
            PowerModelOf(part, 0, static_cast<float>(celsius), part.Data[Value::HeatResistance]);
        const double amperes = std::sqrt(rise / model.kI(hz));
        const double reading = rise * Scattered(rig.Noise) + rig.RiseNoiseC * normal(random);
        measured.RisesByCurrent.push_back({++line, 0, celsius, hz, amperes, reading});
    }

    Measurements Taken() { return std::move(measured); }

private:
    double Scattered(double noise) { return 1 + noise * normal(random); }

    const PartRecord& part;
    const Rig& rig;
    std::mt19937_64 random;
    std::normal_distribution<double> normal;
    std::size_t line = 0;
    Measurements measured;
};
} // namespace

MeasuredPart MeasuredOn(const PartRecord& part, const Rig& rig)
{
    MeasuredPart own;
    std::ranges::copy(NamesOf(part), own.Names.begin());
    // The special parts keep their names, which their model goes by.
    if (CapacitanceModelOf(part) == FindCharacteristic(part.Tcc[0])->Model)
    {
        std::fill_n(own.Names.begin(), PartNumForms, "OWN");
    }
    own.NominalPicofarads = part.Data[Value::Capacitance];
    own.RatedVolts = part.Data[Value::RatedVoltage];
    own.UpperC = FindCharacteristic(part.Tcc[0])->RangeIn(CodeView::Eia).MaxC;
    own.HeatResistance = part.Data[Value::HeatResistance];

    Measurer measurer(part, rig);
    const auto& range = FindCharacteristic(part.Tcc[0])->RangeIn(CodeView::Eia);
    const auto celsius = [&](int i, int count) {
        return 25 +
               (range.MinC - 25 + (range.MaxC - range.MinC) * (i / (count - 1.0))) * rig.TemperatureShare;
    };
    if (HasData(part, Values::OfCapacitance))
    {
        for (int i = 0; i < rig.Biases; ++i)
        {
            measurer.Capacitance(own.RatedVolts * rig.TopBias * i / (rig.Biases - 1), 25);
        }
        for (int i = 0; i < rig.Temperatures; ++i)
        {
            measurer.Capacitance(0, celsius(i, rig.Temperatures));
        }
        for (int i = 0; i < rig.TemperaturesAtRated; ++i)
        {
            measurer.Capacitance(own.RatedVolts, celsius(i, rig.TemperaturesAtRated));
        }
    }
    if (HasData(part, Values::OfPower))
    {
        for (const double hz : rig.Hertz)
        {
            for (const double ambient : rig.Ambients)
            {
                for (const double rise : {2.0, 5.0, 10.0, 15.0, 20.0})
                {
                    measurer.Rise(hz, ambient, rise);
                }
            }
        }
    }
    own.Measured = measurer.Taken();
    return own;
}
