#pragma once

/// A bill of materials from its text to its verdicts, in one.

#include "board/BomVerdict.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// All bytes of the two files.
struct BomTexts
{
    std::string Bill;
    std::optional<std::string> Conditions = {};
};

/// What the two files are called.
struct BomNames
{
    std::string Bill;
    /// Empty where there is none.
    std::string Conditions = {};
};

/// What is asked of a board beside its files.
struct BomAsked
{
    std::vector<ChosenColumn> Columns = {};
    /// What holds for all parts that have no value of their own.
    BomCells Options = {};
    BomSettings Settings = {};
    WaveformSource Waveforms;
    /// Called now and then; ends the check by an exception.
    std::function<void()> Pause = [] {};
};

/// A board with its verdicts, which point into its tables.
struct CheckedBom
{
    BomTable Bill = {};
    BomTable Conditions = {};
    JoinedBom Joined = {};
    /// Empty where there are faults.
    JudgedBom Judged = {};
    /// What is not taken of either file, conditions of what the bill has not, and notes on the board.
    std::vector<BomRemark> Warnings = {};
    /// Of the first step that has any: reading, joining, judging.
    std::vector<BomRemark> Faults = {};
};

/// "board.csv: line 12: dc bias: ...".
std::string RemarkText(const BomRemark& remark, const BomNames& names);

/// Reads, joins and judges; the parts must outlive the answer.
std::unique_ptr<const CheckedBom> CheckBom(BomTexts texts, const BomAsked& asked, const PartTable& parts);
