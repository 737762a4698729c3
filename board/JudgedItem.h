#pragma once

/// One row of a board, or the references of it that work alike, with its verdict.

#include "board/BomNet.h"
#include "board/BomQuestion.h"
#include "board/PartVerdict.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The worst first.
enum class BomVerdict : std::uint8_t
{
    Fail,
    Unknown,
    Warn,
    Ok,
};

inline constexpr std::array<std::string_view, 4> BomVerdictNames = {"fail", "unknown", "warn", "ok"};

struct JudgedItem
{
    const BomItem* Item = nullptr;
    BomQuestion Question;
    /// Null for a part that is not in the range.
    const PartRecord* Part = nullptr;
    /// The part is the only one of the values that the bill tells.
    bool IsByValue = false;
    /// Part numbers like the one that is not in the range.
    std::vector<std::string> Near;
    BomVerdict Verdict = BomVerdict::Unknown;
    /// In percent; nothing where nothing can be judged.
    std::optional<double> Reserve;
    /// The name of the limit that has it.
    std::string Decides;
    std::vector<std::string> Reasons;
    std::optional<JudgedPart> Judged;
    std::optional<NetShare> Share;
    std::optional<BomSuggestion> Suggestion;
    /// Suggestions were looked for.
    bool WasSuggested = false;

    /// A figure of the part; nothing where it is empty.
    std::optional<double> Figure(FoundColumn column) const;
    /// True where a load of its own or a net's is judged.
    bool IsLoaded() const;
    /// The question that figures are told under: with the share of the net's current as the load.
    FindQuestion ToldQuestion() const;
    /// A limit by its name; null where it is not judged.
    const BomLimit* Limit(std::string_view name) const;
};
