#include "fit/LeastSquares.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace
{
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

/// The sums that weighted least squares solves for, a row for each basis function.
std::vector<Row> NormalRows(const std::vector<Row>& basis, const Row& target, const Row& weights)
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
    return normal;
}

/// The rows and columns of a choice of basis functions, and the right-hand side.
std::vector<Row> ChosenRows(const std::vector<Row>& normal, const std::vector<std::size_t>& chosen)
{
    std::vector<Row> rows;
    for (const auto j : chosen)
    {
        Row& row = rows.emplace_back();
        for (const auto k : chosen)
        {
            row.push_back(normal[j][k]);
        }
        row.push_back(normal[j].back());
    }
    return rows;
}

std::vector<std::size_t> BitsOf(std::size_t choice)
{
    std::vector<std::size_t> bits;
    for (std::size_t k = 0; (choice >> k) != 0; ++k)
    {
        if ((choice >> k) & 1U)
        {
            bits.push_back(k);
        }
    }
    return bits;
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

/// Sum of the squared misses of some basis functions; stops beyond `most`, which says enough.
double ErrorOf(const std::vector<Row>& basis, const Row& target, const std::vector<std::size_t>& chosen,
               const Row& weights, double most)
{
    double error = 0;
    for (std::size_t i = 0; i < basis.size() && error < most; ++i)
    {
        double value = 0;
        for (std::size_t k = 0; k < chosen.size(); ++k)
        {
            value += basis[i][chosen[k]] * weights[k];
        }
        const double miss = value - target[i];
        error += miss * miss;
    }
    return error;
}

constexpr std::size_t Slopes = RisingPieces;
constexpr std::array<double, Slopes> Binomial5 = {1, 5, 10, 10, 5, 1};

} // namespace

Row LeastSquares(const std::vector<Row>& basis, const Row& target, const Row& weights)
{
    return Solve(NormalRows(basis, target, weights));
}

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

double ValueOf(const OriginPolynomial& polynomial, double x)
{
    double value = 0;
    for (std::size_t j = polynomial.size(); j-- > 0;)
    {
        value = (value + polynomial[j]) * x;
    }
    return value;
}

Row NonNegativeLeastSquares(const std::vector<Row>& basis, const Row& target)
{
    const std::size_t n = basis.front().size();
    const auto normal = NormalRows(basis, target, Row(basis.size(), 1.0));
    Row best(n, 0.0);
    double bestError = Dot(target, target);
    for (std::size_t choice = 1; choice < (std::size_t{1} << n); ++choice)
    {
        const auto chosen = BitsOf(choice);
        const Row weights = Solve(ChosenRows(normal, chosen));
        if (std::ranges::any_of(weights, [](double w) { return w < 0; }))
        {
            continue;
        }
        const double error = ErrorOf(basis, target, chosen, weights, bestError);
        if (error < bestError)
        {
            bestError = error;
            std::ranges::fill(best, 0.0);
            for (std::size_t k = 0; k < chosen.size(); ++k)
            {
                best[chosen[k]] = weights[k];
            }
        }
    }
    return best;
}

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
            values.push_back(ValueOf(pieces[k], sample.X));
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
