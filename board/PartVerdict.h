#pragma once

/// One part under the question of an item: its figures, its limits, and what is left of them.

#include "board/BomNet.h"
#include "board/BomQuestion.h"
#include "find/FoundPart.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One limit, and what is left of it.
struct BomLimit
{
    /// "bias", "capacitance", "left", "warm capacitance", "rise", "loss resistance".
    std::string_view Name;
    double Wanted = 0;
    double Found = 0;
    /// In percent; below 0 where the limit is missed.
    double Reserve = 0;
    /// "bias 26.4 V above 16 V", "5.017uF at 5.25 V, 65 C under 6uF".
    std::string Text;
};

/// A part that passes where another fails.
struct BomSuggestion
{
    const PartRecord* Part = nullptr;
    /// In parallel.
    int Count = 1;
    /// Least capacitance of one part in pF; nothing without data.
    std::optional<double> Least;
    double Reserve = 0;
};

/// The figures of a part in the place of an item, and its limits.
struct JudgedPart
{
    FoundPart Figures;
    std::vector<BomLimit> Limits;
    /// Why limits cannot be judged.
    std::vector<std::string> Unknown;
    /// What fails without a figure.
    std::vector<std::string> Missed;

    /// The limit of the least reserve; null without limits.
    const BomLimit* Deciding() const;
    bool IsFailing() const;
};

/// Judges a part under the question of an item; its share of the net's current where it has one, and null
/// where the net's current could not be shared.
JudgedPart JudgePart(const PartRecord& part, const BomQuestion& question, const NetShare* share);
