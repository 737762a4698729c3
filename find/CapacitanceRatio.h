#pragma once

/// The capacitance of one part over that of another, anywhere in ranges of bias and temperature.
///
/// Between two parts of the polynomial model the ratio is a product of a ratio over the bias and one over the
/// temperature, each of which turns where a polynomial is zero. With a part of the peaked model it is looked
/// for on nodes, the peaks of either part among them, and from the best of these.

#include "calc/Box.h"
#include "partdata/PartRecord.h"

/// The least and the most ratio and where they occur.
struct RatioExtremes
{
    Extreme Least;
    Extreme Most;
};

/// The ratio of a part's capacitance to that of the part it may stand for, over a box. Both have a model; the
/// capacitance of the latter is above 0 throughout. Parts must outlive it. Throws RunTimeError 5, 6 or 11 for
/// a calculation that faults.
class CapacitanceRatio
{
public:
    CapacitanceRatio(const PartRecord& part, const PartRecord& original, const ConditionBox& box);

    /// The least at the corners and the peaks between them, which is no less than the least of all.
    double LeastAtFirst() const;
    RatioExtremes Extremes() const;

private:
    double At(double biasVolts, double celsius) const;
    void Try(RatioExtremes& extremes, const Place& place) const;
    void TryPeaks(RatioExtremes& extremes, double volts) const;
    RatioExtremes OfProducts() const;
    RatioExtremes OfPeaks() const;
    void Refine(RatioExtremes& extremes) const;

    const PartRecord& part;
    const PartRecord& original;
    ConditionBox box;
};
