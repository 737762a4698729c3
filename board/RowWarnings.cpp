#include "board/RowWarnings.h"

#include "calc/NumberText.h"
#include "partdata/RunTimeError.h"
#include "requests/FourDigits.h"
#include "requests/StressReport.h"

#include <cmath>
#include <limits>

namespace
{
constexpr double percent = 100;

std::string Digits(double value)
{
    return FourDigits(static_cast<float>(value));
}

using Warnings = std::vector<std::string>;

void AddQuantity(Warnings& warnings, const BomItem& item)
{
    const auto& quantity = item.TextOf(BomField::Quantity);
    const auto count = item.ReferencesOfRow;
    const auto number = ReadEntry(quantity);
    if (!quantity.empty() && count > 0 && number != static_cast<float>(count))
    {
        warnings.push_back("quantity " + quantity + ", but " + std::to_string(count) +
                           (count == 1 ? " reference" : " references"));
    }
}

/// Of a sine, and of the current of a net.
void AddRipple(Warnings& warnings, const JudgedItem& item)
{
    const double rated = item.Part->Data[Value::RatedVoltage];
    const double high = item.Question.Asked.At.BiasVolts.High;
    const auto ripple = item.Figure(FoundColumn::Ripple);
    const double peak = high + ripple.value_or(0) * std::sqrt(2.0);
    if (ripple && peak > rated && high <= rated)
    {
        warnings.push_back("bias and ripple reach " + Digits(peak) + " V, above the rated " + Digits(rated) +
                           " V");
    }
    if (item.Share && item.Share->RippleAbove)
    {
        warnings.push_back("the net's ripple of " + Digits(*item.Share->RippleAbove) +
                           " Vrms is more than the part may have on top of its bias");
    }
}

void AddWarmth(Warnings& warnings, const JudgedItem& item)
{
    constexpr double smallChange = 0.05;
    const auto warm = item.Figure(FoundColumn::WarmCapacitance);
    const auto least = item.Figure(FoundColumn::EffectiveCapacitance);
    const double change = warm && least && *least > 0 ? *warm / *least - 1 : 0;
    if (std::abs(change) > smallChange)
    {
        warnings.push_back("warm it has " + Digits(std::abs(change) * percent) + " %" +
                           (change < 0 ? " less" : " more") + " capacitance than at the ambient temperature");
    }
}

/// What is told of a waveform or a converter at the high ends of bias and ambient temperature.
void AddStress(Warnings& warnings, const JudgedItem& item)
{
    const auto& at = item.Question.Asked.At;
    StressConditions conditions{.BiasVolts = at.BiasVolts.High,
                                .AmbientC = at.HeatingAmbientC().High,
                                .HeatResistance =
                                    at.HeatResistance.value_or(item.Part->Data[Value::HeatResistance]),
                                .MostRise = item.Question.Asked.Wanted.MostRise,
                                .View = at.View,
                                .Parallel = item.Question.Parallel()};
    StressReport report{.Name = "", .Load = *item.Question.Load};
    report.Parts.push_back({.Part = item.Part, .Stress = StressOf(*item.Part, report.Load, conditions)});
    // The rise is a limit of its own, and the warm capacitance is told of all ranges.
    report.Parts.front().Stress.PermittedRise = std::numeric_limits<double>::infinity();
    report.Parts.front().Stress.WarmCapacitance.reset();
    const auto lines = WarningsOf(report, at.View, {});
    warnings.insert(warnings.end(), lines.begin(), lines.end());
}
} // namespace

std::vector<std::string> RowWarnings(const JudgedItem& item)
{
    Warnings warnings;
    AddQuantity(warnings, *item.Item);
    AddRipple(warnings, item);
    AddWarmth(warnings, item);
    if (item.Question.Load && item.Figure(FoundColumn::Rise))
    {
        try
        {
            AddStress(warnings, item);
        }
        catch (const RunTimeError&)
        {
            warnings.emplace_back(
                "what the current does cannot be calculated at the high ends of its ranges");
        }
    }
    return warnings;
}
