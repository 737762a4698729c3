#pragma once

/// Boards of tests: bills of materials with all that they refer to, judged.

#include "board/BomVerdict.h"

#include <string>

/// The parts of the sample range.
const PartTable& Range();

/// Throws: there is no waveform.
WaveformTable NoWaveform(const std::string& name, bool isOfConditions);

/// The bytes of a file of tests/board/boards.
std::string BoardFile(const std::string& name);

/// A board with what it refers to.
struct Board
{
    explicit Board(const std::string& billText, const std::string& conditionText = "",
                   const BomSettings& settings = {});

    const JudgedItem& Item(std::size_t index = 0) const { return Judged.Items.at(index); }

    BomTable Bill;
    JoinedBom Joined;
    JudgedBom Judged;
};
