#include "samplerange/Fitting.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace
{

using Row = std::vector<double>;

/// Solves a square system by elimination with row exchange; the last column is the right-hand side.
Row Solve(std::vector<Row> rows)
{
    const auto magnitude = [](double v) { return v < 0 ? -v : v; };
    const std::size_t n = rows.size();
    for (std::size_t k = 0; k < n; ++k)
    {
        const auto pivot =
            std::max_element(rows.begin() + static_cast<std::ptrdiff_t>(k), rows.end(),
                             [&](const Row& a, const Row& b) { return magnitude(a[k]) < magnitude(b[k]); });
        std::swap(rows[k], *pivot);
        for (std::size_t i = k + 1; i < n; ++i)
        {
            const double factor = rows[i][k] / rows[k][k];
            for (std::size_t j = k; j <= n; ++j)
            {
                rows[i][j] -= factor * rows[k][j];
            }
        }
    }
    Row solution(n);
    for (std::size_t k = n; k-- > 0;)
    {
        double value = rows[k][n];
        for (std::size_t j = k + 1; j < n; ++j)
        {
            value -= rows[k][j] * solution[j];
        }
        solution[k] = value / rows[k][k];
    }
    return solution;
}

/// Weighted least squares: `basis[i]` holds the basis functions at sample i, `target[i]` the value there.
Row LeastSquares(const std::vector<Row>& basis, const Row& target, const Row& weights)
{
    const std::size_t n = basis.front().size();
    std::vector<Row> normal(n, Row(n + 1, 0.0));
    for (std::size_t i = 0; i < basis.size(); ++i)
    {
        for (std::size_t j = 0; j < n; ++j)
        {
            for (std::size_t k = 0; k < n; ++k)
            {
                normal[j][k] += weights[i] * basis[i][j] * basis[i][k];
            }
            normal[j][n] += weights[i] * basis[i][j] * target[i];
        }
    }
    return Solve(std::move(normal));
}

double Dot(const Row& a, const Row& b)
{
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        sum += a[i] * b[i];
    }
    return sum;
}

constexpr std::size_t Slopes = 6;
constexpr std::array<double, Slopes> Binomial5 = {1, 5, 10, 10, 5, 1};

/// Bernstein polynomial k of degree 5, integrated from 0, as a polynomial through the origin. Its slope is
/// nowhere negative on 0 to 1, so any sum with weights that are not negative never falls.
OriginPolynomial RisingPiece(std::size_t k)
{
    OriginPolynomial piece{};
    double choose = 1;
    for (std::size_t j = k; j < Slopes; ++j)
    {
        const double sign = (j - k) % 2 == 0 ? 1 : -1;
        piece[j] = sign * Binomial5[k] * choose / static_cast<double>(j + 1);
        choose = choose * static_cast<double>(Slopes - 1 - j) / static_cast<double>(j - k + 1);
    }
    return piece;
}

double Value(const OriginPolynomial& polynomial, double x)
{
    double value = 0;
    for (std::size_t j = polynomial.size(); j-- > 0;)
    {
        value = (value + polynomial[j]) * x;
    }
    return value;
}

/// The weights, none negative, that bring the basis closest to the target: the best of all choices of
/// weights that are allowed to differ from 0.
Row NonNegativeLeastSquares(const std::vector<Row>& basis, const Row& target)
{
    const std::size_t n = basis.front().size();
    const Row even(basis.size(), 1.0);
    Row best(n, 0.0);
    double bestError = Dot(target, target);
    for (std::size_t choice = 1; choice < (std::size_t{1} << n); ++choice)
    {
        std::vector<Row> chosen(basis.size());
        for (std::size_t i = 0; i < basis.size(); ++i)
        {
            for (std::size_t k = 0; k < n; ++k)
            {
                if ((choice >> k) & 1U)
                {
                    chosen[i].push_back(basis[i][k]);
                }
            }
        }
        const Row weights = LeastSquares(chosen, target, even);
        if (std::ranges::any_of(weights, [](double w) { return w < 0; }))
        {
            continue;
        }
        double error = 0;
        for (std::size_t i = 0; i < basis.size(); ++i)
        {
            const double miss = Dot(chosen[i], weights) - target[i];
            error += miss * miss;
        }
        if (error < bestError)
        {
            bestError = error;
            auto next = weights.begin();
            for (std::size_t k = 0; k < n; ++k)
            {
                best[k] = ((choice >> k) & 1U) ? *next++ : 0.0;
            }
        }
    }
    return best;
}

} // namespace

OriginPolynomial FitThroughOrigin(std::span<const Sample> samples)
{
    std::vector<Row> basis;
    Row target;
    for (const Sample& sample : samples)
    {
        Row powers;
        double power = 1;
        for (std::size_t j = 0; j < Slopes; ++j)
        {
            power *= sample.X;
            powers.push_back(power);
        }
        basis.push_back(std::move(powers));
        target.push_back(sample.Y);
    }
    const Row fitted = LeastSquares(basis, target, Row(basis.size(), 1.0));
    OriginPolynomial polynomial{};
    std::ranges::copy(fitted, polynomial.begin());
    return polynomial;
}

OriginPolynomial FitRising(std::span<const Sample> samples, double leastSlope)
{
    std::array<OriginPolynomial, Slopes> pieces;
    for (std::size_t k = 0; k < Slopes; ++k)
    {
        pieces[k] = RisingPiece(k);
    }
    // All pieces but the one that starts at once carry the least slope; the fit adds the rest.
    std::vector<Row> basis;
    Row target;
    for (const Sample& sample : samples)
    {
        Row values;
        double least = 0;
        for (std::size_t k = 0; k < Slopes; ++k)
        {
            values.push_back(Value(pieces[k], sample.X));
            least += k > 0 ? leastSlope * values.back() : 0;
        }
        basis.push_back(std::move(values));
        target.push_back(sample.Y - least);
    }
    const Row weights = NonNegativeLeastSquares(basis, target);
    OriginPolynomial polynomial{};
    for (std::size_t k = 0; k < Slopes; ++k)
    {
        const double weight = weights[k] + (k > 0 ? leastSlope : 0);
        for (std::size_t j = 0; j < Slopes; ++j)
        {
            polynomial[j] += weight * pieces[k][j];
        }
    }
    return polynomial;
}

std::vector<double> FitSmallestDeviation(std::span<const Sample> samples, std::size_t coefficients)
{
    std::vector<Row> basis;
    Row target;
    for (const Sample& sample : samples)
    {
        Row powers;
        double power = 1;
        for (std::size_t j = 0; j < coefficients; ++j)
        {
            powers.push_back(power);
            power *= sample.X;
        }
        basis.push_back(std::move(powers));
        target.push_back(sample.Y);
    }
    // Least squares again and again, each sample weighing more the further it was off.
    Row weights(basis.size(), 1.0 / static_cast<double>(basis.size()));
    Row best;
    double bestDeviation = std::numeric_limits<double>::infinity();
    for (int round = 0; round < 60; ++round)
    {
        Row fitted = LeastSquares(basis, target, weights);
        double deviation = 0;
        double sum = 0;
        for (std::size_t i = 0; i < basis.size(); ++i)
        {
            const double miss = Dot(basis[i], fitted) - target[i];
            const double size = miss < 0 ? -miss : miss;
            deviation = std::max(deviation, size);
            weights[i] *= size + 1e-9;
            sum += weights[i];
        }
        for (double& weight : weights)
        {
            weight /= sum;
        }
        if (deviation < bestDeviation)
        {
            bestDeviation = deviation;
            best = std::move(fitted);
        }
    }
    return best;
}
