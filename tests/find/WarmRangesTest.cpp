/// Warm capacitances over ranges of the sample range, which dense scans try to beat.

#include "calc/Capacitance.h"
#include "calc/PowerModel.h"
#include "calc/TemperatureRise.h"
#include "find/KindsOfData.h"
#include "find/PartFinder.h"
#include "tests/Seed.h"
#include "tests/calc/Boxes.h"

#include <gtest/gtest.h>

namespace
{
/// What is told of a part under a current.
std::optional<FoundPart> Told(const PartRecord& part, OperatingPoint at, double amperes)
{
    const PartRecord* const candidate = &part;
    at.Load = AcLoad{.Kind = Quantity::Current, .Value = static_cast<float>(amperes)};
    const auto found = FindParts({&candidate, 1}, {.At = at, .Wanted = {}});
    return found.Parts.empty() ? std::nullopt : std::optional(found.Parts.front());
}

/// The temperatures of the part itself that a scan finds.
ConditionRange ScannedBodies(const PartRecord& part, const OperatingPoint& at, int count)
{
    ConditionRange bodies(1000, -1000);
    for (int i = 0; i < count * count; ++i)
    {
        const double celsius = Step(at.AmbientC.Low, at.AmbientC.High, i % count, count);
        const double hertz = 1e3 * Step(at.Kilohertz->Low, at.Kilohertz->High, i / count, count);
        const auto model = CurrentModelOf(part, celsius, part.Data[Value::HeatResistance]);
        const auto body =
            static_cast<float>(celsius + RiseAt(model, Quantity::Current, at.Load->Value, hertz));
        bodies = {std::min(bodies.Low, body), std::max(bodies.High, body)};
    }
    return bodies;
}

double ScannedCapacitance(const PartRecord& part, const OperatingPoint& at, const ConditionRange& bodies,
                          int count)
{
    double least = 1e99;
    for (int i = 0; i < count * count; ++i)
    {
        const auto point =
            CapacitancePointAt(part, Step(at.BiasVolts.Low, at.BiasVolts.High, i % count, count),
                               Step(bodies.Low, bodies.High, i / count, count), at.View);
        least = std::min(least, point->PicoFarads);
    }
    return least;
}

TEST(WarmRanges, HoldTheLeastOfEveryBiasAndEveryBody)
{
    std::mt19937 random(TestSeed(2435));
    const auto& parts = SampleParts().PartData;
    const int count = TriesAllParts() ? 101 : 25;
    int judged = 0;
    for (std::size_t i = 0; i < parts.size(); i += TriesAllParts() ? 1 : 11)
    {
        const PartRecord& part = parts[i];
        OperatingPoint at{.BiasVolts = RandomRange(random, 0, 0.99F * part.Data[Value::RatedVoltage]),
                          .AmbientC = RandomRange(random, 20, part.Data[Value::UpperTemperature] - 25),
                          .Kilohertz = RandomRange(random, 10, 1000)};
        const auto allowed = HasHeatingData(part) ? Told(part, at, 0) : std::nullopt;
        if (!allowed || !HasCapacitanceData(part))
        {
            continue;
        }
        const double amperes = Uniform(random, 0.2, 1) * allowed->Known(FoundColumn::Current);
        at.Load = AcLoad{.Kind = Quantity::Current, .Value = static_cast<float>(amperes)};
        const double told = Told(part, at, amperes)->Known(FoundColumn::WarmCapacitance);
        const double scanned = ScannedCapacitance(part, at, ScannedBodies(part, at, count), count);
        EXPECT_LE(told, scanned * (1 + 1e-9)) << part.PartNum[0];
        EXPECT_GE(told, scanned * (1 - 0.02)) << part.PartNum[0];
        ++judged;
    }
    EXPECT_GT(judged, 80);
}
} // namespace
