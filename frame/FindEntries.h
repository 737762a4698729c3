#pragma once

/// What the entries of the window that finds parts ask for.

#include "find/PartFilter.h"
#include "find/Wants.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// The entries as they are typed, in UTF-8; an empty one asks for nothing. Numbers may bear a unit
/// ("300kHz"), and bias, ambient and frequency may be ranges; a bare capacitance is in µF.
struct FindEntries
{
    std::string PartNum = {};
    std::optional<PartSize> MaxSize = {};
    std::string Tcc = {};
    /// This value, or a range: "16..", "1..10".
    std::string RatedVol = {};
    std::string Cap = {};
    std::string DCBiasVol = {};
    std::string AmbientTemp = {};
    std::string Frequency = {};
    std::string Tolerance = {};
    std::string Current = {};
    std::string HeatResistance = {};
    std::string MinCap = {};
    std::string MinLeft = {};
    std::string MaxRise = {};
    bool IsParallel = false;
    CodeView View = CodeView::Eia;
    bool CommaIsDecimal = false;
};

/// What is looked for, and where.
struct FindAsked
{
    PartFilter Filter = {};
    FindQuestion Question = {};
    /// The parts that the filter lets through.
    std::vector<const PartRecord*> Candidates = {};
};

/// An entry that is refused.
struct RefusedEntry
{
    /// The name of its control behind the kind: "FindFrequency" of `txtFindFrequency`.
    std::string_view Control;
    /// In the words of the selection form, on one line.
    std::string Message;
};

/// The entries that ask this of every part.
FindEntries EntriesOf(const FindQuestion& question);

/// Reads the entries; the first that is refused ends it.
std::variant<FindAsked, RefusedEntry> AskedBy(const FindEntries& entries, const PartTable& parts);
