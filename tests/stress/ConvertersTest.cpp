#include "stress/Converters.h"

#include "stress/CurrentLoad.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
/// To the last digits of a double.
constexpr double Exactly = 1e-15;

Converter Buck()
{
    return {
        .Kind = ConverterKind::Buck, .Vin = 12, .Vout = 3.36, .Iout = 5.1, .Hertz = 500e3, .Henries = 2.2e-6};
}

Converter Boost(double iout)
{
    return {
        .Kind = ConverterKind::Boost, .Vin = 5, .Vout = 12, .Iout = iout, .Hertz = 500e3, .Henries = 4.7e-6};
}

Converter Flyback(double iout)
{
    return {.Kind = ConverterKind::Flyback,
            .Vin = 48,
            .Vout = 5,
            .Iout = iout,
            .Hertz = 250e3,
            .Henries = 40e-6,
            .Turns = 4};
}

/// The charge that passes a side, without the mean taken off, is that of the load.
double MeanOf(const Converter& converter, ConverterSide side)
{
    return LoadOfConverter(converter, side).Figures.Mean;
}

double Arms(const Converter& converter, ConverterSide side)
{
    return LoadOfConverter(converter, side).Arms();
}

double CarriedArms(const Converter& converter, ConverterSide side)
{
    const auto& lines = LoadOfConverter(converter, side).Lines;
    return std::sqrt(lines.Moments.Total().Square);
}

TEST(Buck, HasTheTextbookCurrents)
{
    const double D = 3.36 / 12;
    const double swing = 3.36 * (1 - D) / (2.2e-6 * 500e3);
    const double input = std::sqrt(D * (5.1 * 5.1 * (1 - D) + swing * swing / 12));
    EXPECT_NEAR(Arms(Buck(), ConverterSide::Input), input, Exactly * input);
    EXPECT_NEAR(CarriedArms(Buck(), ConverterSide::Input), input, Exactly * input);
    const double output = swing / std::sqrt(12.0);
    EXPECT_NEAR(Arms(Buck(), ConverterSide::Output), output, Exactly * output);
    EXPECT_NEAR(MeanOf(Buck(), ConverterSide::Output), 5.1, 1e-14);
}

TEST(Boost, HasTheTextbookCurrents)
{
    const double D = 1 - 5.0 / 12;
    const double swing = 5 * D / (4.7e-6 * 500e3);
    const double coil = 2 / (1 - D);
    const double output = std::sqrt((1 - D) * (coil * coil + swing * swing / 12) - 4);
    EXPECT_NEAR(Arms(Boost(2), ConverterSide::Output), output, 4 * Exactly * output);
    EXPECT_NEAR(Arms(Boost(2), ConverterSide::Input), swing / std::sqrt(12.0), Exactly);
    EXPECT_NEAR(MeanOf(Boost(2), ConverterSide::Output), 2, 1e-14);
}

TEST(Flyback, HasTheTextbookCurrents)
{
    const double D = 20.0 / 68;
    const double swing = 48 * D / (40e-6 * 250e3);
    const double coil = 6 / (4 * (1 - D));
    const double output = std::sqrt((1 - D) * 16 * (coil * coil + swing * swing / 12) - 36);
    const double input = std::sqrt(D * (coil * coil + swing * swing / 12) - D * D * coil * coil);
    EXPECT_NEAR(Arms(Flyback(6), ConverterSide::Output), output, 4 * Exactly * output);
    EXPECT_NEAR(Arms(Flyback(6), ConverterSide::Input), input, 4 * Exactly * input);
    EXPECT_NEAR(MeanOf(Flyback(6), ConverterSide::Output), 6, 1e-14);
}

/// A triangle of peak p over a share d of the period: its square is p²·d/3, its mean p·d/2.
double TriangleArms(double peak, double share)
{
    return std::sqrt(peak * peak * share / 3 - std::pow(peak * share / 2, 2));
}

