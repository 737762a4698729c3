#pragma once

/// One part that fits, with what the list tells of it.

#include "calc/Box.h"
#include "calc/CheckedMath.h"
#include "find/FoundColumns.h"
#include "partdata/PartRecord.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>

/// The values of a part in the units of the columns.
class FoundPart
{
public:
    explicit FoundPart(const PartRecord& found)
        : part(&found)
    {
        values.fill(std::numeric_limits<double>::quiet_NaN());
        for (auto& place : places)
        {
            place.fill(std::numeric_limits<float>::quiet_NaN());
        }
    }

    const PartRecord& Part() const { return *part; }
    /// The value of a column that is known to have one.
    double Known(FoundColumn column) const { return ValueOf(column).value_or(0); }
    /// The value of a column; nothing where it is empty, and for names.
    std::optional<double> ValueOf(FoundColumn column) const
    {
        const auto index = static_cast<std::size_t>(column);
        const double value = index >= firstComputed ? values[index - firstComputed] : RatingOf(column);
        return std::isnan(value) ? std::nullopt : std::optional(value);
    }

    /// Throws RunTimeError 6 for a value that does not fit a single.
    void Set(FoundColumn column, double value)
    {
        StoredSingle(value);
        values[static_cast<std::size_t>(column) - firstComputed] = value;
    }

    /// Leaves a column empty.
    void Clear(FoundColumn column)
    {
        values[static_cast<std::size_t>(column) - firstComputed] = std::numeric_limits<double>::quiet_NaN();
    }

    /// The conditions that tell a place, in the units that they are entered in; nothing where it is empty.
    std::optional<std::array<float, 2>> ConditionsAt(FoundPlace place) const
    {
        const auto& conditions = places[static_cast<std::size_t>(place)];
        return std::isnan(conditions[0]) ? std::nullopt : std::optional(conditions);
    }

    void SetPlace(FoundPlace place, const Place& at);

private:
    static constexpr auto firstComputed = static_cast<std::size_t>(FoundColumn::EffectiveCapacitance);

    /// What the part is listed with; not a number for a name.
    double RatingOf(FoundColumn column) const;

    const PartRecord* part;
    /// From the effective capacitance on; not a number where a column is empty.
    std::array<double, FoundColumnCount - firstComputed> values;
    std::array<std::array<float, 2>, FoundPlaceCount> places;
};
