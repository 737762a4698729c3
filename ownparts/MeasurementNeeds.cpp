#include "ownparts/MeasurementNeeds.h"

#include "ownparts/ReportTexts.h"
#include "ownparts/Sweeps.h"

#include <algorithm>

namespace
{
constexpr double TopBiasShare = 0.97;
constexpr float EndsWithinC = 15;
constexpr double FrequencySpan = 3;
constexpr double WideFrequencySpan = 10;
constexpr double VoltageSpan = 2;
constexpr double AmbientSpanC = 30;
constexpr double HotAmbientBelowC = 25;
constexpr double LoadRatio = 1.05;

/// Adds what is missing, with the group that it is missing in.
class Needs
{
public:
    Needs(const MeasuredPart& measured, CapacitanceModel capacitanceModel, bool hasLikePart)
        : part(measured)
        , model(capacitanceModel)
        , hasLike(hasLikePart)
        , orLike(hasLike ? "" : ", or name a part with --like")
        , sweeps(SweepsOf(part.Measured.Capacitances, part.RatedVolts))
    {
    }

    std::vector<std::string> Missing();

private:
    void Add(std::string_view group, const std::string& message)
    {
        missing.push_back(std::string(group).append(": ").append(message));
    }
    void JudgeBias();
    void JudgeTemperature();
    void JudgeHeating();

    const MeasuredPart& part;
    CapacitanceModel model;
    bool hasLike;
    std::string orLike;
    CapacitanceSweeps sweeps;
    std::vector<std::string> missing;
};

std::vector<std::string> Needs::Missing()
{
    const auto& measured = part.Measured;
    const bool hasRise = !measured.RisesByCurrent.empty() || !measured.RisesByVoltage.empty();
    if (measured.Capacitances.empty() && !hasRise)
    {
        return {"no capacitance and no rise: measure one of them"};
    }
    if (!measured.Capacitances.empty())
    {
        JudgeBias();
        JudgeTemperature();
    }
    if (hasRise)
    {
        JudgeHeating();
    }
    return std::move(missing);
}

void Needs::JudgeBias()
{
    if (sweeps.Temperatures.empty())
    {
        Add("capacitance", "no point without bias: measure one at 0 V and 25 C");
    }
    const bool endsEarly = BiasEndsEarly(part);
    if (endsEarly)
    {
        Add("bias", "measured up to " + Shortened(sweeps.Biases.back().Most) + " V of " +
                        Shortened(part.RatedVolts) + " V: measure up to " +
                        Shortened(LeastTopBias(part.RatedVolts)) + " V, lower the rated voltage" + orLike);
    }
    if (sweeps.Biases.size() < LeastBiases)
    {
        Add("bias", CountText(sweeps.Biases.size(), "bias") + " of " + std::to_string(LeastBiases) +
                        " at one temperature: measure " + std::to_string(LeastBiases - sweeps.Biases.size()) +
                        " more between 0 and " + Shortened(part.RatedVolts) + " V" +
                        (endsEarly ? orLike : ""));
    }
}

void Needs::JudgeTemperature()
{
    const auto& steps = sweeps.Temperatures;
    const auto least = LeastTemperatures(model);
    const auto* const characteristic = FindCharacteristic(part.Names[FirstTccField]);
    const bool isFlat = steps.size() < 2 && model == CapacitanceModel::Polynomial;
    if (isFlat || steps.empty() || characteristic == nullptr)
    {
        return;
    }
    const auto needed = NeededTemperatures(*characteristic);
    if (steps.size() < least)
    {
        Add("temperature", CountText(steps.size(), "temperature") + " of " + std::to_string(least) +
                               " without bias: measure " + std::to_string(least - steps.size()) +
                               " more from " + Shortened(needed.MinC) + " to " + Shortened(needed.MaxC) +
                               " C" + orLike);
    }
    if (steps.front().Least > needed.MinC)
    {
        Add("temperature", "measured from " + Shortened(steps.front().Least) + " C, " +
                               Shortened(needed.MinC) + " C needed: measure without bias down to there" +
                               orLike);
    }
    if (steps.back().Most < needed.MaxC)
    {
        Add("temperature", "measured up to " + Shortened(steps.back().Most) + " C, " +
                               Shortened(needed.MaxC) + " C needed: measure without bias up to there" +
                               orLike);
    }
}

void Needs::JudgeHeating()
{
    if (part.Measured.RisesByCurrent.empty())
    {
        Add("rise", "measured over voltage alone: measure it over current at two frequencies, too");
        return;
    }
    if (!hasLike && !TellsFrequencyTerms(part))
    {
        const auto frequencies = SweepsOf(part.Measured.RisesByCurrent).Frequencies;
        const double low = frequencies.front().Least / 1000;
        const double high = frequencies.back().Most / 1000;
        Add("rise", "measured " +
                        (frequencies.size() == 1
                             ? "at " + Shortened(low) + " kHz alone"
                             : "from " + Shortened(low) + " to " + Shortened(high) + " kHz alone") +
                        ": measure at another frequency, at least 3 times as high or as low" + orLike);
    }
}

std::size_t LoadsAt(const std::vector<MeasuredRise>& rises, const Step& frequency)
{
    std::vector<double> loads;
    for (const auto& rise : rises)
    {
        if (frequency.Holds(rise.Hz))
        {
            loads.push_back(rise.Load);
        }
    }
    const auto steps = RatioStepsOf(std::move(loads), LoadRatio);
    return SpanRatio(steps) >= VoltageSpan ? steps.size() : 1;
}
} // namespace

