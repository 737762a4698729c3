#pragma once

/// What is asked of the parts of one item: their conditions, their limits, and the load that they bear.

#include "board/BomConditions.h"
#include "find/Wants.h"
#include "partdata/PartTable.h"
#include "simulation/BankQuestion.h"
#include "stress/CurrentLoad.h"
#include "stress/WaveformTable.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The rows of a waveform that a cell names, as "FILE"; throws what tells why there are none.
using WaveformSource = std::function<WaveformTable(const std::string& name, bool isOfConditions)>;

struct BomQuestion
{
    /// With the load where it is a current, or heats as one; its count of parts in parallel stands in
    /// `Wanted`.
    FindQuestion Asked;
    bool HasBias = false;
    /// A load is asked for that lies outside the frequencies that parts have data of.
    bool IsLoadOutside = false;
    /// How much of the rated voltage may be used, in percent.
    float MostBias = 100;
    /// Of the whole net.
    std::vector<RippleCurrent> NetRipple = {};
    std::optional<float> NetMinCapacitance = {};

    int Parallel() const { return Asked.Wanted.Parallel ? Asked.Wanted.Parallel->Count : 1; }
};

/// Throws RequestError for a text that is no value of the field.
void CheckCell(BomField field, const std::string& text);

/// Reads the cells of an item, and adds a remark to `faults` for each that makes no sense.
BomQuestion QuestionOf(const BomItem& item, CodeView view, const WaveformSource& waveforms,
                       std::vector<BomRemark>& faults);
