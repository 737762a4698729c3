#pragma once

/// Where a circuit works its capacitors.

#include "calc/Bounds.h"
#include "calc/Quantities.h"
#include "partdata/PartRecord.h"

#include <optional>

/// An AC load: a current in Arms, voltage in Vrms, apparent power in VA or effective power in W.
struct AcLoad
{
    Quantity Kind = Quantity::Current;
    float Value = 0;
};

/// The conditions that all parts are judged under.
struct OperatingPoint
{
    float BiasVolts = 0;
    float AmbientC = EiaReferenceC;
    /// Without a frequency nothing is told of heating.
    std::optional<float> Kilohertz = {};
    /// In °C/W; the part's own where it is left out.
    std::optional<float> HeatResistance = {};
    std::optional<AcLoad> Load = {};
    CodeView View = CodeView::Eia;
};
