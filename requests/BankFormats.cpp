#include "requests/BankFormats.h"

#include "calc/NumberText.h"
#include "find/LeftOut.h"
#include "partdata/AnswersVersion.h"
#include "requests/FourDigits.h"
#include "requests/ListJson.h"
#include "requests/ListText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>

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

double KilohertzOf(const Place& place)
{
    return place.Hertz / KindOf(Quantity::Frequency).StoredPerShown;
}

// ---- The table ----

std::string Digits(double value)
{
    return FourDigits(static_cast<float>(value));
}

/// "300", "270..330".
std::string RangeText(const ConditionRange& range)
{
    return range.IsPoint() ? Digits(range.Low) : Digits(range.Low) + ".." + Digits(range.High);
}

std::string Capacitance(double picofarads)
{
    return CapacitanceInFourDigits(static_cast<float>(picofarads));
}

/// "10", or "-20/+80" where the ends differ.
std::string ToleranceText(const CapacitanceTolerance& tolerance)
{
    return tolerance.Down == tolerance.Up ? Digits(tolerance.Up)
                                          : '-' + Digits(tolerance.Down) + "/+" + Digits(tolerance.Up);
}

/// "5.5V 65C", with "270kHz" for a place of heating.
std::string PlaceText(const RequestedBank& bank, const Place& place, bool isOfHeating)
{
    const auto text = Digits(place.BiasVolts) + "V " + Digits(place.AmbientC) + 'C';
    return isOfHeating && HasOneFrequency(bank) ? text + ' ' + Digits(KilohertzOf(place)) + "kHz" : text;
}

/// A column of the pieces; its text is that of the piece of a place in their order.
struct PieceColumn
{
    std::string_view Heading;
    bool IsNumber;
    std::function<std::string(std::size_t)> Text;
};

/// What is worked out of each piece, over ranges with the places where it occurs.
void AddValueColumns(std::vector<PieceColumn>& columns, const RequestedBank& bank)
{
    const bool isPoint = bank.Question.IsPoint();
    const auto& pieces = bank.Answer.Pieces;
    const auto add = [&](std::string_view heading, double PieceOfBank::*told) {
        columns.push_back({heading, true, [=, &pieces](std::size_t i) { return Digits(pieces[i].*told); }});
    };
    const auto addPlace = [&](Place PieceOfBank::*place, bool isOfHeating)
    {
        if (!isPoint)
        {
            columns.push_back({"AT", false, [=, &bank, &pieces](std::size_t i) {
                                   return PlaceText(bank, pieces[i].*place, isOfHeating);
                               }});
        }
    };
    columns.push_back({isPoint ? "CAPACITANCE" : "LEAST", true,
                       [&](std::size_t i) { return Capacitance(pieces[i].PicoFarads); }});
    addPlace(&PieceOfBank::LeastAt, false);
    columns.push_back({"WARM", true, [&](std::size_t i) {
                           return pieces[i].WarmPicoFarads ? Capacitance(*pieces[i].WarmPicoFarads) : "-";
                       }});
    add("CURRENT[Arms]", &PieceOfBank::Arms);
    add("RISE[C]", &PieceOfBank::Rise);
    addPlace(&PieceOfBank::RiseAt, true);
    add("PERMITTED[C]", &PieceOfBank::PermittedRise);
    add("MARGIN[C]", &PieceOfBank::Margin);
    addPlace(&PieceOfBank::MarginAt, true);
    add("WORST[Arms]", &PieceOfBank::WorstArms);
    add("WORST[C]", &PieceOfBank::WorstRise);
    addPlace(&PieceOfBank::WorstRiseAt, true);
    add("BOUND[Vrms]", &PieceOfBank::VoltageBound);
    if (HasOneFrequency(bank))
    {
        columns.push_back({"LOSS[mOhm]", true, [&](std::size_t i) {
                               return Digits(pieces[i].Frequencies.front().LossResistance);
                           }});
    }
}

