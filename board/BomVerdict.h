#pragma once

/// Which parts of a board hold what is asked of them, and how much of each limit is left.

#include "board/BomNet.h"
#include "board/BomQuestion.h"
#include "board/BomSettings.h"
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

struct JudgedNet
{
    std::string Name;
    std::vector<NetPiece> Pieces;
    /// Of each piece: its index among the judged items.
    std::vector<std::size_t> Items;
    NetAnswer Answer;
    std::optional<float> Wanted;
    BomVerdict Verdict = BomVerdict::Unknown;
    /// In percent.
    std::optional<double> Reserve;
    std::string Reason;

    /// Of all pieces.
    int Parts() const;
    /// True where there is more to tell than the row of its only piece does.
    bool IsTold() const;
};

struct JudgedBom
{
    std::vector<JudgedItem> Items;
    std::vector<JudgedNet> Nets;
    /// How many items have each verdict.
    std::array<std::size_t, 4> Counts = {};
    std::size_t Skipped = 0;
    std::size_t NotFitted = 0;
    /// What is not judged, in the order of the bill; whether it is fitted tells why.
    std::vector<const BomItem*> Unjudged;
    std::vector<BomRemark> Faults;
    /// What is told of the board beside its verdicts, a line each.
    std::vector<std::string> Notes;

    bool Has(BomVerdict verdict) const;
};

/// Judges a bill that is joined without faults; it and the parts must outlive the answer.
JudgedBom JudgeBom(const JoinedBom& joined, const PartTable& parts, const BomSettings& settings,
                   const WaveformSource& waveforms);
