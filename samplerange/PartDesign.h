#pragma once

/// How one part is built, and the properties of its ceramic that follow from that.

#include "partdata/Characteristic.h"
#include "samplerange/SourceTable.h"

/// A value that depends on how thin the layers are: that of thick layers, and how much very thin ones add.
struct ByThinness
{
    double Thick;
    double Added;

    double At(double thinness) const { return Thick + Added * thinness; }
};

/// A value that changes with temperature: value·(1 + Linear·t + Square·t²), t = T - 20.
struct TemperatureFactor
{
    double Linear;
    double Square;

    double At(double t) const { return 1 + t * Linear + t * t * Square; }
};

/// A ceramic: what parts of one temperature characteristic have in common.
struct Ceramic
{
    double Permittivity;
    /// Field at which the part of the permittivity that yields to bias has fallen to half, in V/µm.
    double HalfField;
    /// Sharpness of that fall, and the share of the permittivity that never yields.
    double FallExponent;
    double FirmShare;
    /// Field at rated voltage of parts with plenty of room, in V/µm.
    double EasyField;
    /// Strain, field over half field, up to which a thinner case is preferred.
    double EasyStrain;
    /// Least and largest share of capacitance that the fullest part of a family loses at rated voltage.
    double LeastLossOfFullest;
    double LargestLoss;
    /// Loss factor at 100 kHz of thick and of very thin layers.
    double ThickLoss;
    double ThinLoss;
    /// Temperature at which there is most capacitance without bias, in °C, and the relative changes of
    /// capacitance at both ends of the characteristic's range.
    ByThinness PeakC;
    ByThinness ColdChange;
    ByThinness HotChange;
    /// How the loss changes with temperature, and the power of the voltage that it rises with.
    TemperatureFactor LossChange;
    double LossExponent;
    /// Letters of the tolerance below and from 1 µF on.
    char Tolerance;
    char LargeTolerance;
};

/// The ceramic of a characteristic, by its EIA name. Throws std::runtime_error for one that has none.
const Ceramic& CeramicOf(std::string_view characteristic);

/// The characteristic of an EIA name. Throws std::runtime_error for one that is not listed.
const Characteristic& CharacteristicNamed(std::string_view eiaName);

/// One part as it is built.
struct PartDesign
{
    const CaseSize* Size;
    std::string Characteristic;
    double Volts;
    std::int64_t Picofarads;
    Measured Data;
    /// Thickness of the case in mm, thickness of one ceramic layer in µm.
    double ThicknessMm;
    double LayerUm;
    /// Field at rated voltage relative to the half field of its ceramic.
    double RatedStrain;
};

/// Builds a part: the thinnest case in which the ceramic is not strained, else the thickest. Towards the
/// highest capacitance of its family, grades of ceramic with more permittivity are used, which yield to bias
/// at a lower field.
PartDesign DesignPart(const CaseSize& size, const Family& family, std::int64_t picofarads);

/// The share of capacitance lost to bias at a fraction `r` (0 to 1) of the rated voltage:
/// (1 - firm share)·(1 - 1/(1 + (r·strain)^exponent)).
double BiasLoss(const PartDesign& part, double r);

/// How thin the layers are: near 0 for thick layers, near 1 far below a micrometre.
double Thinness(const PartDesign& part);

/// Loss factor at 100 kHz and 20 °C.
double LossFactor(const PartDesign& part);
