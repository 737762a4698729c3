#pragma once

/// The lines of a fit's report: what was measured, and what each law makes of it.

#include "ownparts/FittedPart.h"
#include "ownparts/Likeness.h"

/// How a fit came about.
struct FitStory
{
    /// The part that could lend, and what it lent; empty without one.
    std::string Like;
    Borrowed Lent;
    /// Rises that were too small to be used.
    std::size_t SmallRises = 0;
    std::size_t Degree = 0;
    double LeftOut = 0;
    bool PeakIsTold = false;
    bool PeakIsLent = false;
    bool LawIsLent = false;
    bool AmbientIsLent = false;
    bool VoltageIsMeasured = false;
    CurrentTerms Terms;
    CurrentFit Current;
    /// What the rules of part files warn of.
    std::vector<std::string> Findings;
};

std::vector<FitGroup> GroupsOf(const FittedPart& fitted, const FitStory& story);
