#include "ownparts/PartFit.h"

#include "calc/Bounds.h"
#include "calc/Capacitance.h"
#include "calc/PowerModel.h"
#include "fit/PeakFit.h"
#include "fit/PolynomialFit.h"
#include "fit/VoltageFit.h"
#include "ownparts/FitGroups.h"
#include "ownparts/FitWarnings.h"
#include "ownparts/Likeness.h"
#include "ownparts/MeasurementNeeds.h"
#include "ownparts/Sweeps.h"
#include "partdata/RunTimeError.h"
#include "partfiles/PairCheck.h"
#include "partfiles/TablePair.h"

#include <algorithm>
#include <cmath>

namespace
{
/// Smaller rises are mostly the thermometer's own.
constexpr double LeastRise = 1;
/// A capacitance never falls below this share of that without bias.
constexpr double LeastShare = 1e-3;

std::size_t DropSmallRises(std::vector<MeasuredRise>& rises)
{
    return std::erase_if(rises, [](const MeasuredRise& rise) { return rise.Rise < LeastRise; });
}

/// Fits one part, law by law.
class PartFitter
{
public:
    PartFitter(MeasuredPart measured, const PartRecord* likePart)
        : like(likePart)
    {
        fitted.Measured = std::move(measured);
        fitted.Row.Names = part.Names;
    }

    PartFit Fit();

private:
    std::vector<std::string> Refuse();
    void FitCapacitance();
    void FitHeating();
    CurrentFit FitCurrentLaw();
    VoltageTerms DerivedTerms(const CurrentFit& current) const;
    double CapacitanceAt(double volts, double celsius) const;
    void Round();
    void CompareAll();
    std::vector<std::string> CheckRow();

