#pragma once

/// The models of several parts in one file.

#include "partdata/PartRecord.h"
#include "simulation/ModelRefusal.h"

#include <array>
#include <cstddef>
#include <optional>
#include <set>
#include <string>

/// Models one behind another, each under a name of its own.
class ModelFile
{
public:
    /// @param form which of the part numbers is on display, as for `SimulationModel`
    explicit ModelFile(std::size_t form)
        : shownForm(form)
    {
    }

    /// Adds the model of a part; the refusal where it has none, or where an earlier one bears its name:
    /// simulators do not tell letter case apart.
    std::optional<ModelRefusal> Add(const PartRecord& part);

    /// All models, with an empty line between.
    const std::string& Text() const { return text; }
    /// "1126 models; left out: 53 no capacitance data, 1 name already taken"; "no model" where there is none.
    std::string Summary() const;
    bool HasLeftOut() const { return leftOut != Counts(); }

private:
    using Counts = std::array<std::size_t, ModelRefusals>;

    std::optional<ModelRefusal> TryToAdd(const PartRecord& part);

    std::size_t shownForm;
    std::string text;
    std::set<std::string> names;
    Counts leftOut{};
};
