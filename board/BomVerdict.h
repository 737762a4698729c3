#pragma once

/// Which parts of a board hold what is asked of them, and how much of each limit is left.

#include "board/BomSettings.h"
#include "board/JudgedItem.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

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

/// Judges a bill that is joined without faults; it and the parts must outlive the answer. What `pause` throws
/// between two items ends it.
JudgedBom JudgeBom(
    const JoinedBom& joined, const PartTable& parts, const BomSettings& settings,
    const WaveformSource& waveforms, const std::function<void()>& pause = [] {});
