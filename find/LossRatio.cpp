#include "find/LossRatio.h"

#include "calc/Bounds.h"
#include "calc/CheckedMath.h"
#include "calc/PowerModel.h"
#include "calc/SearchBox.h"

#include <algorithm>
#include <limits>

static constexpr int ambientNodes = 9;

static PowerModel ModelOf(const PartRecord& part, double ambientC, const std::optional<float>& resistance)
{
    return CurrentModelOf(part, ambientC, resistance.value_or(part.Data[Value::HeatResistance]));
}

/// The bracket of the current law times the frequency.
static Polynomial<3> TimesFrequency(const PowerModel& model)
{
    return {model.Q1, model.Q2, model.Q3};
}

/// At one temperature: the ratio of two quadratics in f turns at the zeros of another one.
static Extreme MostOverFrequency(const LossPair& pair, double ambientC)
{
    const auto part = ModelOf(pair.Part, ambientC, pair.HeatResistance);
    const auto original = ModelOf(pair.Original, ambientC, pair.HeatResistance);
    Extreme most{.Value = -std::numeric_limits<double>::infinity(), .At = {}};
    const auto tryAt = [&](double hertz)
    {
        const Extreme tried{CheckedQuotient(part.kI(hertz), original.kI(hertz)),
                            {.AmbientC = ambientC, .Hertz = hertz}};
        most = tried.IsBeyond(most, 1) ? tried : most;
    };
    const auto [a, b, c] = TimesFrequency(part);
    const auto [d, e, f] = TimesFrequency(original);
    tryAt(LowestFrequencyHz);
    VisitZeros(Polynomial<3>{b * d - a * e, 2 * (c * d - a * f), c * e - b * f}, LowestFrequencyHz,
               HighestFrequencyHz, tryAt);
    tryAt(HighestFrequencyHz);
    return most;
}

Extreme MostLossRatio(const LossPair& pair, const ConditionRange& ambientC)
{
    Extreme most{.Value = -std::numeric_limits<double>::infinity(), .At = {}};
    const auto tryAt = [&](double celsius)
    {
        const auto tried = MostOverFrequency(pair, celsius);
        most = tried.IsBeyond(most, 1) ? tried : most;
    };
    for (const double celsius : EvenNodes(ambientC.Low, ambientC.High, ambientNodes))
    {
        tryAt(celsius);
    }
    if (!ambientC.IsPoint())
    {
        const double step = (ambientC.High - ambientC.Low) / (ambientNodes - 1);
        tryAt(LeastBetween([&](double celsius) { return -MostOverFrequency(pair, celsius).Value; },
                           std::max<double>(ambientC.Low, most.At.AmbientC - step),
                           std::min<double>(ambientC.High, most.At.AmbientC + step)));
    }
    return most;
}
