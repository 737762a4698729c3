#include "stress/Fourier.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace
{
/// The sums by their definition.
std::vector<std::complex<double>> PlainSums(const std::vector<double>& values)
{
    std::vector<std::complex<double>> sums(values.size() / 2 + 1);
    for (std::size_t k = 0; k < sums.size(); ++k)
    {
        for (std::size_t j = 0; j < values.size(); ++j)
        {
            const double turns = static_cast<double>(j * k) / static_cast<double>(values.size());
            sums[k] += values[j] * std::polar(1.0, -2 * std::numbers::pi * turns);
        }
    }
    return sums;
}

class FourierSumsOf : public testing::TestWithParam<std::size_t>
{
};

TEST_P(FourierSumsOf, AreThoseOfTheDefinition)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> value(-1, 1);
    std::vector<double> values(GetParam());
    for (double& each : values)
    {
        each = value(random);
    }
    const auto sums = FourierSums(values);
    const auto plain = PlainSums(values);
    ASSERT_EQ(sums.size(), plain.size());
    for (std::size_t k = 0; k < sums.size(); ++k)
    {
        EXPECT_NEAR(std::abs(sums[k] - plain[k]), 0, 1e-12 * static_cast<double>(values.size())) << k;
    }
}

INSTANTIATE_TEST_SUITE_P(, FourierSumsOf, testing::Values(2, 4, 8, 256, 1024));
} // namespace