std::string PiecesTable(const RequestedBank& bank, const CurveSettings& settings)
{
    std::vector<PieceColumn> columns = {
        {"PART", false, [&](std::size_t i) { return NameOf(bank, i, settings); }},
        {"COUNT", true, [&](std::size_t i) { return std::to_string(bank.Question.Pieces[i].Count); }},
        {"TOLERANCE[%]", true,
         [&](std::size_t i) { return ToleranceText(bank.Question.Pieces[i].Tolerance); }},
    };
    AddValueColumns(columns, bank);
    std::vector<ListRow> rows(1 + bank.Answer.Pieces.size());
    std::vector<bool> areNumbers;
    for (const PieceColumn& column : columns)
    {
        rows.front().emplace_back(column.Heading);
        areNumbers.push_back(column.IsNumber);
        for (std::size_t i = 0; i < bank.Answer.Pieces.size(); ++i)
        {
            rows[i + 1].push_back(column.Text(i));
        }
    }
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
    const bool isPoint = bank.Question.IsPoint();
    std::vector<ListRow> rows = {{"FREQUENCY[kHz]", "CURRENT[Arms]", "CAPACITANCE", "LEAST"}};
    ListRow least = {Capacitance(bank.Answer.LeastPicoFarads)};
    if (!isPoint)
    {
        rows.front().emplace_back("AT");
        least.push_back(PlaceText(bank, bank.Answer.LeastAt, false));
    }
    const auto add = [&](ListRow row, const std::string& loss, double vrms)
    {
        row.insert(row.end(), least.begin(), least.end());
        row.insert(row.end(), {loss, Digits(vrms)});
        rows.push_back(std::move(row));
    };
    rows.front().insert(rows.front().end(), {"LOSS[mOhm]", "RIPPLE[Vrms]"});
    for (std::size_t i = 0; i < bank.Answer.Frequencies.size(); ++i)
    {
        const BankAtFrequency& at = bank.Answer.Frequencies[i];
        add({RangeText(at.Kilohertz), Digits(bank.Question.Ripple[i].Arms), Capacitance(at.PicoFarads)},
            Digits(at.LossResistance), at.Vrms);
    }
    if (!HasOneFrequency(bank))
    {
        add({"all", Digits(WholeCurrent(bank)), Capacitance(bank.Answer.PicoFarads)}, "-", bank.Answer.Vrms);
    }
    std::vector<bool> areNumbers(rows.front().size(), true);
    areNumbers[4] = isPoint;
    return AlignedTable(std::move(rows), areNumbers);
}

std::string Table(const RequestedBank& bank, const CurveSettings& settings)
{
    return PiecesTable(bank, settings) + '\n' + BankTable(bank);
}

// ---- JSON ----

/// A number, or both ends of a range.
Json RangeJson(const ConditionRange& range)
{
    return range.IsPoint() ? JsonNumber(range.Low)
                           : Json{{"low", JsonNumber(range.Low)}, {"high", JsonNumber(range.High)}};
}

/// A number, or both ends where they differ.
Json ToleranceJson(const CapacitanceTolerance& tolerance)
{
    return tolerance.Down == tolerance.Up
               ? JsonNumber(tolerance.Up)
               : Json{{"down", JsonNumber(tolerance.Down)}, {"up", JsonNumber(tolerance.Up)}};
}

Json PlaceJson(const RequestedBank& bank, const Place& place, bool isOfHeating)
{
    Json object = {{"dcBias", JsonNumber(place.BiasVolts)}, {"ambient", JsonNumber(place.AmbientC)}};
    if (isOfHeating && HasOneFrequency(bank))
    {
        object["frequency"] = JsonNumber(KilohertzOf(place));
    }
    return object;
}

Json ConditionsJson(const BankQuestion& question)
{
    Json conditions = {{"dcBias", RangeJson(question.At.BiasVolts)},
                       {"ambient", RangeJson(question.At.AmbientC)}};
    if (question.At.HeatResistance)
    {
        conditions["heatResistance"] = JsonNumber(*question.At.HeatResistance);
    }
    for (const RippleCurrent& ripple : question.Ripple)
    {
        conditions["frequencies"].push_back(
            {{"frequency", RangeJson(ripple.Kilohertz)}, {"current", JsonNumber(ripple.Arms)}});
    }
    if (const auto heating = question.At.HeatingAmbientC(); heating != question.At.AmbientC)
    {
        conditions["heatingAmbient"] = RangeJson(heating);
    }
    return conditions;
}

