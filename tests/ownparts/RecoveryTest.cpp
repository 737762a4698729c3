/// Parts of the sample range that are measured and fitted come back.

#include "calc/Capacitance.h"
#include "calc/PowerModel.h"
#include "ownparts/PartFit.h"
#include "partdata/Availability.h"
#include "partdata/SpecialParts.h"
#include "tests/ownparts/SampleMeasurements.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace
{
/// Twenty parts of a characteristic, or the special parts, spread over the range.
std::vector<const PartRecord*> PartsOf(std::string_view kind)
{
    std::vector<const PartRecord*> all;
    for (const auto& part : SampleRange().PartData)
    {
        const bool isSpecial = IsSpecialPart(part.PartNum[0]);
        if (HasData(part, Values::OfCapacitance) &&
            (kind == "special" ? isSpecial : !isSpecial && part.Tcc[0] == kind))
        {
            all.push_back(&part);
        }
    }
    std::vector<const PartRecord*> some;
    const std::size_t count = std::min<std::size_t>(20, all.size());
    for (std::size_t i = 0; i < count; ++i)
    {
        some.push_back(all[i * all.size() / count]);
    }
    return some;
}

double LargestResidual(const std::vector<FittedPoint>& points)
{
    const auto residuals = ResidualsOf(points);
    return residuals ? std::abs(residuals->Largest) : 0;
}

FittedPart FittedOf(const PartRecord& part, const Rig& rig)
{
    auto fit = FitPart(MeasuredOn(part, rig), nullptr);
    EXPECT_THAT(fit.Refusals, testing::IsEmpty()) << part.PartNum[0];
    return std::move(fit.Fitted);
}

struct Recovery
{
    const char* Kind;
    /// Largest error without noise.
    double Exact;
    /// Largest error of a curve with 1 % of noise: fixed seeds, and any seed.
    double OfFixedSeeds;
    double OfAnySeed;
};

void PrintTo(const Recovery& row, std::ostream* out)
{
    *out << row.Kind;
}

class Recovered : public testing::TestWithParam<Recovery>
{
protected:
    Rig RigFor(double noise, std::uint64_t seed) const
    {
        const bool isPeaked = std::string_view(GetParam().Kind) == "Y5V";
        return {
            .Seed = seed, .Noise = noise, .RiseNoiseC = 10 * noise, .TemperaturesAtRated = isPeaked ? 8 : 0};
    }
};

/// How far the curves over bias at 25 °C and over temperature without bias are off, relative.
double CurveError(const PartRecord& truth, const PartRecord& fitted)
{
    const auto& range = FindCharacteristic(truth.Tcc[0])->RangeIn(CodeView::Eia);
    const auto errorAt = [&](double volts, double celsius)
    {
        return std::abs(CapacitancePointAt(fitted, volts, celsius, CodeView::Eia)->PicoFarads /
                            CapacitancePointAt(truth, volts, celsius, CodeView::Eia)->PicoFarads -
                        1);
    };
    double error = 0;
    for (int i = 0; i <= 20; ++i)
    {
        const double share = i / 20.0;
        error = std::max({error, errorAt(truth.Data[Value::RatedVoltage] * share, 25),
                          errorAt(0, range.MinC + (range.MaxC - range.MinC) * share)});
    }
    return error;
}

double ErrorOf(const PartRecord& part, const Rig& rig)
{
    const auto fitted = FittedOf(part, rig);
    return CurveError(part, RecordOf(fitted.Row));
}

/// The error that nine of ten stay below.
double NinthTenth(std::vector<double> errors)
{
    std::ranges::sort(errors);
    return errors[(errors.size() - 1) * 9 / 10];
}

TEST_P(Recovered, ComesBackWithoutNoise)
{
    auto rig = RigFor(0, 1);
    rig.Hertz = {1e4, 1e5, 1e6};
    rig.Ambients = {25, 65, std::string_view(GetParam().Kind) == "X7R" ? 105.0 : 75.0};
    for (const auto* part : PartsOf(GetParam().Kind))
    {
        const auto fitted = FittedOf(*part, rig);
        EXPECT_LT(LargestResidual(fitted.Capacitances), GetParam().Exact) << part->PartNum[0];
        EXPECT_LT(LargestResidual(fitted.RisesByCurrent), 1e-3) << part->PartNum[0];
    }
}

TEST_P(Recovered, StaysCloseWithNoise)
{
    std::vector<double> errors;
    double sum = 0;
    for (const auto* part : PartsOf(GetParam().Kind))
    {
        const auto fitted = FittedOf(*part, RigFor(0.01, 4));
        const double rms = ResidualsOf(fitted.Capacitances)->Rms;
        EXPECT_GT(rms, 0.004) << part->PartNum[0];
        EXPECT_LT(rms, 0.0125) << part->PartNum[0];
        sum += rms;
        errors.push_back(CurveError(*part, RecordOf(fitted.Row)));
    }
    // The unknowns take up part of the noise, so what is left is less.
    const double mean = sum / static_cast<double>(errors.size());
    EXPECT_GT(mean, 0.006);
    EXPECT_LT(mean, 0.009);
    EXPECT_LT(NinthTenth(errors), GetParam().OfFixedSeeds);
}

/// With seeds that are drawn anew: TAVIK_FIT_SEEDS=20 runs so many.
TEST_P(Recovered, StaysCloseWithNoiseOfAnySeed)
{
    const char* const asked = std::getenv("TAVIK_FIT_SEEDS");
    const auto count = asked == nullptr ? 0 : std::strtoul(asked, nullptr, 10);
    for (std::size_t i = 0; i < count; ++i)
    {
        const auto seed = std::random_device()();
        std::fprintf(stderr, "seed %u\n", seed);
        std::vector<double> errors;
        for (const auto* part : PartsOf(GetParam().Kind))
        {
            errors.push_back(ErrorOf(*part, RigFor(0.01, seed)));
        }
        EXPECT_LT(NinthTenth(errors), GetParam().OfAnySeed) << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, Recovered,
                         testing::Values(Recovery{"X7R", 1e-3, 0.03, 0.04}, Recovery{"X5R", 1e-3, 0.03, 0.04},
                                         Recovery{"Y5V", 2e-3, 0.03, 0.06},
                                         Recovery{"special", 1e-3, 0.03, 0.04}),
                         [](const auto& info) { return std::string(info.param.Kind); });

TEST(HeatingThatIsMeasured, StaysCloseWithNoise)
{
    std::vector<double> errors;
    for (const auto* part : PartsOf("X5R"))
    {
        if (!HasData(*part, Values::OfPower))
        {
            continue;
        }
        const auto fitted = FittedOf(*part, {.Seed = 2, .Noise = 0.01, .RiseNoiseC = 0.1});
        EXPECT_LT(ResidualsOf(fitted.RisesByCurrent)->Rms, 0.04) << part->PartNum[0];
        const auto record = RecordOf(fitted.Row);
        double error = 0;
        for (const double hz : {1e5, 2e5, 5e5, 1e6})
        {
            const auto at = [hz](const PartRecord& shown)
            { return PowerModelOf(shown, 0, 25, shown.Data[Value::HeatResistance]).kI(hz); };
            error = std::max(error, std::abs(at(record) / at(*part) - 1));
        }
        errors.push_back(error);
    }
    EXPECT_LT(NinthTenth(errors), 0.05);
}

TEST(HeatingByVoltage, IsWorkedOutAsTheSampleRangeDoes)
{
    const auto& part = SamplePart("KTS31NB51E106MA01");
    const auto fitted = FittedOf(part, {.Hertz = {1e4, 1e5, 1e6}, .Ambients = {25, 45, 65}});
    const auto record = RecordOf(fitted.Row);
    for (const double hz : {1e4, 1e5, 1e6})
    {
        const auto voltsAt = [hz](const PartRecord& shown)
        {
            const auto model = PowerModelOf(shown, 12, 25, shown.Data[Value::HeatResistance]);
            return VoltageOfRise(20, model.kV(hz), model.S3);
        };
        EXPECT_NEAR(voltsAt(record) / voltsAt(part), 1, 0.12) << hz;
    }
}
} // namespace
