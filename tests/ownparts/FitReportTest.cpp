/// What the report of a fit says, and warns of.

#include "ownparts/FitText.h"
#include "ownparts/PartFit.h"
#include "tests/ownparts/SampleMeasurements.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::HasSubstr;

namespace
{
MeasuredPart Measured(const Rig& rig)
{
    return MeasuredOn(SamplePart("KTS31NB51E106MA01"), rig);
}

FittedPart Fitted(MeasuredPart part)
{
    auto fit = FitPart(std::move(part), nullptr);
    EXPECT_THAT(fit.Refusals, testing::IsEmpty());
    return std::move(fit.Fitted);
}

TEST(FitReport, TellsALineForEachLaw)
{
    EXPECT_EQ(TextOf(Fitted(Measured({.Temperatures = 8, .Ambients = {25, 65}}))),
              "OWN  1206  X5R  10 uF  25 V\n"
              "capacitance         19 points, 11 biases to 25 V, 8 temperatures -55 to 85 C\n"
              "  25 C, no bias     10.00 uF, 0 % of nominal\n"
              "  over bias         74.8 % lost at 25 V            residual rms 0 %, largest 0 %\n"
              "  over temperature  degree 6, one left out: 0 %    residual rms 0 %, largest 0 %\n"
              "heating by current  30 points, 100 to 1000 kHz, ambient 25 to 65 C\n"
              "  terms 1/f, 1, f   all seen                       residual rms 0 %, largest 0 %\n"
              "  over ambient      a line\n"
              "heating by voltage  worked out of current and capacitance\n");
}

TEST(FitReport, NamesTheLineOfAPointFarAway)
{
    auto part = Measured({.Biases = 31});
    part.Measured.Capacitances[12].Picofarads *= 1.1;
    EXPECT_THAT(Fitted(part).Warnings, Contains(HasSubstr("capacitance: line 13 lies +")));
}

TEST(FitReport, TellsAScatterBeyondThatOfAGoodMeasurement)
{
    EXPECT_THAT(Fitted(Measured({.Noise = 0.08})).Warnings,
                Contains(HasSubstr("is more than a good measurement leaves, 3 %")));
}

TEST(FitReport, TellsALawThatDoesNotFollow)
{
    // Every point twice, alike to 0.1 %, and all of them 2 % off the law in turn.
    auto part = Measured({});
    double sign = 1;
    for (auto& point : part.Measured.Capacitances)
    {
        point.Picofarads *= 1 + 0.02 * sign;
        sign = -sign;
    }
    auto repeats = part.Measured.Capacitances;
    for (auto& point : repeats)
    {
        point.Picofarads *= 1.001;
        part.Measured.Capacitances.push_back(point);
    }
    EXPECT_THAT(Fitted(part).Warnings, Contains(HasSubstr("capacitance: the law does not follow")));
}

TEST(FitReport, TellsACapacitanceThatGrowsUnderBias)
{
    auto part = Measured({});
    part.Measured.Capacitances[1].Picofarads *= 1.2;
    EXPECT_THAT(Fitted(part).Warnings, Contains(HasSubstr("under bias: the law only falls")));
}

TEST(FitReport, LeavesOutSmallRises)
{
    auto part = Measured({});
    part.Measured.RisesByCurrent[0].Rise = 0.9;
    const auto fitted = Fitted(part);
    EXPECT_EQ(fitted.RisesByCurrent.size(), part.Measured.RisesByCurrent.size() - 1);
    EXPECT_THAT(fitted.Warnings, Contains("1 rise below 1 C left out"));
}

TEST(FitReport, OffersNoChartsOfWhatWasNotMeasured)
{
    auto part = Measured({});
    part.Measured.RisesByCurrent.clear();
    const auto withoutRises = Fitted(part).Row;
    EXPECT_EQ(withoutRises.Data[Value::UpperTemperature], 0);
    EXPECT_EQ(withoutRises.Data[Value::Amplitude], 0);
    part = Measured({});
    part.Measured.Capacitances.clear();
    const auto withoutCapacitances = Fitted(part);
    EXPECT_EQ(withoutCapacitances.Row.Data[Value::BiasV], 0);
    EXPECT_EQ(withoutCapacitances.Row.Data[Value::NominalCapacitance], 1e7F);
    EXPECT_THAT(withoutCapacitances.Warnings, Contains(HasSubstr("with the nominal capacitance")));
}

TEST(FitReport, ComparesRisesOverVoltage)
{
    auto part = Measured({});
    for (const double hz : {1e5, 1e6})
    {
        for (const double volts : {0.2, 0.5})
        {
            part.Measured.RisesByVoltage.push_back({90, 0, 25, hz, volts, 40 * volts * volts});
        }
    }
    const auto fitted = Fitted(part);
    EXPECT_NEAR(ResidualsOf(fitted.RisesByVoltage)->Largest, 0, 1e-4);
    EXPECT_NEAR(fitted.Row.Data[Value::VoltageExponent], 2, 1e-4);
}
} // namespace
