#include "requests/BankFormats.h"

#include "calc/NumberText.h"
#include "partdata/AnswersVersion.h"
#include "requests/FourDigits.h"
#include "requests/ListText.h"
#include "simulation/BankWarnings.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cmath>

namespace
{
using Json = nlohmann::ordered_json;

std::string NameOf(const RequestedBank& bank, std::size_t piece, const CurveSettings& settings)
{
    return ShownPartNum(*bank.Question.Pieces[piece].Part, bank.Question.At.View, settings);
}

bool HasOneFrequency(const RequestedBank& bank)
{
    return bank.Question.Ripple.size() == 1;
}

// ---- The table ----

std::string Digits(double value)
{
    return FourDigits(static_cast<float>(value));
}

std::string Capacitance(double picofarads)
{
    return CapacitanceInFourDigits(static_cast<float>(picofarads));
}

std::string PiecesTable(const RequestedBank& bank, const CurveSettings& settings)
{
    std::vector<ListRow> rows = {{"PART", "COUNT", "TOLERANCE[%]", "CAPACITANCE", "WARM", "CURRENT[Arms]",
                                  "RISE[C]", "PERMITTED[C]", "MARGIN[C]", "WORST[Arms]", "WORST[C]",
                                  "BOUND[Vrms]"}};
    if (HasOneFrequency(bank))
    {
        rows.front().emplace_back("LOSS[mOhm]");
    }
    for (std::size_t i = 0; i < bank.Answer.Pieces.size(); ++i)
    {
        const BankPiece& asked = bank.Question.Pieces[i];
        const PieceOfBank& piece = bank.Answer.Pieces[i];
        rows.push_back({NameOf(bank, i, settings), std::to_string(asked.Count),
                        Digits(asked.TolerancePercent), Capacitance(piece.PicoFarads),
                        piece.WarmPicoFarads ? Capacitance(*piece.WarmPicoFarads) : "-", Digits(piece.Arms),
                        Digits(piece.Rise), Digits(piece.PermittedRise), Digits(piece.Margin),
                        Digits(piece.WorstArms), Digits(piece.WorstRise), Digits(piece.VoltageBound)});
        if (HasOneFrequency(bank))
        {
            rows.back().push_back(Digits(piece.Frequencies.front().LossResistance));
        }
    }
    std::vector<bool> areNumbers(rows.front().size(), true);
    areNumbers.front() = false;
    return AlignedTable(std::move(rows), areNumbers);
}

double WholeCurrent(const RequestedBank& bank)
{
    double amperes = 0;
    for (const RippleCurrent& ripple : bank.Question.Ripple)
    {
        amperes = std::hypot(amperes, double{ripple.Arms});
    }
    return amperes;
}

std::string BankTable(const RequestedBank& bank)
{
    std::vector<ListRow> rows = {
        {"FREQUENCY[kHz]", "CURRENT[Arms]", "CAPACITANCE", "LEAST", "LOSS[mOhm]", "RIPPLE[Vrms]"}};
    const auto least = Capacitance(bank.Answer.LeastPicoFarads);
    for (std::size_t i = 0; i < bank.Answer.Frequencies.size(); ++i)
    {
        const BankAtFrequency& at = bank.Answer.Frequencies[i];
        rows.push_back({Digits(at.Kilohertz), Digits(bank.Question.Ripple[i].Arms),
                        Capacitance(at.PicoFarads), least, Digits(at.LossResistance), Digits(at.Vrms)});
    }
    if (!HasOneFrequency(bank))
    {
        rows.push_back({"all", Digits(WholeCurrent(bank)), Capacitance(bank.Answer.PicoFarads), least, "-",
                        Digits(bank.Answer.Vrms)});
    }
    return AlignedTable(std::move(rows), std::vector<bool>(6, true));
}

std::string Table(const RequestedBank& bank, const CurveSettings& settings)
{
    return PiecesTable(bank, settings) + '\n' + BankTable(bank);
}

// ---- JSON ----

/// The number as a single, in its shortest text.
Json Number(double value)
{
    return Json::parse(NumberText(static_cast<float>(value)));
}

Json ConditionsJson(const BankQuestion& question)
{
    Json conditions = {{"dcBias", Number(question.At.BiasVolts.High)},
                       {"ambient", Number(question.At.AmbientC.High)}};
    if (question.At.HeatResistance)
    {
        conditions["heatResistance"] = Number(*question.At.HeatResistance);
    }
    for (const RippleCurrent& ripple : question.Ripple)
    {
        conditions["frequencies"].push_back(
            {{"frequency", Number(ripple.Kilohertz)}, {"current", Number(ripple.Arms)}});
    }
    return conditions;
}

Json PieceJson(const RequestedBank& bank, std::size_t index, const CurveSettings& settings)
{
    const BankPiece& asked = bank.Question.Pieces[index];
    const PieceOfBank& piece = bank.Answer.Pieces[index];
    Json object = {{"part", NameOf(bank, index, settings)},
                   {"count", asked.Count},
                   {"tolerance", Number(asked.TolerancePercent)},
                   {"capacitance", Number(piece.PicoFarads)},
                   {"warmCapacitance", piece.WarmPicoFarads ? Number(*piece.WarmPicoFarads) : Json()},
                   {"current", Number(piece.Arms)},
                   {"rise", Number(piece.Rise)},
                   {"permittedRise", Number(piece.PermittedRise)},
                   {"margin", Number(piece.Margin)},
                   {"voltageBound", Number(piece.VoltageBound)},
                   {"worstCurrent", Number(piece.WorstArms)},
                   {"worstRise", Number(piece.WorstRise)}};
    for (const PieceAtFrequency& at : piece.Frequencies)
    {
        object["frequencies"].push_back({{"frequency", Number(at.Kilohertz)},
                                         {"lossResistance", Number(at.LossResistance)},
                                         {"current", Number(at.Arms)}});
    }
    if (HasOneFrequency(bank))
    {
        object["lossResistance"] = Number(piece.Frequencies.front().LossResistance);
    }
    return object;
}

Json WholeJson(const RequestedBank& bank)
{
    Json object = {{"capacitance", Number(bank.Answer.PicoFarads)},
                   {"leastCapacitance", Number(bank.Answer.LeastPicoFarads)},
                   {"rippleVoltage", Number(bank.Answer.Vrms)}};
    for (const BankAtFrequency& at : bank.Answer.Frequencies)
    {
        object["frequencies"].push_back({{"frequency", Number(at.Kilohertz)},
                                         {"capacitance", Number(at.PicoFarads)},
                                         {"lossResistance", Number(at.LossResistance)},
                                         {"rippleVoltage", Number(at.Vrms)}});
    }
    if (HasOneFrequency(bank))
    {
        object["lossResistance"] = Number(bank.Answer.Frequencies.front().LossResistance);
    }
    return object;
}

std::string JsonText(const RequestedBank& bank, const CurveSettings& settings)
{
    Json object = {{"schemaVersion", AnswersVersion}, {"conditions", ConditionsJson(bank.Question)}};
    for (std::size_t i = 0; i < bank.Answer.Pieces.size(); ++i)
    {
        object["pieces"].push_back(PieceJson(bank, i, settings));
    }
    object["bank"] = WholeJson(bank);
    object["warnings"] = WarningLines(bank, settings);
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
}

// ---- Warnings ----

std::string WordsOf(const BankWarning& warning)
{
    const auto value = Digits(warning.Value);
    const auto permitted = Digits(warning.Permitted);
    switch (warning.Kind)
    {
    case BankWarningKind::Rise:
        return "rises by " + value + " C, above the " + permitted + " C permitted";
    case BankWarningKind::WorstRise:
        return "rises by up to " + value + " C within the tolerances, above the " + permitted +
               " C permitted";
    case BankWarningKind::Ripple:
        return "has a ripple voltage of " + value + " Vrms, above the " + permitted + " Vrms permitted";
    case BankWarningKind::Warmth:
        return "rises by " + value + " C instead of " + permitted +
               " C with each piece's capacitance at its own temperature";
    default:
        return "at " + value + " kHz an inductance of 1 nH would decide currents and ripple voltage";
    }
}
} // namespace

std::vector<std::string> WarningLines(const RequestedBank& bank, const CurveSettings& settings)
{
    std::vector<std::string> lines;
    for (const BankWarning& warning : WarningsOf(bank.Answer))
    {
        lines.push_back(NameOf(bank, warning.Piece, settings) + ": " + WordsOf(warning));
    }
    return lines;
}

std::span<const BankFormat> BankFormats()
{
    static constexpr std::array<BankFormat, 2> formats = {{
        {{"table", "if left out"}, Table},
        {{"json", ""}, JsonText},
    }};
    return formats;
}
