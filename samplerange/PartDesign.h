#pragma once

/// How one part is built, and the properties of its ceramic that follow from that.

#include "samplerange/SourceTable.h"

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
};

/// The ceramic of a characteristic, by its EIA name.
const Ceramic& CeramicOf(std::string_view characteristic);

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
