#include "requests/StressFormats.h"

#include "calc/Bounds.h"
#include "requests/FourDigits.h"
#include "requests/ListText.h"
#include "stress/PrefixedText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace
{
constexpr double hertzPerKilohertz = 1e3;

/// A number with so many decimals; no zero is negative.
std::string Fixed(double value, int decimals)
{
    std::array<char, 400> text{};
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    const std::string number(text.data(), written.ptr);
    const bool isZero = number.find_first_not_of("-0.") == std::string::npos;
    return isZero && number.starts_with('-') ? number.substr(1) : number;
}

/// Four digits, as currents are typed; none of them zeros behind the point.
std::string Digits(double value)
{
    return FourDigits(static_cast<float>(value));
}

/// Three digits, but all of those before the point.
std::string ThreeDigits(double value)
{
    constexpr int digits = 3;
    if (std::abs(value) >= hertzPerKilohertz)
    {
        return Fixed(value, 0);
    }
    std::array<char, 32> text{};
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits);
    return {text.data(), written.ptr};
}

std::string Time(double seconds)
{
    constexpr int digits = 5;
    return PrefixedText(seconds, "s", digits);
}

std::string Percent(double share, int decimals)
{
    constexpr double percent = 100;
    return Fixed(share * percent, decimals) + " %";
}

/// "614 periods of 2.0000 us (500.00 kHz) from 272 us to 1.5 ms, repeat within 0.01 %, 155 points a period".
std::string RecordText(const RecordedLoad& record)
{
    constexpr int digits = 5;
    const Stretch& stretch = record.Counted;
    auto text = std::to_string(stretch.Periods) + (stretch.Periods == 1 ? " period of " : " periods of ") +
                PrefixedText(stretch.Period, "s", digits, true) + " (" +
                PrefixedText(1 / stretch.Period, "Hz", digits, true) + ") from " + Time(stretch.Span.From) +
                " to " + Time(stretch.Span.To);
    if (stretch.Periods > 1)
    {
        text += ", repeat within " + Percent(stretch.Repeat, 2);
    }
    return text + ", " + std::to_string(std::lround(record.PointsPerPeriod())) + " points a period";
}

std::string ConverterText(const ConverterSource& source)
{
    const Converter& data = source.Data;
    const auto coil = CoilOf(data);
    return PrefixedText(data.Vin, "V", 4) + " to " + PrefixedText(data.Vout, "V", 4) + ", " +
           PrefixedText(data.Iout, "A", 4) + ", " + PrefixedText(data.Hertz, "Hz", 4) + ", " +
           PrefixedText(data.Henries, "H", 4) + "; " + (coil.IsContinuous ? "continuous" : "discontinuous") +
           ", " + Percent(coil.Charging, 1) +
           " on\nall alternating current of this side is taken to flow through its "
           "capacitors, none through source, load or a bulk capacitor beside them";
}

std::string OptionalText(const std::optional<double>& value, const std::string& unit)
{
    return value ? ThreeDigits(*value) + ' ' + unit : "-";
}

std::string VoltsText(const std::optional<RippleVoltage>& ripple)
{
    return ripple ? PrefixedText(ripple->PeakToPeak, "V", 3) : "-";
}

std::string CapacitanceText(const std::optional<double>& picofarads)
{
    constexpr double faradsPerPicofarad = 1e-12;
    return picofarads ? PrefixedText(*picofarads * faradsPerPicofarad, "F", 3) : "-";
}

ListRow LineRow(const StressLine& line)
{
    constexpr int decimals = 4;
    return {"",
            line.Hertz ? Digits(*line.Hertz / hertzPerKilohertz) + " kHz" : "rest",
            Fixed(line.Arms, decimals) + " A",
            line.Milliohms ? Fixed(*line.Milliohms, 2) + " mOhm" : "",
            Fixed(line.Rise, decimals) + " C",
            Percent(line.Share, 1)};
}

std::string LinesText(const std::vector<StressLine>& lines)
{
    std::vector<ListRow> rows;
    for (const StressLine& line : lines)
    {
        if (line.Hertz || line.Rise > 0)
        {
            rows.push_back(LineRow(line));
        }
    }
    return AlignedTable(std::move(rows), std::vector<bool>(6, true));
}

std::string PartText(const StressedPart& part, CodeView code, const CurveSettings& settings)
{
    const PartStress& stress = part.Stress;
    const auto shared =
        stress.At.Parallel > 1 ? ", " + std::to_string(stress.At.Parallel) + " in parallel" : "";
    return ShownPartNum(*part.Part, code, settings) + shared + "   rise " + OptionalText(stress.Rise, "C") +
           ", body " + OptionalText(stress.Body(), "C") + ", permitted " + ThreeDigits(stress.PermittedRise) +
           " C, allowed " + OptionalText(stress.AllowedArms(), "Arms") + " of this shape; " +
           CapacitanceText(stress.Capacitance) + ", warm " + CapacitanceText(stress.WarmCapacitance) +
           ", ripple " + VoltsText(stress.Ripple) + '\n' + LinesText(stress.Lines);
}

std::string ReportText(const StressReport& report, CodeView code, const CurveSettings& settings)
{
    auto text = report.Title() + ": " + OriginText(report) + '\n' + CurrentText(report.Load);
    for (const StressedPart& part : report.Parts)
    {
        text += PartText(part, code, settings);
    }
    for (const auto& warning : WarningsOf(report, code, settings))
    {
        text += "warning: " + warning + '\n';
    }
    return text;
}
} // namespace

std::string OriginText(const StressReport& report)
{
    return report.Source ? ConverterText(*report.Source) : RecordText(*report.Load.Record);
}

std::string SwingText(const CurrentLoad& load)
{
    constexpr int decimals = 4;
    constexpr int swingDecimals = 3;
    return Fixed(load.Arms(), decimals) + " Arms, " +
           Fixed(load.Figures.Highest - load.Figures.Lowest, swingDecimals) + " A peak to peak" +
           (load.Record ? ", mean " + Fixed(load.Figures.Mean, decimals) + " A" : "");
}

std::string SineText(const EquivalentSine& sine)
{
    constexpr int decimals = 4;
    return Fixed(sine.Arms, decimals) + " Arms at " + Digits(sine.Hertz / hertzPerKilohertz) + " kHz";
}

bool CanBeTyped(const EquivalentSine& sine)
{
    return sine.Hertz >= LowestFrequencyHz && sine.Hertz <= HighestFrequencyHz;
}

std::string CurrentText(const CurrentLoad& load)
{
    constexpr int decimals = 4;
    const auto sine = load.Lines.Moments.Total().Sine();
    const auto typed = "   (find --current " + Fixed(sine.Arms, decimals) + "Arms --frequency " +
                       Digits(sine.Hertz / hertzPerKilohertz) + "kHz)";
    return "current   " + SwingText(load) + "\nheats like a sine of " + SineText(sine) +
           (CanBeTyped(sine) ? typed : "") + '\n';
}

std::string StressText(std::span<const StressReport> reports, CodeView code, const CurveSettings& settings)
{
    std::string text;
    for (const StressReport& report : reports)
    {
        text += (text.empty() ? "" : "\n") + ReportText(report, code, settings);
    }
    return text;
}
