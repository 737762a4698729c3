#include "samplerange/PartDesign.h"

#include "samplerange/PlainMath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace
{

constexpr double VacuumPermittivity = 8.8542e-12;
/// Shares of length, width and thickness that hold overlapping electrodes; the rest is margin.
constexpr double ActiveLength = 0.75;
constexpr double ActiveWidth = 0.75;
constexpr double ActiveThickness = 0.8;
constexpr double ElectrodeUm = 0.8;
constexpr std::array<std::pair<std::string_view, Ceramic>, 3> Ceramics = {{
    {"X7R", {2500, 4.4, 1.7, 0.10, 0.8, 0.7, 0.62, 0.80, 0.020, 0.035}},
    {"X5R", {3200, 3.35, 1.9, 0.12, 0.7, 0.9, 0.62, 0.845, 0.030, 0.100}},
    {"Y5V", {11000, 1.1, 1.5, 0.14, 0.2, 1.95, 0.66, 0.70, 0.050, 0.120}},
}};

/// The layer thickness in µm at which layers and electrodes fill the case: layer·(layer + electrode) =
/// permittivity·area·height / capacitance.
double FillingLayerUm(const CaseSize& size, double thicknessMm, const Ceramic& ceramic, double farads)
{
    const double area = ActiveLength * size.LengthMm * ActiveWidth * size.WidthMm * 1e-6;
    const double height = ActiveThickness * thicknessMm * 1e-3;
    const double product = VacuumPermittivity * ceramic.Permittivity * area * height / farads * 1e12;
    return std::sqrt(product + ElectrodeUm * ElectrodeUm / 4) - ElectrodeUm / 2;
}

/// The strain at which the loss at rated voltage is the given share.
double StrainOfLoss(const Ceramic& ceramic, double loss)
{
    return PlainPower(loss / (1 - ceramic.FirmShare - loss), 1 / ceramic.FallExponent);
}

/// The grades for high voltages yield at higher fields.
double HalfField(const Ceramic& ceramic, double volts)
{
    return ceramic.HalfField * (1 + volts / 500);
}

/// A part in the thinnest case that does not strain the ceramic, else in the thickest.
PartDesign FillCase(const CaseSize& size, const Family& family, const Ceramic& ceramic,
                    std::int64_t picofarads)
{
    const double farads = static_cast<double>(picofarads) * 1e-12;
    PartDesign part{&size, family.Characteristic, family.Volts, picofarads, family.Data, 0, 0, 0};
    for (const double thickness : size.ThicknessesMm)
    {
        const double filling = FillingLayerUm(size, thickness, ceramic, farads);
        const double easy = family.Volts / ceramic.EasyField;
        part.ThicknessMm = thickness;
        part.LayerUm = 1 / std::sqrt(1 / (filling * filling) + 1 / (easy * easy));
        if (family.Volts / filling < ceramic.EasyStrain * HalfField(ceramic, family.Volts))
        {
            break;
        }
    }
    part.RatedStrain = family.Volts / part.LayerUm / HalfField(ceramic, family.Volts);
    return part;
}

} // namespace

const Ceramic& CeramicOf(std::string_view characteristic)
{
    for (const auto& [name, ceramic] : Ceramics)
    {
        if (name == characteristic)
        {
            return ceramic;
        }
    }
    throw std::runtime_error("no such characteristic: " + std::string(characteristic));
}

PartDesign DesignPart(const CaseSize& size, const Family& family, std::int64_t picofarads)
{
    const Ceramic& ceramic = CeramicOf(family.Characteristic);
    PartDesign part = FillCase(size, family, ceramic, picofarads);
    const double least = StrainOfLoss(ceramic, ceramic.LeastLossOfFullest);
    const double fullest = FillCase(size, family, ceramic, family.HighestPf).RatedStrain;
    if (fullest < least)
    {
        const double fullness = static_cast<double>(picofarads) / static_cast<double>(family.HighestPf);
        part.RatedStrain *= PlainPower(least / fullest, std::sqrt(fullness));
    }
    part.RatedStrain = std::min(part.RatedStrain, StrainOfLoss(ceramic, ceramic.LargestLoss));
    return part;
}

double BiasLoss(const PartDesign& part, double r)
{
    const Ceramic& ceramic = CeramicOf(part.Characteristic);
    const double yield = PlainPower(r * part.RatedStrain, ceramic.FallExponent);
    return (1 - ceramic.FirmShare) * yield / (1 + yield);
}

double Thinness(const PartDesign& part)
{
    return 1 / (1 + part.LayerUm / 2);
}

double LossFactor(const PartDesign& part)
{
    const Ceramic& ceramic = CeramicOf(part.Characteristic);
    return ceramic.ThickLoss + (ceramic.ThinLoss - ceramic.ThickLoss) * Thinness(part);
}
