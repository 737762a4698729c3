#include "ownparts/FitWarnings.h"

#include "ownparts/ReportTexts.h"
#include "ownparts/Sweeps.h"
#include "partdata/Characteristic.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace
{
/// Residuals of a good measurement stay below these.
constexpr double MostCapacitanceRms = 0.03;
constexpr double MostRiseRms = 0.08;
/// A point this many times the usual residual away is looked at, if it is far away at all.
constexpr double FarAway = 4;
constexpr double WorthALook = 0.005;
/// A law that is this many times as far off as repeats scatter does not follow.
constexpr double BeyondScatter = 2;
constexpr double WorthAWord = 0.002;
constexpr std::size_t LeastRepeats = 3;
constexpr double Hump = 0.01;

/// One setting at which repeats are told from one another.
using Setting = std::vector<double>;
using Repeats = std::map<Setting, std::vector<double>>;

Repeats RepeatsOf(const std::vector<MeasuredCapacitance>& points)
{
    Repeats repeats;
    for (const auto& point : points)
    {
        repeats[{point.Volts, point.Celsius}].push_back(point.Picofarads);
    }
    return repeats;
}

Repeats RepeatsOf(const std::vector<MeasuredRise>& points)
{
    Repeats repeats;
    for (const auto& point : points)
    {
        repeats[{point.Volts, point.Celsius, point.Hz, point.Load}].push_back(point.Rise);
    }
    return repeats;
}

/// How much repeats scatter, relative; 0 where there are too few to tell.
double ScatterOf(const Repeats& repeats)
{
    double sum = 0;
    std::size_t freedoms = 0;
    for (const auto& [setting, values] : repeats)
    {
        double mean = 0;
        for (const double value : values)
        {
            mean += value / static_cast<double>(values.size());
        }
        for (const double value : values)
        {
            sum += std::pow(value / mean - 1, 2);
        }
        freedoms += values.size() - 1;
    }
    return freedoms < LeastRepeats ? 0 : std::sqrt(sum / static_cast<double>(freedoms));
}

/// The usual residual of all points but one, which would hide itself in it.
double RmsWithout(const FittedPoint& point, const Residuals& all)
{
    const double sum = all.Rms * all.Rms * static_cast<double>(all.Points) - std::pow(point.Residual(), 2);
    return all.Points > 1 ? std::sqrt(std::max(sum, 0.0) / static_cast<double>(all.Points - 1)) : all.Rms;
}

/// Gathers the warnings of one fit.
class Warnings
{
public:
    Warnings(FittedPart& fittedPart, const FitStory& fitStory)
        : fitted(fittedPart)
        , story(fitStory)
    {
    }

    void AddAll();

private:
    void AddWhatWasNotMeasured();
    void AddHeatingNotes();
    void JudgePoints(const std::string& what, const std::vector<FittedPoint>& points, const Repeats& repeats,
                     double mostRms);
    void AddHump();
    void Add(std::string_view warning) { fitted.Warnings.emplace_back(warning); }

    FittedPart& fitted;
    const FitStory& story;
};

void Warnings::AddAll()
{
    const auto& measured = fitted.Measured.Measured;
    AddWhatWasNotMeasured();
    JudgePoints("capacitance", fitted.Capacitances, RepeatsOf(measured.Capacitances), MostCapacitanceRms);
    JudgePoints("heating by current", fitted.RisesByCurrent, RepeatsOf(measured.RisesByCurrent), MostRiseRms);
    JudgePoints("heating by voltage", fitted.RisesByVoltage, RepeatsOf(measured.RisesByVoltage), MostRiseRms);
    AddHump();
    for (const auto& finding : story.Findings)
    {
        Add(finding);
    }
}

void Warnings::AddWhatWasNotMeasured()
{
    const auto& measured = fitted.Measured.Measured;
    const auto model = CapacitanceModelOf(RecordOf(fitted.Row));
    if (story.SmallRises > 0)
    {
        Add(CountText(story.SmallRises, "rise") + " below 1 C left out");
    }
    if (!measured.Capacitances.empty() && model == CapacitanceModel::Polynomial && story.Degree == 0)
    {
        Add("capacitance over temperature not measured: taken as the same everywhere");
    }
    if (!measured.Capacitances.empty() && model == CapacitanceModel::Peaked && !story.PeakIsTold &&
        !story.PeakIsLent)
    {
        Add("capacitance over temperature at 80 % of the rated voltage or more not measured: taken as "
            "without "
            "bias, but for its size");
    }
    if (!measured.RisesByCurrent.empty())
    {
        AddHeatingNotes();
    }
}

void Warnings::AddHeatingNotes()
{
    const auto& measured = fitted.Measured.Measured;
    if (!story.LawIsLent && !story.AmbientIsLent && story.Terms.TemperaturePowers == 0)
    {
        Add("heating over ambient temperature not measured: taken as the same everywhere (usually the safe "
            "side)");
    }
    if (!story.VoltageIsMeasured && !measured.RisesByVoltage.empty())
    {
        Add("rises over voltage at two voltages 2 apart and two frequencies 3 apart would tell the heating "
            "by "
            "voltage: it is worked out instead");
    }
    if (!story.VoltageIsMeasured && measured.Capacitances.empty())
    {
        Add("heating by voltage worked out with the nominal capacitance at every bias and temperature");
    }
}

void Warnings::JudgePoints(const std::string& what, const std::vector<FittedPoint>& points,
                           const Repeats& repeats, double mostRms)
{
    const auto residuals = ResidualsOf(points);
    if (!residuals)
    {
        return;
    }
    const double rms = residuals->Rms;
    const double scatter = ScatterOf(repeats);
    if (rms > mostRms)
    {
        Add(what + ": residual rms " + Percent(rms, 2) + " is more than a good measurement leaves, " +
            Percent(mostRms, 0));
    }
    if (scatter > 0 && rms > BeyondScatter * scatter && rms > WorthAWord)
    {
        Add(what + ": the law does not follow: residual rms " + Percent(rms, 2) + ", repeats scatter by " +
            Percent(scatter, 2));
    }
    for (const auto& point : points)
    {
        const double residual = std::abs(point.Residual());
        if (residual > FarAway * RmsWithout(point, *residuals) && residual > WorthALook)
        {
            Add(what + ": line " + std::to_string(point.Line) + " lies " +
                SignedPercent(point.Measured / point.Fitted - 1, 1) + " off the curve: look at it");
        }
    }
}

/// Tells a capacitance that grows under bias, which no law of a part can follow.
void Warnings::AddHump()
{
    const auto& points = fitted.Measured.Measured.Capacitances;
    const double rated = fitted.Measured.RatedVolts;
    const auto sweeps = SweepsOf(points, rated);
    const auto residuals = ResidualsOf(fitted.Capacitances);
    if (!residuals)
    {
        return;
    }
    const auto meanAt = [&](const Step& step)
    {
        double sum = 0;
        double count = 0;
        for (const auto& point : points)
        {
            const bool counts = sweeps.BiasTemperature.Holds(point.Celsius) && step.Holds(point.Volts);
            sum += counts ? point.Picofarads : 0;
            count += counts ? 1 : 0;
        }
        return sum / count;
    };
    double least = meanAt(sweeps.Biases.front());
    double most = 0;
    for (const auto& step : sweeps.Biases)
    {
        const double mean = meanAt(step);
        most = std::max(most, mean / least - 1);
        least = std::min(least, mean);
    }
    if (most > Hump + BeyondScatter * std::min(residuals->Rms, Hump))
    {
        Add("capacitance grows by " + Percent(most, 1) + " under bias: the law only falls");
    }
}
} // namespace

void AddWarnings(FittedPart& fitted, const FitStory& story)
{
    Warnings(fitted, story).AddAll();
}
