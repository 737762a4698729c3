#include "requests/RippleRequest.h"

#include "calc/NumberText.h"
#include "find/QuestionRules.h"
#include "requests/ConverterEntry.h"
#include "requests/Names.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"
#include "stress/WaveformTable.h"

#include <array>
#include <cmath>
#include <utility>

namespace
{
constexpr std::string_view recordGroup = "Waveform";
constexpr std::string_view converterGroup = "Converter in place of a waveform";
constexpr std::string_view pointGroup = "Operating point";

constexpr std::array<RippleKey, 16> keys = {{
    {"column", "NAME", "Column of the current, by its name or number", recordGroup},
    {"voltage", "NAME", "Column of the voltage, whose mean is the DC bias", recordGroup},
    {"from", "s", "Begin of what is looked at (left out: of the record)", recordGroup},
    {"to", "s", "End of what is looked at (left out: of the record)", recordGroup},
    {"period", "s|Hz", "Period or frequency (left out: found)", recordGroup},
    {"periods", "N", "The last so many periods", recordGroup},
    {"buck", "DATA", "\"vin=... vout=... iout=... f=... l=...\"", converterGroup},
    {"boost", "DATA", "\"vin=... vout=... iout=... f=... l=...\"", converterGroup},
    {"flyback", "DATA", "\"vin=... vout=... iout=... f=... l=... n=...\"", converterGroup},
    {"side", "SIDE", "input or output (left out: the one of pulses)", converterGroup},
    {"parallel", "N", "Equal parts that share the current (left out: 1)", pointGroup},
    {"dcBias", "V", "DC bias voltage (left out: 0; a converter's: that of its side)", pointGroup},
    {"ambient", "C", "Ambient temperature (left out: 25 in EIA, 20 in JIS code)", pointGroup},
    {"heatResistance", "C/W", "Heat resistance (left out: each part's own)", pointGroup},
    {"maxRise", "C", "Rise that is permitted (left out: the recommended one)", pointGroup},
    {"lines", "N", "So many lines of the current at most (left out: 10)", "Result"},
}};

/// Reads the texts one by one.
class RippleReader
{
public:
    explicit RippleReader(const RippleTexts& ripple)
        : typed(ripple)
    {
    }

    RippleRequest Read() const
    {
        const auto source = Source();
        Check(source.has_value());
        RippleRequest request{.Source = source,
                              .Side = std::nullopt,
                              .Column = TextOf("column"),
                              .Voltage = TextOf("voltage"),
                              .Wishes = Wishes(),
                              .Stress = Stress()};
        if (const auto side = TextOf("side"))
        {
            request.Side = ConverterSideOf(*side);
        }
        return request;
    }

private:
    std::optional<std::string> TextOf(std::string_view key) const
    {
        const auto found = typed.Values.find(key);
        return found != typed.Values.end() ? std::optional(found->second) : std::nullopt;
    }

    std::optional<Converter> Source() const
    {
        std::optional<Converter> source;
        for (const ConverterName& kind : ConverterNames)
        {
            const auto data = TextOf(kind.Name);
            if (data && source)
            {
                throw RequestError(RequestErrorKind::Syntax, "",
                                   "--buck, --boost and --flyback are several converters: leave one");
            }
            source = data ? std::optional(ConverterOf(kind.Id, *data)) : source;
        }
        return source;
    }

    void Check(bool isConverter) const
    {
        std::string fault;
        if (isConverter == typed.HasRecord)
        {
            fault = isConverter ? "ripple wants a waveform or a converter, not both"
                                : "ripple wants a waveform, or --buck, --boost or --flyback";
        }
        else if (!isConverter && typed.Parts.empty())
        {
            fault = "ripple wants --part";
        }
        else if (TextOf("voltage") && TextOf("dcBias"))
        {
            fault = "--voltage and --dc-bias are two biases: leave one out";
        }
        else if (typed.IsWhole && (TextOf("period") || TextOf("periods")))
        {
            fault = "--whole is one period: leave out --period and --periods";
        }
        if (!fault.empty())
        {
            throw RequestError(RequestErrorKind::Syntax, "", fault);
        }
        RefuseVain(isConverter);
    }

    /// What is asked of the other kind of source would change nothing.
    void RefuseVain(bool isConverter) const
    {
        for (const RippleKey& key : keys)
        {
            const bool isOfRecord = key.Group == recordGroup;
            const bool isVain = isConverter ? isOfRecord : key.Group == converterGroup;
            if (isVain && TextOf(key.Key))
            {
                RefuseVain(key.Key, isOfRecord);
            }
        }
        if (typed.IsWhole && isConverter)
        {
            RefuseVain("whole", true);
        }
    }

    [[noreturn]] static void RefuseVain(std::string_view key, bool isOfRecord)
    {
        throw RequestError(RequestErrorKind::Syntax, std::string(key),
                           isOfRecord ? "is for a waveform, not for a converter"
                                      : "is for a converter, not for a waveform");
    }

