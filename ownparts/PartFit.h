#pragma once

/// Turns what was measured on a part into its row of the part table.

#include "ownparts/FittedPart.h"

/// A part that was fitted, or why it was not.
struct PartFit
{
    FittedPart Fitted;
    /// A line each; with any of them there is no part.
    std::vector<std::string> Refusals;
};

/// Fits the laws of a part. Where something was not measured, `like` lends it if it is not null; what is
/// missing then is refused, or warned of if it can be left out. The row is judged by the rules of part files,
/// and an error there refuses it too.
///
/// Values are rounded to singles before the points are compared with them.
PartFit FitPart(MeasuredPart part, const PartRecord* like);
