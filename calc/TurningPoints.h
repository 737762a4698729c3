#pragma once

/// Where a polynomial passes zero on a span; of its derivative, where it turns.
///
/// A polynomial on a span is told by its Bernstein coefficients. It passes zero inside at most as often as
/// their signs change, and lies between the smallest and the largest of them; halving the span brings both
/// down to the truth. So no zero at which the sign changes is missed.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

/// The coefficients of a polynomial, the constant one first.
template <std::size_t Count> using Polynomial = std::array<double, Count>;

template <std::size_t Count> double ValueOf(const Polynomial<Count>& polynomial, double x)
{
    double value = 0;
    for (std::size_t i = Count; i-- > 0;)
    {
        value = value * x + polynomial[i];
    }
    return value;
}

template <std::size_t Count> Polynomial<Count - 1> Derivative(const Polynomial<Count>& polynomial)
{
    Polynomial<Count - 1> derivative;
    for (std::size_t i = 1; i < Count; ++i)
    {
        derivative[i - 1] = static_cast<double>(i) * polynomial[i];
    }
    return derivative;
}

/// The product of two polynomials.
template <std::size_t A, std::size_t B>
Polynomial<A + B - 1> Product(const Polynomial<A>& a, const Polynomial<B>& b)
{
    Polynomial<A + B - 1> product{};
    for (std::size_t i = 0; i < A; ++i)
    {
        for (std::size_t j = 0; j < B; ++j)
        {
            product[i + j] += a[i] * b[j];
        }
    }
    return product;
}

/// Between two numbers, both included.
struct Enclosure
{
    double Low;
    double High;

    bool HasZero() const { return !(Low > 0 || High < 0); }
};

/// A polynomial on a span.
template <std::size_t Count> struct BernsteinForm
{
    double From;
    double To;
    std::array<double, Count> Coefficients;

    /// What all values on the span lie between.
    Enclosure Values() const
    {
        const auto [low, high] = std::minmax_element(Coefficients.begin(), Coefficients.end());
        return {*low, *high};
    }

    /// How often the signs of the coefficients change.
    int SignChanges() const
    {
        int changes = 0;
        double last = 0;
        for (const double coefficient : Coefficients)
        {
            changes += coefficient * last < 0 ? 1 : 0;
            last = coefficient != 0 ? std::copysign(1.0, coefficient) : last;
        }
        return changes;
    }
};

/// n over k for each k of a row.
template <std::size_t Count> constexpr std::array<double, Count> BinomialRow(std::size_t n)
{
    std::array<double, Count> row{};
    row[0] = 1;
    for (std::size_t k = 1; k <= n; ++k)
    {
        row[k] = row[k - 1] * static_cast<double>(n - k + 1) / static_cast<double>(k);
    }
    return row;
}

/// The share of each power of 0..1 in each Bernstein coefficient: (i over j) / (degree over j).
template <std::size_t Count> constexpr std::array<std::array<double, Count>, Count> BernsteinShares()
{
    std::array<std::array<double, Count>, Count> shares{};
    const auto all = BinomialRow<Count>(Count - 1);
    for (std::size_t i = 0; i < Count; ++i)
    {
        const auto row = BinomialRow<Count>(i);
        for (std::size_t j = 0; j <= i; ++j)
        {
            shares[i][j] = row[j] / all[j];
        }
    }
    return shares;
}

/// The same polynomial counted from `origin` in units of `unit`.
template <std::size_t Count>
Polynomial<Count> Rebased(Polynomial<Count> polynomial, double origin, double unit)
{
    for (std::size_t first = 0; origin != 0 && first + 1 < Count; ++first)
    {
        for (std::size_t i = Count - 1; i-- > first;)
        {
            polynomial[i] += origin * polynomial[i + 1];
        }
    }
    double power = 1;
    for (double& coefficient : polynomial)
    {
        coefficient *= power;
        power *= unit;
    }
    return polynomial;
}