std::vector<std::string> RefusalsOf(const MeasuredPart& part, CapacitanceModel model, bool hasLike)
{
    return Needs(part, model, hasLike).Missing();
}

double LeastTopBias(double ratedVolts)
{
    return TopBiasShare * ratedVolts;
}

bool BiasEndsEarly(const MeasuredPart& part)
{
    const auto sweeps = SweepsOf(part.Measured.Capacitances, part.RatedVolts);
    return !sweeps.Biases.empty() && sweeps.Biases.back().Most < LeastTopBias(part.RatedVolts);
}

TemperatureRange NeededTemperatures(const Characteristic& characteristic)
{
    const auto& range = characteristic.RangeIn(CodeView::Eia);
    return {range.MinC + EndsWithinC, range.MaxC - EndsWithinC};
}

std::size_t LeastTemperatures(CapacitanceModel model)
{
    return model == CapacitanceModel::Peaked ? 7 : 5;
}

bool TellsFrequencyTerms(const MeasuredPart& part)
{
    return SpanRatio(SweepsOf(part.Measured.RisesByCurrent).Frequencies) >= FrequencySpan;
}

CurrentTerms TermsToldBy(const MeasuredPart& part)
{
    const auto sweeps = SweepsOf(part.Measured.RisesByCurrent);
    CurrentTerms terms{.ByFrequency = sweeps.Frequencies.size() >= 3 &&
                                      SpanRatio(sweeps.Frequencies) >= WideFrequencySpan};
    if (sweeps.Ambients.size() >= 2 &&
        sweeps.Ambients.back().Most - sweeps.Ambients.front().Least >= AmbientSpanC)
    {
        const bool isHot = sweeps.Ambients.back().Most >= part.UpperC - HotAmbientBelowC;
        terms.TemperaturePowers = sweeps.Ambients.size() >= 3 && isHot ? 2 : 1;
    }
    return terms;
}

bool TellsVoltageLaw(const MeasuredPart& part)
{
    const auto& rises = part.Measured.RisesByVoltage;
    std::vector<Step> told;
    for (const auto& frequency : SweepsOf(rises).Frequencies)
    {
        if (LoadsAt(rises, frequency) >= 2)
        {
            told.push_back(frequency);
        }
    }
    return told.size() >= 2 && SpanRatio(told) >= FrequencySpan;
}