    FittedPart fitted;
    const MeasuredPart& part = fitted.Measured;
    const PartRecord* like;
    FitStory story;
    CapacitanceModel model = CapacitanceModel::None;
    PartValues values{};
};

std::vector<std::string> PartFitter::Refuse()
{
    model = CapacitanceModelOf(RecordOf(fitted.Row));
    auto& measured = fitted.Measured.Measured;
    story.SmallRises = DropSmallRises(measured.RisesByCurrent) + DropSmallRises(measured.RisesByVoltage);
    if (like != nullptr)
    {
        if (const auto refusal = RefuseLike(part, *like))
        {
            return {*refusal};
        }
        story.Like = like->PartNum[0];
    }
    auto whole = part;
    if (like != nullptr && !measured.Capacitances.empty())
    {
        story.Lent = BorrowPoints(part, *like);
        for (const auto* points : {&story.Lent.OverBias, &story.Lent.OverTemperature})
        {
            whole.Measured.Capacitances.insert(whole.Measured.Capacitances.end(), points->begin(),
                                               points->end());
        }
    }
    return RefusalsOf(whole, model, like != nullptr);
}

PartFit PartFitter::Fit()
{
    if (auto refusals = Refuse(); !refusals.empty())
    {
        return {{}, std::move(refusals)};
    }
    values[Value::Capacitance] = values[Value::NominalCapacitance] = part.NominalPicofarads;
    values[Value::RatedVoltage] = part.RatedVolts;
    if (!part.Measured.Capacitances.empty())
    {
        FitCapacitance();
    }
    if (!part.Measured.RisesByCurrent.empty())
    {
        FitHeating();
    }
    Round();
    if (auto refusals = CheckRow(); !refusals.empty())
    {
        return {{}, std::move(refusals)};
    }
    CompareAll();
    fitted.Groups = GroupsOf(fitted, story);
    AddWarnings(fitted, story);
    return {std::move(fitted), {}};
}

void PartFitter::FitCapacitance()
{
    auto points = part.Measured.Capacitances;
    for (const auto* lent : {&story.Lent.OverBias, &story.Lent.OverTemperature})
    {
        points.insert(points.end(), lent->begin(), lent->end());
    }
    if (model == CapacitanceModel::Polynomial)
    {
        const auto fit = FitPolynomial(points, part.RatedVolts);
        story.Degree = fit.Degree;
        story.LeftOut = fit.LeftOut;
        WritePolynomialFit(fit, part.RatedVolts, values);
        return;
    }
    story.PeakIsTold = !SweepsOf(part.Measured.Capacitances, part.RatedVolts).TemperaturesUnderBias.empty();
    story.PeakIsLent = !story.PeakIsTold && like != nullptr;
    std::optional<PeakByBias> known;
    if (!story.PeakIsTold)
    {
        known = story.PeakIsLent ? BorrowPeakByBias(*like) : PeakByBias{};
    }
    WritePeakFit(FitPeak(points, part.RatedVolts, known), part.RatedVolts, values);
}

CurrentFit PartFitter::FitCurrentLaw()
{
    const auto& rises = part.Measured.RisesByCurrent;
    story.LawIsLent = !TellsFrequencyTerms(part);
    if (story.LawIsLent)
    {
        return BorrowCurrentLaw(rises, *like);
    }
    story.Terms = TermsToldBy(part);
    const auto fit = FitCurrent(rises, story.Terms, part.UpperC);
    story.AmbientIsLent = story.Terms.TemperaturePowers == 0 && like != nullptr;
    return story.AmbientIsLent ? BorrowAmbient(fit, SweepsOf(rises).Ambients.front().Least, *like) : fit;
}

void PartFitter::FitHeating()
{
    const auto current = FitCurrentLaw();
    story.Current = current;
    WriteCurrentFit(current, values);
    values[Value::HeatResistance] = part.HeatResistance;
    values[Value::UpperTemperature] = part.UpperC;
    story.VoltageIsMeasured = TellsVoltageLaw(part);
    const auto derived = DerivedTerms(current);
    WriteVoltageTerms(story.VoltageIsMeasured
                          ? FitVoltageTerms(part.Measured.RisesByVoltage, part.RatedVolts, derived)
                          : derived,
                      values);
}

double PartFitter::CapacitanceAt(double volts, double celsius) const
{
    const double nominal = values[Value::NominalCapacitance];
    if (part.Measured.Capacitances.empty())
    {
        return nominal;
    }
    auto row = fitted.Row;
    std::ranges::transform(values, row.Data.begin(), [](double value) { return static_cast<float>(value); });
    const auto& range = FindCharacteristic(row.Names[FirstTccField])->RangeIn(CodeView::Eia);
    const double inRange = std::clamp<double>(celsius, range.MinC, range.MaxC);
    return std::max(CapacitancePointAt(RecordOf(row), volts, inRange, CodeView::Eia)->PicoFarads,
                    LeastShare * nominal);
}

VoltageTerms PartFitter::DerivedTerms(const CurrentFit& current) const
{
    constexpr double FaradsOfPico = 1e-12;
    const double reference = CapacitanceAt(0, double{EiaReferenceC});
    return VoltageTermsOf(
        {.SeriesOhms = [&](double hz, double t)
         { return current.At(hz, t + double{HeatingReferenceC}) / part.HeatResistance; },
         .HeatResistance = part.HeatResistance,
         .Farads = reference * FaradsOfPico,
         .OverBias = [&](double r)
         { return CapacitanceAt(r * part.RatedVolts, double{EiaReferenceC}) / reference; },
         .OverTemperature = [&](double celsius) { return CapacitanceAt(0, celsius) / reference; },
         .Exponent = {2, 0, 0},
         .HighestC = part.UpperC});
}

void PartFitter::Round()
{
    // No value is a negative zero.
    std::ranges::transform(values, fitted.Row.Data.begin(),
                           [](double value) { return static_cast<float>(value) + 0.0F; });
}

void PartFitter::CompareAll()
{
    const auto record = RecordOf(fitted.Row);
    for (const auto& point : part.Measured.Capacitances)
    {
        const auto shown = CapacitancePointAt(record, point.Volts, point.Celsius, CodeView::Eia);
        fitted.Capacitances.push_back({point.Line, point.Picofarads, shown->PicoFarads});
    }
    const auto modelAt = [&](const MeasuredRise& rise)
    {
        return PowerModelOf(record, static_cast<float>(rise.Volts), static_cast<float>(rise.Celsius),
                            record.Data[Value::HeatResistance]);
    };
    for (const auto& rise : part.Measured.RisesByCurrent)
    {
        fitted.RisesByCurrent.push_back(
            {rise.Line, rise.Rise, modelAt(rise).kI(rise.Hz) * rise.Load * rise.Load});
    }
    for (const auto& rise : part.Measured.RisesByVoltage)
    {
        const auto power = modelAt(rise);
        fitted.RisesByVoltage.push_back(
            {rise.Line, rise.Rise, power.kV(rise.Hz) * std::pow(rise.Load, power.S3)});
    }
}

std::vector<std::string> PartFitter::CheckRow()
{
    TableContents table;
    table.Parts.push_back(fitted.Row);
    const auto pair = PairOf(table);
    std::vector<std::string> refusals;
    for (const auto& finding : CheckPair({"index", pair.Index}, {"data", pair.Data}).Findings)
    {
        auto& told = finding.Level == Severity::Error ? refusals : story.Findings;
        told.push_back(finding.Message);
    }
    return refusals;
}
} // namespace

PartFit FitPart(MeasuredPart part, const PartRecord* like)
{
    return PartFitter(std::move(part), like).Fit();
}
