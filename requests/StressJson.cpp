#include "requests/StressFormats.h"

#include "calc/CheckedMath.h"
#include "calc/NumberText.h"
#include "partdata/AnswersVersion.h"

#include <nlohmann/json.hpp>

namespace
{
using Json = nlohmann::ordered_json;

constexpr double hertzPerKilohertz = 1e3;

/// The number as a single, in its shortest text. Throws RunTimeError 6 for one that no single holds.
Json Number(double value)
{
    const auto single = static_cast<float>(value);
    CheckedFinite(single);
    return Json::parse(NumberText(single));
}

Json NumberIf(const std::optional<double>& value)
{
    return value ? Number(*value) : Json();
}

Json Kilohertz(double hertz)
{
    return Number(hertz / hertzPerKilohertz);
}

Json WaveformJson(const StressReport& report)
{
    const RecordedLoad& record = *report.Load.Record;
    const Stretch& stretch = record.Counted;
    return {{"column", report.Name},
            {"points", record.Points},
            {"period", Number(stretch.Period)},
            {"periods", stretch.Periods},
            {"from", Number(stretch.Span.From)},
            {"to", Number(stretch.Span.To)},
            {"repeat", Number(stretch.Repeat)},
            {"stepError", NumberIf(report.StepError())},
            {"pointsPerPeriod", Number(record.PointsPerPeriod())}};
}

Json ConverterJson(const Converter& data)
{
    const auto coil = CoilOf(data);
    Json object = {{"kind", KindOf(data.Kind).Name},     {"vin", Number(data.Vin)},
                   {"vout", Number(data.Vout)},          {"iout", Number(data.Iout)},
                   {"frequency", Kilohertz(data.Hertz)}, {"inductance", Number(data.Henries)}};
    object["turns"] = data.Kind == ConverterKind::Flyback ? Number(data.Turns) : Json();
    object["dutyCycle"] = Number(coil.Charging);
    object["continuous"] = coil.IsContinuous;
    return object;
}

Json CurrentJson(const CurrentLoad& load)
{
    return {{"rms", Number(load.Arms())},
            {"mean", Number(load.Figures.Mean)},
            {"peak", Number(load.Peak())},
            {"peakToPeak", Number(load.Figures.Highest - load.Figures.Lowest)}};
}

Json EquivalentJson(const CurrentLoad& load)
{
    const auto sine = load.Lines.Moments.Total().Sine();
    return {{"current", Number(sine.Arms)}, {"frequency", Kilohertz(sine.Hertz)}};
}

Json MomentsJson(const CurrentLoad& load)
{
    const auto moments = load.Lines.Moments.Total();
    return {{"overFrequency", Number(moments.OverFrequency * hertzPerKilohertz)},
            {"square", Number(moments.Square)},
            {"timesFrequency", Kilohertz(moments.TimesFrequency)}};
}

Json LinesJson(const std::vector<StressLine>& lines)
{
    if (lines.empty())
    {
        return {};
    }
    Json list = Json::array();
    for (const StressLine& line : lines)
    {
        list.push_back({{"frequency", line.Hertz ? Kilohertz(*line.Hertz) : Json()},
                        {"current", Number(line.Arms)},
                        {"lossResistance", NumberIf(line.Milliohms)},
                        {"rise", Number(line.Rise)},
                        {"share", Number(line.Share)}});
    }
    return list;
}

Json PartJson(const std::string& name, const PartStress& stress)
{
    const auto volts = [&](double RippleVoltage::*value)
    { return stress.Ripple ? Number((*stress.Ripple).*value) : Json(); };
    return {{"part", name},
            {"dcBias", Number(stress.At.BiasVolts)},
            {"ambient", Number(stress.At.AmbientC)},
            {"heatResistance", Number(stress.At.HeatResistance)},
            {"rise", NumberIf(stress.Rise)},
            {"riseBelow", NumberIf(stress.RiseBelow)},
            {"riseAbove", NumberIf(stress.RiseAbove)},
            {"permittedRise", stress.LawRise ? Number(stress.PermittedRise) : Json()},
            {"margin", NumberIf(stress.Margin())},
            {"body", NumberIf(stress.Body())},
            {"allowedCurrent", NumberIf(stress.AllowedArms())},
            {"capacitance", NumberIf(stress.Capacitance)},
            {"warmCapacitance", NumberIf(stress.WarmCapacitance)},
            {"rippleVoltage", volts(&RippleVoltage::PeakToPeak)},
            {"peakVoltage", volts(&RippleVoltage::Highest)},
            {"lines", LinesJson(stress.Lines)}};
}

Json PartsJson(const StressReport& report, CodeView code, const CurveSettings& settings)
{
    Json list = Json::array();
    for (const StressedPart& part : report.Parts)
    {
        list.push_back(PartJson(ShownPartNum(*part.Part, code, settings), part.Stress));
    }
    return list;
}

/// What a current is, whatever the part.
void AddLoad(Json& object, const CurrentLoad& load)
{
    object["current"] = CurrentJson(load);
    object["equivalent"] = EquivalentJson(load);
    object["moments"] = MomentsJson(load);
}

Json SidesJson(std::span<const StressReport> reports)
{
    Json list = Json::array();
    for (const StressReport& report : reports)
    {
        Json side = {{"side", ConverterSideNames.at(static_cast<std::size_t>(report.Source->Side))}};
        AddLoad(side, report.Load);
        side["bankCurrent"] = BankCurrentOf(report.Load);
        list.push_back(side);
    }
    return list;
}
} // namespace

std::string StressJson(std::span<const StressReport> reports, CodeView code, const CurveSettings& settings)
{
    const StressReport& report = reports.front();
    Json object = {{"schemaVersion", AnswersVersion}};
    object["waveform"] = report.Load.Record ? WaveformJson(report) : Json();
    object["converter"] = report.Source ? ConverterJson(report.Source->Data) : Json();
    if (report.Source && report.Parts.empty())
    {
        object["sides"] = SidesJson(reports);
    }
    else
    {
        AddLoad(object, report.Load);
        object["parts"] = PartsJson(report, code, settings);
        object["bankCurrent"] = BankCurrentOf(report.Load);
    }
    object["warnings"] = WarningsOf(report, code, settings);
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
}