template <std::size_t Count>
BernsteinForm<Count> OnSpan(const Polynomial<Count>& polynomial, double from, double to)
{
    static constexpr auto shares = BernsteinShares<Count>();
    const auto unit = Rebased(polynomial, from, to - from);
    BernsteinForm<Count> form{.From = from, .To = to, .Coefficients = {}};
    for (std::size_t i = 0; i < Count; ++i)
    {
        for (std::size_t j = 0; j <= i; ++j)
        {
            form.Coefficients[i] += shares[i][j] * unit[j];
        }
    }
    return form;
}

/// Both halves of a span.
template <std::size_t Count> std::array<BernsteinForm<Count>, 2> Halves(const BernsteinForm<Count>& form)
{
    const double middle = std::midpoint(form.From, form.To);
    BernsteinForm<Count> left{.From = form.From, .To = middle, .Coefficients = {}};
    BernsteinForm<Count> right{.From = middle, .To = form.To, .Coefficients = form.Coefficients};
    auto& row = right.Coefficients;
    for (std::size_t i = 0; i < Count; ++i)
    {
        left.Coefficients[i] = row[0];
        for (std::size_t j = 0; j + i + 1 < Count; ++j)
        {
            row[j] = (row[j] + row[j + 1]) / 2;
        }
    }
    return {left, right};
}

/// Where a function that is `atFrom` and `atTo`, of two signs, at the ends passes zero, to a 1e-8th of the
/// span: regula falsi that halves the value of an end that stays twice, and every third time the span.
template <class Function>
double ZeroBetween(const Function& function, double from, double to, double atFrom, double atTo)
{
    const double enough = 1e-8 * (to - from);
    double low = from;
    double high = to;
    bool wasLow = false;
    for (int step = 1; high - low > enough && step < 200; ++step)
    {
        const double cut = low - atFrom * (high - low) / (atTo - atFrom);
        // Away from the ends, so that both of them close in.
        const double x =
            step % 3 == 0 ? std::midpoint(low, high) : std::clamp(cut, low + enough / 4, high - enough / 4);
        const double value = function(x);
        if (value == 0)
        {
            return x;
        }
        const bool isLow = (value < 0) == (atFrom < 0);
        (isLow ? low : high) = x;
        (isLow ? atFrom : atTo) = value;
        (isLow ? atTo : atFrom) *= step > 1 && isLow == wasLow ? 0.5 : 1;
        wasLow = isLow;
    }
    return std::midpoint(low, high);
}

/// Halvings of a span, after which its middle is near enough.
inline constexpr int MostHalvings = 30;

/// Hands each zero inside a part of the polynomial's span to `visit`.
template <std::size_t Count, class Visit>
void VisitZerosOf(const BernsteinForm<Count>& form, const Polynomial<Count>& polynomial, int depth,
                  const Visit& visit)
{
    const int changes = form.SignChanges();
    if (changes == 0)
    {
        return;
    }
    const double first = form.Coefficients.front();
    const double last = form.Coefficients.back();
    // A zero at an end hides which sign the zero inside begins with.
    if (changes == 1 && first * last < 0)
    {
        visit(ZeroBetween([&](double x) { return ValueOf(polynomial, x); }, form.From, form.To, first, last));
        return;
    }
    const double middle = std::midpoint(form.From, form.To);
    const auto halves = Halves(form);
    if (depth == MostHalvings || halves[0].Coefficients.back() == 0)
    {
        visit(middle);
    }
    if (depth < MostHalvings)
    {
        VisitZerosOf(halves[0], polynomial, depth + 1, visit);
        VisitZerosOf(halves[1], polynomial, depth + 1, visit);
    }
}

/// Hands every place inside the span at which the polynomial changes its sign to `visit`, and perhaps some at
/// which it only touches zero; upwards, in double precision. A span of no width has none.
template <std::size_t Count, class Visit>
void VisitZeros(const Polynomial<Count>& polynomial, double from, double to, const Visit& visit)
{
    if (from < to)
    {
        VisitZerosOf(OnSpan(polynomial, from, to), polynomial, 0, visit);
    }
}
