#include "ownparts/FitGroups.h"

#include "calc/ChangePolynomial.h"
#include "calc/NumberText.h"
#include "ownparts/ReportTexts.h"
#include "ownparts/Sweeps.h"
#include "partdata/Characteristic.h"

#include <algorithm>
#include <array>

namespace
{
/// Points that make a sweep worth a line of its own.
constexpr std::size_t PointsOfASweep = 3;

std::string EndsOf(const std::vector<Step>& steps, double unit = 1)
{
    const auto first = Shortened(steps.front().Least / unit);
    return steps.size() == 1 ? first : first + " to " + Shortened(steps.back().Most / unit);
}

/// Gathers the groups of one fit.
class Groups
{
public:
    Groups(const FittedPart& fittedPart, const FitStory& fitStory)
        : fitted(fittedPart)
        , story(fitStory)
        , part(fittedPart.Measured)
        , model(CapacitanceModelOf(RecordOf(fittedPart.Row)))
        , sweeps(SweepsOf(part.Measured.Capacitances, part.RatedVolts))
    {
    }

    std::vector<FitGroup> All();

private:
    void AddCapacitance();
    void AddBias();
    void AddTemperature();
    void AddOtherSweeps();
    void AddCurrent();
    void AddVoltage();
    /// The points of the capacitance that a sweep holds.
    template <class Holds> std::vector<FittedPoint> PointsOf(Holds holds) const;
    template <class Holds> void AddSweep(FitGroup sweep, Holds holds);
    std::string RisesTold(const std::vector<MeasuredRise>& rises) const;

    const FittedPart& fitted;
    const FitStory& story;
    const MeasuredPart& part;
    CapacitanceModel model;
    CapacitanceSweeps sweeps;
    std::vector<FitGroup> groups;
};

std::vector<FitGroup> Groups::All()
{
    if (!part.Measured.Capacitances.empty())
    {
        AddCapacitance();
        AddBias();
        AddTemperature();
        AddOtherSweeps();
    }
    if (!part.Measured.RisesByCurrent.empty())
    {
        AddCurrent();
        AddVoltage();
    }
    return std::move(groups);
}

template <class Holds> std::vector<FittedPoint> Groups::PointsOf(Holds holds) const
{
    std::vector<FittedPoint> points;
    for (std::size_t i = 0; i < fitted.Capacitances.size(); ++i)
    {
        if (holds(part.Measured.Capacitances[i]))
        {
            points.push_back(fitted.Capacitances[i]);
        }
    }
    return points;
}

template <class Holds> void Groups::AddSweep(FitGroup sweep, Holds holds)
{
    const auto points = PointsOf(holds);
    sweep.Points = points.size();
    sweep.Residual = ResidualsOf(points);
    sweep.IsSweep = true;
    groups.push_back(std::move(sweep));
}

void Groups::AddCapacitance()
{
    const auto count = fitted.Capacitances.size();
    groups.push_back({.Name = "capacitance",
                      .Told = CountText(count, "point") + ", " + CountText(sweeps.Biases.size(), "bias") +
                              " to " + Shortened(sweeps.Biases.back().Most) + " V, " +
                              CountText(sweeps.Temperatures.size(), "temperature") + ' ' +
                              EndsOf(sweeps.Temperatures) + " C",
                      .Points = count,
                      .Residual = ResidualsOf(fitted.Capacitances)});
    const double reference = fitted.Row.Data[Value::NominalCapacitance];
    const auto unbiased = PointsOf([this](const MeasuredCapacitance& point)
                                   { return IsUnbiased(point.Volts, part.RatedVolts); });
    groups.push_back({.Name = "25 C, no bias",
                      .Told = PlainText(Quantity::Capacitance, reference) + ", " +
                              SignedPercent(reference / part.NominalPicofarads - 1, 1) + " of nominal",
                      .Points = unbiased.size(),
                      .Values = {{Value::NominalCapacitance, Value::NominalCapacitance}},
                      .IsSweep = true});
}

void Groups::AddBias()
{
    const double lost = -BiasChange(fitted.Row.Data, part.RatedVolts) / 100;
    FitGroup sweep{.Name = "over bias",
                   .Told = Percent(lost, 1) + " lost at " + Shortened(part.RatedVolts) + " V",
                   .Values = {Values::BiasPolynomial}};
    if (!story.Lent.OverBias.empty())
    {
        sweep.BorrowedFrom = story.Like;
        sweep.Told += ", beyond " + Shortened(sweeps.Biases.back().Most) + " V like " + story.Like;
    }
    AddSweep(std::move(sweep), [this](const MeasuredCapacitance& point)
             { return sweeps.BiasTemperature.Holds(point.Celsius); });
}

void Groups::AddTemperature()
{
    FitGroup sweep{.Name = "over temperature", .Told = {}};
    if (model == CapacitanceModel::Peaked)
    {
        sweep.Values = {Values::PeakedModel};
        sweep.Told = "peak at " + FixedNumber(fitted.Row.Data[Value::PeakTemperature], 1) + " C" +
                     (story.PeakIsTold   ? ""
                      : story.PeakIsLent ? ", moved by bias like " + story.Like
                                         : ", not moved by bias");
        sweep.BorrowedFrom = story.PeakIsLent ? story.Like : "";
    }
    else
    {
        sweep.Values = {Values::TemperaturePolynomial};
        sweep.Told = story.Degree == 0 ? "flat"
                                       : "degree " + std::to_string(story.Degree) +
                                             ", one left out: " + Percent(story.LeftOut, 2);
    }
    if (!story.Lent.OverTemperature.empty())
    {
        sweep.BorrowedFrom = story.Like;
        sweep.Told += ", outside " + EndsOf(sweeps.Temperatures) + " C like " + story.Like;
    }
    AddSweep(std::move(sweep),
             [this](const MeasuredCapacitance& point) { return IsUnbiased(point.Volts, part.RatedVolts); });
}

/// Sweeps over temperature under bias, and over bias at other temperatures, each with its own residual: a law
/// that does not hold for one of them shows there.
void Groups::AddOtherSweeps()
{
    const auto every = [](const MeasuredCapacitance&) { return true; };
    const auto& points = part.Measured.Capacitances;
    for (const auto& step : BiasesOf(points, part.RatedVolts, every))
    {
        const auto holds = [&step](const MeasuredCapacitance& point) { return step.Holds(point.Volts); };
        const auto temperatures = TemperaturesOf(points, holds);
        if (!IsUnbiased(step.Most, part.RatedVolts) && temperatures.size() >= PointsOfASweep)
        {
            AddSweep(
                {.Name = "at " + Shortened(step.Most) + " V",
                 .Told = CountText(temperatures.size(), "temperature") + ' ' + EndsOf(temperatures) + " C"},
                holds);
        }
    }
    for (const auto& step : TemperaturesOf(points, every))
    {
        const auto holds = [&step](const MeasuredCapacitance& point) { return step.Holds(point.Celsius); };
        const auto biases = BiasesOf(points, part.RatedVolts, holds);
        if (!step.Holds(sweeps.BiasTemperature.Least) && biases.size() >= PointsOfASweep)
        {
            AddSweep(
                {.Name = "at " + Shortened(step.Least) + " C",
                 .Told = CountText(biases.size(), "bias") + " to " + Shortened(biases.back().Most) + " V"},
                holds);
        }
    }
}

std::string Groups::RisesTold(const std::vector<MeasuredRise>& rises) const
{
    constexpr double Kilo = 1000;
    const auto heating = SweepsOf(rises);
    return CountText(rises.size(), "point") + ", " + EndsOf(heating.Frequencies, Kilo) + " kHz, ambient " +
           EndsOf(heating.Ambients) + " C";
}

/// "1/f, f seen" of the terms that are not zero.
std::string SeenTerms(const std::array<double, FrequencyTerms>& terms)
{
    constexpr std::array<std::string_view, FrequencyTerms> names = {"1/f", "1", "f"};
    std::string seen;
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        seen += terms[k] > 0 ? (seen.empty() ? "" : ", ") + std::string(names[k]) : "";
    }
    return std::ranges::all_of(terms, [](double term) { return term > 0; }) ? "all seen" : seen + " seen";
}

