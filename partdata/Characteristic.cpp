#include "partdata/Characteristic.h"

#include "partdata/SpecialParts.h"

#include <algorithm>

static constexpr std::array<Characteristic, 3> Listed = {{
    {.Names = {"X7R", "R"},
     .Model = CapacitanceModel::Polynomial,
     .Range = {{{-55, 125}, {-55, 125}}},
     .AxisRange = {{{-75, 125}, {-75, 125}}},
     .LeastChange = -15,
     .MostChange = 15},
    {.Names = {"X5R", "B"},
     .Model = CapacitanceModel::Polynomial,
     .Range = {{{-55, 85}, {-25, 85}}},
     .AxisRange = {{{-75, 100}, {-25, 100}}},
     .LeastChange = -15,
     .MostChange = 15},
    {.Names = {"Y5V", "F"},
     .Model = CapacitanceModel::Peaked,
     .Range = {{{-30, 85}, {-25, 85}}},
     .AxisRange = {{{-50, 100}, {-25, 100}}},
     .LeastChange = -82,
     .MostChange = 22},
}};

std::span<const Characteristic> Characteristics()
{
    return Listed;
}

const Characteristic* FindCharacteristic(std::string_view eiaName)
{
    const auto* const found =
        std::ranges::find_if(Listed, [eiaName](const auto& listed) { return listed.Names[0] == eiaName; });
    return found == Listed.end() ? nullptr : found;
}

CapacitanceModel CapacitanceModelOf(const PartRecord& part)
{
    const auto* const characteristic = FindCharacteristic(part.Tcc[0]);
    const auto model = characteristic == nullptr ? CapacitanceModel::None : characteristic->Model;
    // Most parts need no look at the special ones.
    return model != CapacitanceModel::Polynomial && IsSpecialPart(part.PartNum[0])
               ? CapacitanceModel::Polynomial
               : model;
}