Json PieceJson(const RequestedBank& bank, std::size_t index, const CurveSettings& settings)
{
    const BankPiece& asked = bank.Question.Pieces[index];
    const PieceOfBank& piece = bank.Answer.Pieces[index];
    Json object = {{"part", NameOf(bank, index, settings)},
                   {"count", asked.Count},
                   {"tolerance", ToleranceJson(asked.Tolerance)},
                   {"capacitance", JsonNumber(piece.PicoFarads)},
                   {"warmCapacitance", piece.WarmPicoFarads ? JsonNumber(*piece.WarmPicoFarads) : Json()},
                   {"current", JsonNumber(piece.Arms)},
                   {"rise", JsonNumber(piece.Rise)},
                   {"permittedRise", JsonNumber(piece.PermittedRise)},
                   {"margin", JsonNumber(piece.Margin)},
                   {"voltageBound", JsonNumber(piece.VoltageBound)},
                   {"worstCurrent", JsonNumber(piece.WorstArms)},
                   {"worstRise", JsonNumber(piece.WorstRise)}};
    for (const PieceAtFrequency& at : piece.Frequencies)
    {
        object["frequencies"].push_back({{"frequency", RangeJson(at.Kilohertz)},
                                         {"lossResistance", JsonNumber(at.LossResistance)},
                                         {"current", JsonNumber(at.Arms)}});
    }
    if (HasOneFrequency(bank))
    {
        object["lossResistance"] = JsonNumber(piece.Frequencies.front().LossResistance);
    }
    if (!bank.Question.IsPoint())
    {
        object["leastAt"] = PlaceJson(bank, piece.LeastAt, false);
        object["riseAt"] = PlaceJson(bank, piece.RiseAt, true);
        object["marginAt"] = PlaceJson(bank, piece.MarginAt, true);
        object["worstRiseAt"] = PlaceJson(bank, piece.WorstRiseAt, true);
    }
    return object;
}

Json WholeJson(const RequestedBank& bank)
{
    Json object = {{"capacitance", JsonNumber(bank.Answer.PicoFarads)},
                   {"leastCapacitance", JsonNumber(bank.Answer.LeastPicoFarads)},
                   {"rippleVoltage", JsonNumber(bank.Answer.Vrms)}};
    for (const BankAtFrequency& at : bank.Answer.Frequencies)
    {
        object["frequencies"].push_back({{"frequency", RangeJson(at.Kilohertz)},
                                         {"capacitance", JsonNumber(at.PicoFarads)},
                                         {"lossResistance", JsonNumber(at.LossResistance)},
                                         {"rippleVoltage", JsonNumber(at.Vrms)}});
    }
    if (HasOneFrequency(bank))
    {
        object["lossResistance"] = JsonNumber(bank.Answer.Frequencies.front().LossResistance);
    }
    if (!bank.Question.IsPoint())
    {
        object["leastAt"] = PlaceJson(bank, bank.Answer.LeastAt, false);
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
    for (const BankWarning& warning : bank.Warnings)
    {
        lines.push_back(NameOf(bank, warning.Piece, settings) + ": " + WordsOf(warning));
    }
    return lines;
}

std::vector<std::string> BankNotes(const RequestedBank& bank, const CurveSettings& settings)
{
    std::vector<std::string> notes;
    std::ranges::transform(WarningLines(bank, settings), std::back_inserter(notes),
                           [](const std::string& line) { return "warning: " + line; });
    if (const auto note = NoteOnHeating(bank.Question.At); !note.empty())
    {
        notes.emplace_back(note);
    }
    return notes;
}

std::span<const BankFormat> BankFormats()
{
    static constexpr std::array<BankFormat, 2> formats = {{
        {{"table", "if left out"}, Table},
        {{"json", ""}, JsonText},
    }};
    return formats;
}
