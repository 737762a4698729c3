#pragma once

/// The temperature characteristics that parts come in, and what each of them permits.

#include "partdata/PartRecord.h"

#include <array>
#include <span>
#include <string_view>

/// From the lowest to the highest temperature, in °C.
struct TemperatureRange
{
    float MinC = 0;
    float MaxC = 0;

    bool operator==(const TemperatureRange&) const = default;
};

/// How the change of capacitance is modelled: by a polynomial in the temperature, or as a bell around a peak.
enum class CapacitanceModel
{
    None,
    Polynomial,
    Peaked,
};

/// One characteristic: "X7R" in EIA code, "R" in JIS code.
struct Characteristic
{
    std::array<std::string_view, CodeForms> Names;
    CapacitanceModel Model;
    /// Temperatures that its parts work at, which depend on the code on display, and the rounded ends of a
    /// chart's axis over them.
    std::array<TemperatureRange, CodeForms> Range;
    std::array<TemperatureRange, CodeForms> AxisRange;
    /// Change of capacitance that is permitted over the temperatures, in percent.
    float LeastChange;
    float MostChange;

    const TemperatureRange& RangeIn(CodeView view) const { return Range[static_cast<std::size_t>(view)]; }
};

/// All that are listed; parts of another characteristic have no capacitance charts.
std::span<const Characteristic> Characteristics();

/// The characteristic of an EIA name, compared letter by letter; null for one that is not listed.
const Characteristic* FindCharacteristic(std::string_view eiaName);

/// The model of a part's capacitance: that of its characteristic, but the polynomial for the special parts,
/// and none for a characteristic that is not listed.
CapacitanceModel CapacitanceModelOf(const PartRecord& part);
