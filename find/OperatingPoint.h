#pragma once

/// Where a circuit works its capacitors: at a point, or anywhere in ranges of conditions.

#include "calc/Bounds.h"
#include "calc/Box.h"
#include "calc/Quantities.h"
#include "partdata/PartRecord.h"

#include <optional>

/// An AC load: a current in Arms, voltage in Vrms, apparent power in VA or effective power in W.
struct AcLoad
{
    Quantity Kind = Quantity::Current;
    float Value = 0;
};

/// By how much, in percent, the capacitance of a part may lie below and above what its data tell.
struct CapacitanceTolerance
{
    float Down = 0;
    float Up = 0;

    bool operator==(const CapacitanceTolerance&) const = default;
};

/// The widest tolerances, in percent.
inline constexpr float MostToleranceDown = 99;
inline constexpr float MostToleranceUp = 999;

inline bool IsPermitted(const CapacitanceTolerance& tolerance)
{
    const auto& [down, up] = tolerance;
    return down >= 0 && down <= MostToleranceDown && up >= 0 && up <= MostToleranceUp;
}

/// The conditions that all parts are judged under. Each stands anywhere in its range, whatever the others do.
struct OperatingPoint
{
    ConditionRange BiasVolts = 0;
    ConditionRange AmbientC = EiaReferenceC;
    /// Without a frequency nothing is told of heating.
    std::optional<ConditionRange> Kilohertz = {};
    /// In °C/W; the part's own where it is left out.
    std::optional<float> HeatResistance = {};
    std::optional<AcLoad> Load = {};
    CodeView View = CodeView::Eia;
    CapacitanceTolerance Tolerance = {};

    /// True when every condition has one value.
    bool IsPoint() const
    {
        return BiasVolts.IsPoint() && AmbientC.IsPoint() && (!Kilohertz || Kilohertz->IsPoint());
    }

    /// True when values differ from their worst: in ranges, and by a tolerance.
    bool HasWorst() const { return !IsPoint() || Tolerance != CapacitanceTolerance(); }

    /// The ambient temperatures that heating is judged over: where a range reaches below the lowest that the
    /// heating laws were measured at, from there on.
    ConditionRange HeatingAmbientC() const
    {
        const bool reachesBelow =
            AmbientC.Low < LowestHeatingAmbientC && AmbientC.High >= LowestHeatingAmbientC;
        return reachesBelow ? ConditionRange(LowestHeatingAmbientC, AmbientC.High) : AmbientC;
    }
};