    std::optional<double> Seconds(const char* key) const
    {
        const auto text = TextOf(key);
        return text ? std::optional(StoredNumberInUnit(*text, Quantity::Time, key)) : std::nullopt;
    }

    /// "2us" or "500kHz" in s.
    std::optional<double> Period() const
    {
        const auto text = TextOf("period");
        if (!text || !RequestNameOf(*text).ends_with("hz"))
        {
            return Positive("period", Seconds("period"));
        }
        const auto hertz = Positive("period", StoredNumberInUnit(*text, Quantity::Frequency, "period"));
        return 1 / *hertz;
    }

    std::optional<double> Positive(const char* key, std::optional<double> value) const
    {
        if (value && !(*value > 0))
        {
            throw RequestError(RequestErrorKind::Condition, key, "Please enter a Number above 0")
                .Of(*TextOf(key));
        }
        return value;
    }

    std::optional<int> Count(const char* key, int most) const
    {
        const auto text = TextOf(key);
        if (!text)
        {
            return std::nullopt;
        }
        const auto value = ReadEntry(*text);
        if (!value)
        {
            throw RequestError(RequestErrorKind::NotANumber, key, '"' + *text + "\" is not a whole number");
        }
        if (*value < 1 || *value > static_cast<float>(most) || *value != std::trunc(*value))
        {
            throw RequestError(RequestErrorKind::Condition, key,
                               "Please enter a whole Number from 1 to " + std::to_string(most))
                .Of(*text);
        }
        return static_cast<int>(*value);
    }

    StretchWishes Wishes() const
    {
        constexpr int mostPeriods = 1'000'000'000;
        const auto periods = Count("periods", mostPeriods);
        return {.From = Seconds("from"),
                .To = Seconds("to"),
                .Period = Period(),
                .Periods = periods ? std::optional(static_cast<std::size_t>(*periods)) : std::nullopt,
                .IsWhole = typed.IsWhole};
    }

    std::optional<float> MostRise() const
    {
        const auto text = TextOf("maxRise");
        if (!text)
        {
            return std::nullopt;
        }
        FindQuestion question;
        question.Wanted.MostRise = ValueInUnit(*text, Quantity::TemperatureRise, "maxRise");
        if (const auto refusal = RefuseQuestion(question, 0))
        {
            throw RequestError(RequestErrorKind::Condition, "maxRise", refusal->Message).Of(*text);
        }
        return question.Wanted.MostRise;
    }

    StressRequest Stress() const
    {
        constexpr int mostLines = 100000;
        StressRequest stress{.Parts = typed.Parts,
                             .Conditions = {},
                             .MostRise = MostRise(),
                             .Parallel = Count("parallel", MostInParallel).value_or(1),
                             .Code = typed.Code};
        stress.MostLines =
            static_cast<std::size_t>(Count("lines", mostLines).value_or(static_cast<int>(stress.MostLines)));
        for (const Condition condition :
             {Condition::DCBias, Condition::AmbientTemperature, Condition::HeatResistance})
        {
            stress.Conditions[condition] = TextOf(KindOf(condition).Key);
        }
        return stress;
    }

    const RippleTexts& typed;
};

std::string BiasText(double volts)
{
    return NumberText(static_cast<float>(volts));
}

StressReport ReportOfSide(const Converter& converter, ConverterSide side)
{
    return {.Name = "", .Source = ConverterSource{converter, side}, .Load = LoadOfConverter(converter, side)};
}
} // namespace

std::span<const RippleKey> RippleKeys()
{
    return keys;
}

RippleRequest RippleRequestOf(const RippleTexts& typed)
{
    return RippleReader(typed).Read();
}

StressReport ReportOfRecord(std::string bytes, RippleRequest& request)
{
    const auto table = ReadWaveforms(std::move(bytes));
    const auto& column = ColumnOf(table, request.Column);
    const auto load = LoadOfRecord(table.WaveformOf(column), request.Wishes);
    if (request.Voltage)
    {
        const auto voltage = table.WaveformOf(ColumnOf(table, request.Voltage));
        // The way round in which it was probed does not matter, as with the current.
        request.Stress.Conditions[Condition::DCBias] =
            BiasText(std::abs(voltage.FiguresOf(load.Record->Counted.Span).Mean));
        request.Stress.BiasColumn = *request.Voltage;
    }
    return {.Name = column.Name, .Load = load};
}

std::vector<StressReport> ReportsOfConverter(RippleRequest& request)
{
    const Converter& converter = *request.Source;
    if (request.Stress.Parts.empty() && !request.Side)
    {
        return {ReportOfSide(converter, ConverterSide::Input),
                ReportOfSide(converter, ConverterSide::Output)};
    }
    const auto side = request.Side.value_or(KindOf(converter.Kind).PulsedSide);
    auto& bias = request.Stress.Conditions[Condition::DCBias];
    bias = bias.value_or(BiasText(converter.VoltageOf(side)));
    return {ReportOfSide(converter, side)};
}
