/// A file of measurements, as "data fit" takes it: faults told by line, or a part that is refused, or one
/// whose row holds finite values.

#include "fuzz/Allocations.h"
#include "fuzz/Require.h"
#include "ownparts/FitText.h"
#include "ownparts/MeasurementReader.h"
#include "ownparts/PartFit.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

/// Points beyond these make a fit slow, and show no more.
static constexpr std::size_t MostFittedPoints = 60;

static void RequireErrors(const MeasurementFile& file, std::size_t lines)
{
    for (const auto& error : file.Errors)
    {
        Require(error.Line >= 1 && error.Line <= lines,
                "a fault stands in a line of the file, or right behind it");
        Require(!error.Message.empty(), "a fault is told");
    }
    Require(std::ranges::is_sorted(file.Errors, {}, &TableError::Line),
            "faults stand in the order of their lines");
}

static void RequireMeasurements(const MeasuredPart& part)
{
    const auto isPositive = [](double value) { return std::isfinite(value) && value > 0; };
    Require(isPositive(part.NominalPicofarads) && isPositive(part.RatedVolts), "ratings are above 0");
    for (const auto& point : part.Measured.Capacitances)
    {
        Require(isPositive(point.Picofarads), "a capacitance is above 0");
        Require(point.Volts >= 0 && point.Volts <= part.RatedVolts, "a bias is at most the rated voltage");
    }
    for (const auto* rises : {&part.Measured.RisesByCurrent, &part.Measured.RisesByVoltage})
    {
        for (const auto& rise : *rises)
        {
            Require(isPositive(rise.Load) && isPositive(rise.Rise) && rise.Rise <= MostRise,
                    "a rise has a load");
            Require(rise.Hz >= 1e4 && rise.Hz <= 1e6, "a frequency lies among those of charts");
            Require(part.HeatResistance > 0, "a rise has the heat resistance of its rig");
        }
    }
}

static void RequireFit(const MeasuredPart& part)
{
    const auto fit = FitPart(part, nullptr);
    for (const auto& refusal : fit.Refusals)
    {
        Require(!refusal.empty(), "a refusal is told");
    }
    if (fit.Refusals.empty())
    {
        Require(std::ranges::all_of(fit.Fitted.Row.Data, [](float value) { return std::isfinite(value); }),
                "a row holds finite values");
        Require(TextOf(fit.Fitted).ends_with('\n'), "a report ends its last line");
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto breaks =
        static_cast<std::size_t>(std::ranges::count_if(bytes, [](char c) { return c == '\n' || c == '\r'; }));
    ForgetAllocations();
    const auto file = ReadMeasurements(bytes, [](const std::string&) { return std::string(); });
    Require(LargestAllocation() <= 65536 + 64 * size, "memory is in proportion to the file");
    RequireErrors(file, breaks + 2);
    if (!file.Errors.empty())
    {
        return 0;
    }
    Require(!file.Part.Names[0].empty(), "a part has a name");
    RequireMeasurements(file.Part);
    const auto& measured = file.Part.Measured;
    if (measured.Capacitances.size() + measured.RisesByCurrent.size() + measured.RisesByVoltage.size() <=
        MostFittedPoints)
    {
        RequireFit(file.Part);
    }
    return 0;
}
