#pragma once

/// What is asked of the parts of one item: their conditions, their limits, and the load that they bear.

#include "board/BomConditions.h"
#include "board/BomLoads.h"
#include "find/Wants.h"
#include "partdata/PartTable.h"
#include "simulation/BankQuestion.h"

#include <optional>
#include <string>
#include <vector>

struct BomQuestion
{
    /// With the load where it is a current, or heats as one; its count of parts in parallel stands in
    /// `Wanted`.
    FindQuestion Asked;
    bool HasBias = false;
    /// Of a waveform or converter, for which the load asked for is the sine that heats alike.
    BomLoads::Load Load = {};
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
BomQuestion QuestionOf(const BomItem& item, CodeView view, BomLoads& loads, std::vector<BomRemark>& faults);