TEST(DiscontinuousCoil, HasTheTextbookCurrents)
{
    Converter buck = Buck();
    buck.Iout = 0.3;
    const double buckD = std::sqrt(2 * 2.2e-6 * 500e3 * 0.3 * 3.36 / (12 * (12 - 3.36)));
    const double buckPeak = (12 - 3.36) * buckD / (2.2e-6 * 500e3);
    EXPECT_NEAR(Arms(buck, ConverterSide::Input), TriangleArms(buckPeak, buckD), 1e-14);
    EXPECT_NEAR(MeanOf(buck, ConverterSide::Output), 0.3, 1e-14);

    const double boostD = std::sqrt(2 * 4.7e-6 * 500e3 * 0.1 * (12 - 5)) / 5;
    const double boostPeak = 5 * boostD / (4.7e-6 * 500e3);
    EXPECT_NEAR(Arms(Boost(0.1), ConverterSide::Output), TriangleArms(boostPeak, boostD * 5 / 7), 1e-14);
    EXPECT_NEAR(MeanOf(Boost(0.1), ConverterSide::Output), 0.1, 1e-14);

    const double flybackD = std::sqrt(2 * 40e-6 * 250e3 * 0.5 * 5) / 48;
    const double flybackPeak = 48 * flybackD / (40e-6 * 250e3);
    EXPECT_NEAR(Arms(Flyback(0.5), ConverterSide::Input), TriangleArms(flybackPeak, flybackD), 1e-14);
    EXPECT_NEAR(Arms(Flyback(0.5), ConverterSide::Output),
                TriangleArms(4 * flybackPeak, flybackD * 48 / (4 * 5)), 1e-13);
    EXPECT_NEAR(MeanOf(Flyback(0.5), ConverterSide::Output), 0.5, 1e-14);
}

TEST(ForcedCoil, IsContinuousAtAnyLoad)
{
    Converter buck = Buck();
    buck.Iout = 0.3;
    EXPECT_FALSE(CoilOf(buck).IsContinuous);
    buck.IsForced = true;
    EXPECT_TRUE(CoilOf(buck).IsContinuous);
    EXPECT_LT(CoilOf(buck).Least, 0);
    EXPECT_NEAR(MeanOf(buck, ConverterSide::Output), 0.3, 1e-14);
}

/// The fundamental of a pulse train of height h and share D is √2·h·sin(πD)/π.
TEST(ConverterLines, AreThoseOfPulses)
{
    Converter buck = Buck();
    buck.Henries = 1;
    const auto load = LoadOfConverter(buck, ConverterSide::Input);
    for (const std::size_t k : {1U, 2U, 5U})
    {
        const double arms =
            std::sqrt(2.0) * 5.1 * std::abs(std::sin(M_PI * double(k) * 0.28)) / (M_PI * double(k));
        EXPECT_NEAR(std::sqrt(load.Lines.Lines[k - 1].Square), arms, 1e-5);
        EXPECT_DOUBLE_EQ(load.Lines.Lines[k - 1].Hertz, 500e3 * double(k));
    }
}

TEST(RefuseConverter, TellsWhatIsImpossible)
{
    EXPECT_EQ(RefuseConverter(Buck()), std::nullopt);
    Converter buck = Buck();
    buck.Vout = 12;
    EXPECT_EQ(RefuseConverter(buck), "a buck converter's vout is below its vin");
    Converter boost = Boost(1);
    boost.Vin = 12;
    EXPECT_EQ(RefuseConverter(boost), "a boost converter's vout is above its vin");
    Converter slow = Buck();
    slow.Hertz = 999;
    EXPECT_EQ(RefuseConverter(slow), "the frequency of a converter is from 1 kHz to 10 MHz");
    Converter empty = Buck();
    empty.Iout = 0;
    EXPECT_EQ(RefuseConverter(empty), "all values of a converter are above 0");
}
} // namespace
