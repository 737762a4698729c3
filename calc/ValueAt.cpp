#include "calc/ValueAt.h"

#include "calc/ChartKinds.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace
{
/// The law of one line.
class LineLaw
{
public:
    LineLaw(const PartRecord& part, const ChartRecord& line, CodeView view)
        : sweep(SweepOf(line.ChartType, line.XAxisName))
        , input{.Part = part,
                .Line = line,
                .X = QuantityNamed(line.XAxisName),
                .Y = QuantityNamed(line.YAxisName),
                .View = view}
    {
    }

    /// The law itself; nothing where it has no finite value.
    std::optional<double> At(double x) const
    {
        try
        {
            const auto value = sweep.LawAt(input, x);
            return value && std::isfinite(*value) ? value : std::nullopt;
        }
        catch (const RunTimeError&)
        {
            return std::nullopt;
        }
    }

    /// The law within the line, and its stored values where it has them.
    std::optional<double> OnLine(double x) const
    {
        const auto& stored = input.Line.XData;
        const auto single = static_cast<float>(x);
        const auto value = Reaches(input.Line, x) ? At(x) : std::nullopt;
        const auto found = std::ranges::lower_bound(stored, single);
        const bool isStored = value && found != stored.end() && *found == single;
        return isStored ? input.Line.YData[static_cast<std::size_t>(found - stored.begin())] : value;
    }

private:
    const ChartSweep& sweep;
    CurveInput input;
};

/// How far a line lies above the level that is looked for; endlessly far below where it has no value.
struct Sample
{
    double X;
    double Above;

    bool IsGap() const { return std::isinf(Above); }
};

bool AreOpposite(const Sample& a, const Sample& b)
{
    return (a.Above < 0 && b.Above > 0) || (a.Above > 0 && b.Above < 0);
}

/// Looks for one level of a line.
class Level
{
public:
    Level(const LineLaw& lineLaw, float wanted)
        : law(lineLaw)
        , y(wanted)
    {
    }

    std::vector<float> CrossingsWithin(const CurveValues& storedX) const
    {
        const auto samples = Scan(storedX);
        std::vector<float> crossings;
        for (std::size_t i = 0; i < samples.size(); ++i)
        {
            if (samples[i].Above == 0)
            {
                i = AddStretch(crossings, samples, i);
            }
            if (i + 1 < samples.size() && AreOpposite(samples[i], samples[i + 1]))
            {
                AddRoot(crossings, samples[i], samples[i + 1]);
            }
        }
        return crossings;
    }

private:
    /// Samples to each interval of stored points, so fine that the law turns at most once near each.
    static constexpr int samplesAnInterval = 8;

    /// As singles, which is what levels and stored values are: not every last digit is a crossing.
    Sample SampleAt(double x) const
    {
        const auto value = law.OnLine(x);
        return {x, value ? double{static_cast<float>(*value)} - y : -INFINITY};
    }

    double DistanceAt(double x) const { return std::abs(law.At(x).value_or(INFINITY) - y); }

    /// Samples along the line, and one more wherever it turns around behind the level between two of them.
    std::vector<Sample> Scan(const CurveValues& storedX) const
    {
        std::vector<Sample> even;
        const auto add = [&](double x) { even.push_back(SampleAt(x)); };
        for (std::size_t i = 0; i + 1 < storedX.size(); ++i)
        {
            for (int k = 0; k < samplesAnInterval; ++k)
            {
                add(std::lerp(double{storedX[i]}, double{storedX[i + 1]}, double(k) / samplesAnInterval));
            }
        }
        add(storedX.back());
        return WithTurns(even);
    }

    std::vector<Sample> WithTurns(const std::vector<Sample>& even) const
    {
        std::vector<Sample> samples;
        for (std::size_t i = 0; i < even.size(); ++i)
        {
            const auto turn =
                i > 0 && i + 1 < even.size() ? Turn(even[i - 1], even[i], even[i + 1]) : std::nullopt;
            if (turn && turn->X < even[i].X)
            {
                samples.push_back(*turn);
            }
            samples.push_back(even[i]);
            if (turn && turn->X > even[i].X)
            {
                samples.push_back(*turn);
            }
        }
        return samples;
    }

    /// The place between three samples where the line comes nearest to the level, when it reaches it there.
    std::optional<Sample> Turn(const Sample& before, const Sample& nearest, const Sample& after) const
    {
        const double distance = std::abs(nearest.Above);
        const bool turns = distance > 0 && distance < std::abs(before.Above) &&
                           distance < std::abs(after.Above) && !AreOpposite(before, nearest) &&
                           !AreOpposite(nearest, after);
        const auto found = turns ? std::optional(SampleAt(NearestWithin(before.X, after.X))) : std::nullopt;
        return found && (found->Above == 0 || AreOpposite(*found, nearest)) ? found : std::nullopt;
    }

    /// Golden section. It ends at the first place behind the level, since that is all that is asked.
    double NearestWithin(double from, double to) const
    {
        const double golden = (std::sqrt(5.0) - 1) / 2;
        const bool isAbove = law.At(from).value_or(y) > y;
        for (int step = 0; step < 80; ++step)
        {
            const double left = to - golden * (to - from);
            const double right = from + golden * (to - from);
            for (const double probe : {left, right})
            {
                if ((law.At(probe).value_or(y) > y) != isAbove)
                {
                    return probe;
                }
            }
            const bool isLeft = DistanceAt(left) < DistanceAt(right);
            (isLeft ? to : from) = isLeft ? right : left;
        }
        return std::midpoint(from, to);
    }

    /// Adds the ends of the samples at the level that begin at `first`, and tells the last of them.
    static std::size_t AddStretch(std::vector<float>& crossings, const std::vector<Sample>& samples,
                                  std::size_t first)
    {
        std::size_t last = first;
        while (last + 1 < samples.size() && samples[last + 1].Above == 0)
        {
            ++last;
        }
        crossings.push_back(static_cast<float>(samples[first].X));
        if (last > first)
        {
            crossings.push_back(static_cast<float>(samples[last].X));
        }
        return last;
    }

    /// Bisection on the law down to neighbouring doubles. Where the line breaks off between the samples, it
    /// need not reach the level before.
    void AddRoot(std::vector<float>& crossings, const Sample& from, const Sample& to) const
    {
        double low = from.X;
        double high = to.X;
        double middle = std::midpoint(low, high);
        while (low < middle && middle < high)
        {
            const bool asAtFrom = (law.At(middle).value_or(y) > y) == (from.Above > 0);
            (asAtFrom ? low : high) = middle;
            middle = std::midpoint(low, high);
        }
        const bool mayBreakOff = from.IsGap() || to.IsGap();
        if (!mayBreakOff || std::min(DistanceAt(low), DistanceAt(high)) <= RoundingShare * std::abs(y))
        {
            crossings.push_back(static_cast<float>(high));
        }
    }

    /// What rounding may leave between neighbouring values of a law.
    static constexpr double RoundingShare = 1e-6;

    const LineLaw& law;
    double y;
};
} // namespace

bool Reaches(const ChartRecord& line, double x)
{
    const auto single = static_cast<float>(x);
    return single >= line.XData.front() && single <= line.XData.back();
}

std::optional<double> ValueAt(const PartRecord& part, const ChartRecord& line, double x, CodeView view)
{
    return LineLaw(part, line, view).OnLine(x);
}

std::vector<float> CrossingsOf(const PartRecord& part, const ChartRecord& line, float y, CodeView view)
{
    const LineLaw law(part, line, view);
    return Level(law, y).CrossingsWithin(line.XData);
}
