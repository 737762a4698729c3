#include "requests/StressShares.h"

#include "calc/Bounds.h"

#include <cmath>
#include <map>
#include <utility>

namespace
{
constexpr double groupsPerDecade = 20;

const StressedPart* OnlyHeatedPart(const StressReport& report)
{
    const bool isHeated = report.Parts.size() == 1 && report.Parts.front().Stress.LawRise.value_or(0) > 0;
    return isHeated ? &report.Parts.front() : nullptr;
}

DataReach ReachOf(double hertz)
{
    if (IsInside(hertz))
    {
        return DataReach::Inside;
    }
    return hertz < LowestFrequencyHz ? DataReach::Below : DataReach::Above;
}

/// What a line weighs: its rise in the whole current, or its square.
class Weights
{
public:
    explicit Weights(const StressedPart* stressed)
    {
        if (stressed != nullptr)
        {
            const auto& at = stressed->Stress.At;
            model = PowerModelOf(*stressed->Part, at.BiasVolts, at.AmbientC, at.HeatResistance);
        }
    }

    double Of(const SpectralLine& line) const
    {
        LoadMoments moments;
        moments.Add(line);
        return model ? RiseOf(moments, *model) : line.Square;
    }

private:
    std::optional<PowerModel> model;
};
} // namespace

double StressShares::SumOf(DataReach reach) const
{
    double sum = reach == DataReach::Above ? Unresolved : 0;
    for (const auto& line : Lines)
    {
        sum += line.Reach == reach ? line.Share : 0;
    }
    return sum;
}

StressShares StressSharesOf(const StressReport& report)
{
    StressShares shares{.Of = OnlyHeatedPart(report)};
    const Weights weights(shares.Of);
    const auto& spectrum = report.Load.Lines;
    shares.Unresolved = weights.Of({HighestFrequencyHz, spectrum.Unresolved});
    double whole = shares.Unresolved;
    struct Group
    {
        double Weight = 0;
        double Logarithms = 0;
    };
    std::map<std::pair<DataReach, double>, Group> groups;
    for (const auto& line : spectrum.Lines)
    {
        if (const double weight = weights.Of(line); weight > 0)
        {
            const double decades = std::log10(line.Hertz);
            auto& group = groups[{ReachOf(line.Hertz), std::floor(decades * groupsPerDecade)}];
            group.Weight += weight;
            group.Logarithms += weight * decades;
            whole += weight;
        }
    }
    for (const auto& [key, group] : groups)
    {
        shares.Lines.push_back(
            {std::pow(10, group.Logarithms / group.Weight), group.Weight / whole, key.first});
    }
    shares.Unresolved = whole > 0 ? shares.Unresolved / whole : 0;
    return shares;
}
