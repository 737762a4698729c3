#include "fit/PolynomialFit.h"

#include "fit/Crowds.h"
#include "fit/Steps.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{
constexpr double ReferenceC = 25;
constexpr double SpanC = 100;
constexpr int MostRounds = 30;
constexpr double Settled = 1e-9;
/// A higher degree has to come closer by this factor to temperatures that are left out.
constexpr double WorthADegree = 0.9;
constexpr std::size_t LeastDegree = 2;
constexpr std::size_t MostDegree = 6;

double Position(double celsius)
{
    return (celsius - ReferenceC) / SpanC;
}

double LawAt(const PolynomialFit& fit, double ratedVolts, const MeasuredCapacitance& point)
{
    return fit.Picofarads * (1 + ValueOf(fit.Change, Position(point.Celsius))) *
           (1 - LossAt(fit.Losses, point.Volts / ratedVolts));
}

/// One law that grows closer step by step, over temperature and over bias in turn.
class Rounds
{
public:
    Rounds(std::span<const MeasuredCapacitance> measured, double rated)
        : points(measured)
        , ratedVolts(rated)
    {
    }

    PolynomialFit Of(std::size_t degree) const
    {
        PolynomialFit fit{.Degree = degree};
        for (int round = 0; round < MostRounds; ++round)
        {
            const auto before = fit;
            FitBias(fit);
            if (degree > 0)
            {
                fit.Change = ChangeOf(fit, [](const MeasuredCapacitance&) { return true; });
            }
            if (IsSettled(before, fit))
            {
                break;
            }
        }
        return fit;
    }

    /// Relative error at the inner temperatures, each left out of the change over temperature in turn.
    double LeftOut(const PolynomialFit& fit, std::span<const Step> temperatures) const
    {
        double sum = 0;
        double count = 0;
        for (const auto& step : temperatures.subspan(1, temperatures.size() - 2))
        {
            auto without = fit;
            without.Change = ChangeOf(fit, [&step](const MeasuredCapacitance& point)
                                      { return !step.Holds(point.Celsius); });
            for (const auto& point : points)
            {
                if (step.Holds(point.Celsius))
                {
                    sum +=
                        point.Weight * std::pow(LawAt(without, ratedVolts, point) / point.Picofarads - 1, 2);
                    count += point.Weight;
                }
            }
        }
        return std::sqrt(sum / count);
    }

private:
    /// 1 = (C0 - Σ C0·loss·piece)·(1 + P)/C in C0 and the losses times C0.
    void FitBias(PolynomialFit& fit) const
    {
        std::vector<Row> basis;
        Row target;
        for (const auto& point : points)
        {
            const double root = std::sqrt(point.Weight);
            const double factor =
                root * (1 + ValueOf(fit.Change, Position(point.Celsius))) / point.Picofarads;
            target.push_back(root);
            Row& row = basis.emplace_back(1, factor * scale);
            for (const double piece : RisingPiecesAt(point.Volts / ratedVolts))
            {
                row.push_back(-piece * factor * scale);
            }
        }
        const auto weights = NonNegativeLeastSquares(basis, target);
        fit.Picofarads = weights[0] * scale;
        for (std::size_t k = 0; k < fit.Losses.size(); ++k)
        {
            fit.Losses[k] = weights[0] > 0 ? weights[k + 1] / weights[0] : 0;
        }
    }

    /// P by 1 = m·(1 + P)/C with m of the law without temperature, through the points that count.
    template <class Counts> OriginPolynomial ChangeOf(const PolynomialFit& fit, Counts counts) const
    {
        std::vector<Row> basis;
        Row target;
        Row weights;
        for (const auto& point : points)
        {
            if (!counts(point))
            {
                continue;
            }
            const double still = fit.Picofarads * (1 - LossAt(fit.Losses, point.Volts / ratedVolts));
            double power = still / point.Picofarads;
            target.push_back(1 - power);
            weights.push_back(point.Weight);
            Row& row = basis.emplace_back();
            for (std::size_t j = 0; j < fit.Degree; ++j)
            {
                power *= Position(point.Celsius);
                row.push_back(power);
            }
        }
        OriginPolynomial change{};
        std::ranges::copy(LeastSquares(basis, target, weights), change.begin());
        return change;
    }

    static bool IsSettled(const PolynomialFit& before, const PolynomialFit& after)
    {
        const auto isNear = [](double a, double b) { return std::abs(a - b) <= Settled; };
        return isNear(before.Picofarads / after.Picofarads, 1) &&
               std::ranges::equal(before.Losses, after.Losses, isNear) &&
               std::ranges::equal(before.Change, after.Change, isNear);
    }

    std::span<const MeasuredCapacitance> points;
    double ratedVolts;
    /// Brings the numbers of the fit near 1.
    double scale = points.empty() ? 1 : points.front().Picofarads;
};
} // namespace

PolynomialFit FitPolynomial(std::span<const MeasuredCapacitance> measured, double ratedVolts)
{
    const auto points = Uncrowded(measured, ratedVolts);
    std::vector<double> temperatures;
    for (const auto& point : points)
    {
        temperatures.push_back(point.Celsius);
    }
    const auto steps = StepsOf(std::move(temperatures), TemperatureStepC);
    const Rounds rounds(points, ratedVolts);
    if (steps.size() < LeastDegree + 2)
    {
        return rounds.Of(0);
    }
    auto best = rounds.Of(LeastDegree);
    best.LeftOut = rounds.LeftOut(best, steps);
    for (std::size_t degree = LeastDegree + 1; degree <= std::min(MostDegree, steps.size() - 2); ++degree)
    {
        auto fit = rounds.Of(degree);
        fit.LeftOut = rounds.LeftOut(fit, steps);
        if (fit.LeftOut < WorthADegree * best.LeftOut)
        {
            best = fit;
        }
    }
    return best;
}

void WritePolynomialFit(const PolynomialFit& fit, double ratedVolts, PartValues& data)
{
    constexpr double Percent = 100;
    data[Value::NominalCapacitance] = fit.Picofarads;
    WriteBiasLoss(fit.Losses, ratedVolts, data);
    double scale = 1;
    for (std::size_t j = 0; j < fit.Change.size(); ++j)
    {
        scale *= SpanC;
        data[Values::TemperaturePolynomial.Last - j] = Percent * fit.Change[j] / scale;
    }
}
