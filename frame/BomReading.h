#pragma once

/// Reads a board's files and judges its parts, beside the windows.

#include "board/BomCheck.h"
#include "frame/FileWatch.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The files of a board, in UTF-8; the second may be empty.
struct BoardFiles
{
    std::string Bill;
    std::string Conditions;
};

/// A board as its files tell it.
struct ReadBoard
{
    /// Nothing where a file cannot be read.
    std::shared_ptr<const CheckedBom> Bom;
    BomSettings Settings;
    /// "board.csv: line 12: dc bias: ...", a line each.
    std::vector<std::string> Faults;
    std::vector<std::string> Warnings;
    /// All files that the answer depends on, waveforms included, as they were before they were read.
    std::vector<WatchedFile> Files;
};

/// Reads and judges; the parts must outlive the answer. What goes wrong with a file is a fault, what `pause`
/// of the question throws is thrown.
ReadBoard ReadBoardOf(const BoardFiles& files, BomAsked asked, const PartTable& parts);
