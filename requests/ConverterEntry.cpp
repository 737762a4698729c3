#include "requests/ConverterEntry.h"

#include "calc/NumberText.h"
#include "requests/Names.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string>

namespace
{
/// One of a converter's data.
struct Datum
{
    std::string_view Name;
    Quantity Measures;
    double Converter::*Value;
};

constexpr std::array<Datum, 5> data = {{
    {"vin", Quantity::DCVoltage, &Converter::Vin},
    {"vout", Quantity::DCVoltage, &Converter::Vout},
    {"iout", Quantity::Current, &Converter::Iout},
    {"f", Quantity::Frequency, &Converter::Hertz},
    {"l", Quantity::Inductance, &Converter::Henries},
}};
constexpr std::string_view turnsName = "n";
constexpr std::string_view modeName = "mode";

/// Takes the words of a converter one by one.
class ConverterWords
{
public:
    ConverterWords(ConverterKind kind, std::string_view text)
        : key(KindOf(kind).Name)
        , typed(text)
        , hasTurns(kind == ConverterKind::Flyback)
    {
        converter.Kind = kind;
    }

    Converter Read()
    {
        std::istringstream words{std::string(typed)};
        for (std::string word; words >> word;)
        {
            Take(word);
        }
        for (const auto& name : Names())
        {
            if (name != modeName && !IsTaken(name))
            {
                Fail("there is no " + name + "=, for example vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH" +
                     (hasTurns ? " n=4" : ""));
            }
        }
        return converter;
    }

private:
    [[noreturn]] void Fail(const std::string& message) const
    {
        throw RequestError(RequestErrorKind::Syntax, std::string(key), message);
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const Datum& datum : data)
        {
            names.emplace_back(datum.Name);
        }
        if (hasTurns)
        {
            names.emplace_back(turnsName);
        }
        names.emplace_back(modeName);
        return names;
    }

    bool IsTaken(const std::string& name) const { return std::ranges::find(taken, name) != taken.end(); }

    void Take(const std::string& word)
    {
        const auto equals = std::min(word.find('='), word.size());
        const auto name = word.substr(0, equals);
        const auto names = Names();
        if (equals == word.size() || std::ranges::find(names, name) == names.end())
        {
            Fail('"' + word + "\" is none of: " + ListOf(names, "=, ") + '=');
        }
        if (IsTaken(name))
        {
            Fail(name + "= stands there twice");
        }
        taken.push_back(name);
        TakeValue(name, word.substr(equals + 1));
    }

    void TakeValue(const std::string& name, const std::string& value)
    {
        if (name == modeName)
        {
            if (value != "forced")
            {
                Fail("mode=" + value + " is not mode=forced");
            }
            converter.IsForced = true;
        }
        else if (name == turnsName)
        {
            const auto turns = ReadEntry(value);
            if (!turns)
            {
                Fail("n=" + value + " is not a number");
            }
            converter.Turns = *turns;
        }
        else
        {
            const auto datum = std::ranges::find(data, name, &Datum::Name);
            converter.*datum->Value = StoredNumberInUnit(value, datum->Measures, key);
        }
    }

    std::string_view key;
    std::string_view typed;
    bool hasTurns;
    Converter converter{};
    std::vector<std::string> taken;
};
} // namespace

Converter ConverterOf(ConverterKind kind, std::string_view typed)
{
    const auto converter = ConverterWords(kind, typed).Read();
    if (const auto refusal = RefuseConverter(converter))
    {
        throw RequestError(RequestErrorKind::Condition, std::string(KindOf(kind).Name), std::string(*refusal))
            .Of(std::string(typed));
    }
    return converter;
}

ConverterSide ConverterSideOf(std::string_view name)
{
    return static_cast<ConverterSide>(IndexOfName(name, ConverterSideNames, "side", "side"));
}
