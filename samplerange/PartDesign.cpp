#include "samplerange/PartDesign.h"

#include "fit/PlainMath.h"

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
    {"X7R",
     {.Permittivity = 2500,
      .HalfField = 4.4,
      .FallExponent = 1.7,
      .FirmShare = 0.10,
      .EasyField = 0.8,
      .EasyStrain = 0.7,
      .LeastLossOfFullest = 0.62,
      .LargestLoss = 0.80,
      .ThickLoss = 0.020,
      .ThinLoss = 0.035,
      .PeakC = {42, -8},
      .ColdChange = {-0.075, -0.045},
      .HotChange = {-0.085, -0.045},
      .LossChange = {-0.0070, 3.2e-5},
      .LossExponent = 1.97,
      .Tolerance = 'K',
      .LargeTolerance = 'K'}},
    {"X5R",
     {.Permittivity = 3200,
      .HalfField = 3.35,
      .FallExponent = 1.9,
      .FirmShare = 0.12,
      .EasyField = 0.7,
      .EasyStrain = 0.9,
      .LeastLossOfFullest = 0.62,
      .LargestLoss = 0.845,
      .ThickLoss = 0.030,
      .ThinLoss = 0.100,
      .PeakC = {14, -8},
      .ColdChange = {-0.055, -0.06},
      .HotChange = {-0.075, -0.055},
      .LossChange = {-0.0090, 5.5e-5},
      .LossExponent = 2.04,
      .Tolerance = 'K',
      .LargeTolerance = 'M'}},
    {"Y5V",
     {.Permittivity = 11000,
      .HalfField = 1.1,
      .FallExponent = 1.5,
      .FirmShare = 0.14,
      .EasyField = 0.2,
      .EasyStrain = 1.95,
      .LeastLossOfFullest = 0.66,
      .LargestLoss = 0.70,
      .ThickLoss = 0.050,
      .ThinLoss = 0.120,
      .PeakC = {17, -4},
      .ColdChange = {-0.46, 0},
      .HotChange = {-0.62, -0.06},
      .LossChange = {-0.0110, 6.5e-5},
      .LossExponent = 2.0,
      .Tolerance = 'Z',
      .LargeTolerance = 'Z'}},
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

const Characteristic& CharacteristicNamed(std::string_view eiaName)
{
    const auto* const found = FindCharacteristic(eiaName);
    if (found == nullptr)
    {
        throw std::runtime_error("no such characteristic: " + std::string(eiaName));
    }
    return *found;
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
