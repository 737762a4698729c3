/// Zeros of polynomials on a span.

#include "calc/TurningPoints.h"

#include "calc/SearchBox.h"
#include "tests/Seed.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace
{
template <std::size_t Count>
std::vector<double> ZerosOf(const Polynomial<Count>& polynomial, double from, double to)
{
    std::vector<double> zeros;
    VisitZeros(polynomial, from, to, [&](double zero) { zeros.push_back(zero); });
    return zeros;
}

TEST(TurningPoints, FindsTheZerosOfAPolynomialUpwards)
{
    // (x - 1)(x - 2)(x - 4) = x³ - 7x² + 14x - 8
    const auto zeros = ZerosOf(Polynomial<4>{-8, 14, -7, 1}, 0, 5);
    ASSERT_EQ(zeros.size(), 3U);
    EXPECT_NEAR(zeros[0], 1, 1e-7);
    EXPECT_NEAR(zeros[1], 2, 1e-7);
    EXPECT_NEAR(zeros[2], 4, 1e-7);
}

TEST(TurningPoints, KnowsOnlyZerosInsideTheSpan)
{
    EXPECT_EQ(ZerosOf(Polynomial<4>{-8, 14, -7, 1}, 1.5, 3).size(), 1U);
    EXPECT_TRUE(ZerosOf(Polynomial<4>{-8, 14, -7, 1}, 5, 9).empty());
    EXPECT_TRUE(ZerosOf(Polynomial<4>{-8, 14, -7, 1}, 1, 1).empty());
}

TEST(TurningPoints, FindsAZeroBesideOneAtTheEndOfTheSpan)
{
    // x(x - 3): the zero at 0 hides the sign that the one at 3 starts from.
    const auto zeros = ZerosOf(Polynomial<3>{0, -3, 1}, 0, 4);
    ASSERT_EQ(zeros.size(), 1U);
    EXPECT_NEAR(zeros[0], 3, 1e-7);
}

TEST(TurningPoints, FindsAZeroInTheMiddleOfTheSpan)
{
    const auto zeros = ZerosOf(Polynomial<4>{0, 1, 0, 1}, -1, 1);
    ASSERT_EQ(zeros.size(), 1U);
    EXPECT_NEAR(zeros[0], 0, 1e-7);
}

TEST(TurningPoints, HasNoneWhereThePolynomialIsZeroThroughout)
{
    EXPECT_TRUE(ZerosOf(Polynomial<6>{}, 0, 25).empty());
}

/// Random zeros, all of which are single.
TEST(TurningPoints, FindsEveryChangeOfSign)
{
    std::mt19937 random(TestSeed(24));
    std::uniform_real_distribution<double> place(-10, 10);
    for (int i = 0; i < 2000; ++i)
    {
        std::vector<double> wanted;
        Polynomial<6> polynomial = {1};
        for (int k = 0; k < 5; ++k)
        {
            wanted.push_back(place(random));
            const auto product = Product(polynomial, Polynomial<2>{-wanted.back(), 1});
            std::copy_n(product.begin(), polynomial.size(), polynomial.begin());
        }
        std::ranges::sort(wanted);
        const auto zeros = ZerosOf(polynomial, -10, 10);
        for (std::size_t k = 0; k < wanted.size(); ++k)
        {
            const bool isFound =
                std::ranges::any_of(zeros, [&](double zero) { return std::abs(zero - wanted[k]) < 1e-4; });
            ASSERT_TRUE(isFound) << wanted[k];
        }
    }
}

TEST(TurningPoints, EnclosesAllValuesOnASpan)
{
    const Polynomial<4> polynomial{-8, 14, -7, 1};
    const auto values = OnSpan(polynomial, 0.5, 4.5).Values();
    for (int i = 0; i <= 100; ++i)
    {
        const double value = ValueOf(polynomial, 0.5 + 0.04 * i);
        EXPECT_GE(value, values.Low - 1e-12);
        EXPECT_LE(value, values.High + 1e-12);
    }
}

TEST(SearchBox, RefinesTheLeastNode)
{
    const auto function = [](double x, double y)
    { return (x - 0.3) * (x - 0.3) + (y - 0.7) * (y - 0.7) + 0.5 * (x - 0.3) * (y - 0.7); };
    const auto found = Refined(function, {0.25, 0.75, function(0.25, 0.75)}, {0, 1}, {0, 1}, {0.25, 0.25});
    EXPECT_NEAR(found.X, 0.3, 1e-3);
    EXPECT_NEAR(found.Y, 0.7, 1e-3);
    EXPECT_NEAR(found.Value, 0, 1e-6);
}
} // namespace