void Groups::AddCurrent()
{
    const auto count = fitted.RisesByCurrent.size();
    groups.push_back({.Name = "heating by current",
                      .Told = RisesTold(part.Measured.RisesByCurrent),
                      .Points = count,
                      .Residual = ResidualsOf(fitted.RisesByCurrent)});
    groups.push_back({.Name = "terms 1/f, 1, f",
                      .Told = story.LawIsLent ? "as of " + story.Like : SeenTerms(story.Current.Terms),
                      .Points = count,
                      .Values = {Values::CurrentHeating},
                      .BorrowedFrom = story.LawIsLent ? story.Like : "",
                      .Residual = ResidualsOf(fitted.RisesByCurrent),
                      .IsSweep = true});
    const bool isLent = story.LawIsLent || story.AmbientIsLent;
    const auto powers = story.Terms.TemperaturePowers;
    groups.push_back({.Name = "over ambient",
                      .Told = isLent        ? "as of " + story.Like
                              : powers == 0 ? "the same everywhere"
                              : powers == 1 ? "a line"
                                            : "a parabola",
                      .Points = count,
                      .Values = {Values::CurrentHeatingOverTemperature},
                      .BorrowedFrom = isLent ? story.Like : "",
                      .IsSweep = true});
}

void Groups::AddVoltage()
{
    const bool isMeasured = story.VoltageIsMeasured;
    groups.push_back({.Name = "heating by voltage",
                      .Told = isMeasured ? RisesTold(part.Measured.RisesByVoltage)
                                         : "worked out of current and capacitance",
                      .Points = fitted.RisesByVoltage.size(),
                      .Values = {Values::AmplitudeSurface, Values::FrequencyExponentSurface,
                                 Values::VoltageExponentSurface},
                      .Residual = ResidualsOf(fitted.RisesByVoltage)});
}
} // namespace

std::vector<FitGroup> GroupsOf(const FittedPart& fitted, const FitStory& story)
{
    return Groups(fitted, story).All();
}
