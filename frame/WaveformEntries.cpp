#include "frame/WaveformEntries.h"

#include "calc/NumberText.h"
#include "requests/RequestError.h"
#include "requests/RippleRequest.h"
#include "requests/UnitEntry.h"

#include <algorithm>
#include <array>

namespace
{
bool IsBlank(const std::string& typed)
{
    return typed.find_first_not_of(' ') == std::string::npos;
}

std::string WithPoint(std::string typed, bool commaIsDecimal)
{
    if (commaIsDecimal)
    {
        std::ranges::replace(typed, ',', '.');
    }
    return typed;
}

/// Reads one entry after the other, and notes which it is at.
class EntryReader
{
public:
    explicit EntryReader(bool commaIsDecimal)
        : commas(commaIsDecimal)
    {
    }

    /// The value as it is kept; a bare number is in this unit. Throws RequestError.
    double Value(std::string_view name, const std::string& typed, Quantity quantity,
                 const std::string& unit = {})
    {
        control = name;
        const auto text = WithPoint(typed);
        return StoredNumberInUnit(ReadEntry(text) ? text + unit : text, quantity);
    }

    /// A number without a unit. Throws RequestError.
    double Ratio(std::string_view name, const std::string& typed)
    {
        control = name;
        const auto ratio = ReadEntry(WithPoint(typed));
        if (!ratio)
        {
            throw RequestError(RequestErrorKind::NotANumber, "", '"' + typed + "\" is not a number");
        }
        return *ratio;
    }

    RefusedEntry Refused(const RequestError& error) const
    {
        return {.Control = control, .Message = error.Message()};
    }

private:
    std::string WithPoint(const std::string& typed) const { return ::WithPoint(typed, commas); }

    bool commas;
    std::string_view control;
};

bool HasTurns(const ConverterEntries& entries)
{
    return entries.Kind == ConverterKind::Flyback;
}

bool IsComplete(const ConverterEntries& entries)
{
    const std::array wanted = {&entries.Vin, &entries.Vout, &entries.Iout, &entries.Frequency,
                               &entries.Inductance};
    return std::ranges::none_of(wanted, [](const auto* typed) { return IsBlank(*typed); }) &&
           !(HasTurns(entries) && IsBlank(entries.Turns));
}

Converter Read(EntryReader& reader, const ConverterEntries& entries)
{
    return {.Kind = entries.Kind,
            .Vin = reader.Value("ConvVin", entries.Vin, Quantity::DCVoltage),
            .Vout = reader.Value("ConvVout", entries.Vout, Quantity::DCVoltage),
            .Iout = reader.Value("ConvIout", entries.Iout, Quantity::Current),
            .Hertz = reader.Value("ConvFrequency", entries.Frequency, Quantity::Frequency),
            .Henries = reader.Value("ConvInductance", entries.Inductance, Quantity::Inductance, "uH"),
            .Turns = HasTurns(entries) ? reader.Ratio("ConvTurns", entries.Turns) : 1};
}
/// An entry of a record: the key of its request, its control, and what is typed.
struct RecordEntry
{
    std::string_view Key;
    std::string_view Control;
    std::string RecordEntries::*Typed;
};

constexpr std::array<RecordEntry, 3> recordEntries = {{
    {"from", "WaveFrom", &RecordEntries::From},
    {"to", "WaveTo", &RecordEntries::To},
    {"period", "WavePeriod", &RecordEntries::Period},
}};
} // namespace

std::variant<StretchWishes, RefusedEntry> WishesOf(const RecordEntries& entries)
{
    // Which part bears the current does not matter to what counts of it.
    RippleTexts asked;
    asked.HasRecord = true;
    asked.Parts = {""};
    for (const RecordEntry& entry : recordEntries)
    {
        if (const auto& typed = entries.*entry.Typed; !IsBlank(typed))
        {
            asked.Values.emplace(entry.Key, WithPoint(typed, entries.CommaIsDecimal));
        }
    }
    try
    {
        return RippleRequestOf(asked).Wishes;
    }
    catch (const RequestError& error)
    {
        const auto entry = std::ranges::find(recordEntries, error.Key(), &RecordEntry::Key);
        return RefusedEntry{.Control = entry != recordEntries.end() ? entry->Control : "",
                            .Message = error.Message()};
    }
}

std::variant<Converter, RefusedEntry> ConverterOf(const ConverterEntries& entries)
{
    if (!IsComplete(entries))
    {
        return RefusedEntry{.Control = "", .Message = "Enter all data of the converter."};
    }
    EntryReader reader(entries.CommaIsDecimal);
    try
    {
        const auto converter = Read(reader, entries);
        if (const auto refusal = RefuseConverter(converter))
        {
            return RefusedEntry{.Control = "", .Message = std::string(*refusal)};
        }
        return converter;
    }
    catch (const RequestError& error)
    {
        return reader.Refused(error);
    }
}
