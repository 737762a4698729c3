#include "calc/CornerSum.h"

#include "calc/Capacitance.h"
#include "calc/CornerCapacitance.h"
#include "calc/PeakedEdge.h"
#include "calc/SearchBox.h"
#include "calc/TurningPoints.h"
#include "partdata/Characteristic.h"

#include <limits>

namespace
{
constexpr int nodesASide = 17;

/// Parts in parallel.
class Sum
{
public:
    Sum(const std::vector<WeighedPart>& ofParts, const ConditionBox& asked, CodeView shown)
        : parts(ofParts)
        , box(asked)
        , view(shown)
    {
    }

    double At(double biasVolts, double ambientC) const
    {
        double sum = 0;
        for (const WeighedPart& weighed : parts)
        {
            const auto point = CapacitancePointAt(*weighed.Part, biasVolts, ambientC, view);
            sum += weighed.Weight * point.value_or(CapacitancePoint{}).PicoFarads;
        }
        return sum;
    }

    Extreme LeastNode() const
    {
        Extreme best{.Value = std::numeric_limits<double>::infinity(), .At = {}};
        for (const double volts : EvenNodes(box.BiasVolts.Low, box.BiasVolts.High, nodesASide))
        {
            for (const double celsius : TemperaturesAt(volts))
            {
                const Extreme tried{At(volts, celsius), {.BiasVolts = volts, .AmbientC = celsius}};
                best = tried.IsBeyond(best, -1) ? tried : best;
            }
        }
        return best;
    }

private:
    /// With those of the peaks at a bias.
    std::vector<double> TemperaturesAt(double biasVolts) const
    {
        auto nodes = EvenNodes(box.AmbientC.Low, box.AmbientC.High, nodesASide);
        for (const WeighedPart& weighed : parts)
        {
            if (CapacitanceModelOf(*weighed.Part) == CapacitanceModel::Peaked)
            {
                const double peak =
                    ValueOf(PolynomialOf<3>(*weighed.Part, Values::PeakTemperature), biasVolts);
                if (peak > box.AmbientC.Low && peak < box.AmbientC.High)
                {
                    nodes.push_back(peak);
                }
            }
        }
        return nodes;
    }

    const std::vector<WeighedPart>& parts;
    const ConditionBox& box;
    CodeView view;
};

SearchSide SideOf(const ConditionRange& range)
{
    return {.From = range.Low, .To = range.High, .Step = (range.High - range.Low) / (nodesASide - 1)};
}
} // namespace

Extreme LeastSumIn(const std::vector<WeighedPart>& parts, const ConditionBox& box, CodeView view)
{
    if (parts.size() == 1)
    {
        const auto extremes = CapacitanceExtremesIn(*parts.front().Part, box, view);
        const auto least = extremes ? extremes->Least : CapacitanceAtPlace{};
        return {.Value = parts.front().Weight * least.Point.PicoFarads, .At = least.At};
    }
    const Sum sum(parts, box, view);
    const Extreme node = sum.LeastNode();
    const auto found = RefinedIn<2>([&](const auto& at) { return sum.At(at[0], at[1]); },
                                    {.At = {node.At.BiasVolts, node.At.AmbientC}, .Value = node.Value},
                                    {SideOf(box.BiasVolts), SideOf(box.AmbientC)});
    return {.Value = found.Value, .At = {.BiasVolts = found.At[0], .AmbientC = found.At[1]}};
}
