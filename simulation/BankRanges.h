#pragma once

/// A bank anywhere in ranges of bias, ambient temperature and frequency: the worst of each value, and where
/// it occurs.
///
/// Where one piece is at its hottest another may be cool, and the least capacitance lies elsewhere again.
/// What is looked for is tried on nodes and, unless a corner of the ranges is the worst, from the best of
/// these. Heating is looked for from 20 °C up.

#include "simulation/Bank.h"

#include <functional>
#include <vector>

/// The question at one place of its ranges; frequencies that are no ranges stay.
BankQuestion QuestionAt(const BankQuestion& question, const Place& place);

/// A question, which must outlive it, with all that is tried in its ranges. All that it tells throws
/// RunTimeError 5, 6 or 11 for a calculation that faults.
class BankRanges
{
public:
    /// What is told of the bank at a place.
    using Told = std::function<double(const BankAnswer& bank)>;

    explicit BankRanges(const BankQuestion& question);

    /// The least of what is told, at the lowest of several places.
    Extreme Least(const Told& told) const;
    /// The largest of what is told.
    Extreme Most(const Told& told) const;
    /// The least sum of all capacitances at the lower ends of their tolerances, over the whole ambient range.
    Extreme LeastCapacitance() const;

private:
    struct Node
    {
        Place At;
        BankAnswer Bank;
    };

    bool IsCorner(const Place& place) const;

    const BankQuestion& question;
    ConditionRange ambientC;
    ConditionRange kilohertz;
    std::vector<Node> nodes;
};

/// The bank of a question that the rules let pass; without ranges it is `BankAt`, whose values occur at the
/// point. Throws RunTimeError 5, 6 or 11 for a calculation that faults.
BankAnswer BankOf(const BankQuestion& question);
