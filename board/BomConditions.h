#pragma once

/// Which conditions each part of a bill works under: the bill joined with the conditions of its references
/// and nets.

#include "board/BomTable.h"

#include <cstddef>
#include <string>
#include <vector>

/// References of one row that work under the same conditions.
struct BomItem
{
    /// Of the bill: its index among the rows, and its line.
    std::size_t Row = 0;
    std::size_t Line = 0;
    std::vector<std::string> References;
    /// References of the whole row.
    std::size_t ReferencesOfRow = 0;
    BomCells Cells;

    /// The text of a cell; empty where there is none.
    const std::string& TextOf(BomField field) const;
    bool IsFitted() const;
    /// How many parts it is: as many as there are references; where there are none, the quantity.
    std::size_t Parts() const;
};

/// A note with the file that it is about.
struct BomRemark
{
    BomNote Note;
    bool IsOfConditions = false;
    /// About an option, or the whole board, rather than a file.
    bool IsOfOptions = false;

    bool operator==(const BomRemark&) const = default;
};

struct JoinedBom
{
    /// In the order of the bill.
    std::vector<BomItem> Items;
    /// What was joined; it must outlive the answer.
    const BomTable* Bill = nullptr;
    /// Conditions of what the bill has not.
    std::vector<BomRemark> Warnings;
    std::vector<BomRemark> Faults;
};

/// Joins a bill with its conditions, and splits rows whose references differ. A cell of the bill counts
/// before the row of the reference, before the row of the net, before the options, before the "# name: value"
/// lines of the conditions, before those of the bill. A reference in two rows is a fault, and so is a net
/// with two biases or two values of its own.
JoinedBom JoinBom(const BomTable& bill, const BomTable& conditions, const BomCells& options);
