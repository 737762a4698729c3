#include "board/BomJson.h"

#include "board/BomText.h"
#include "calc/NumberText.h"
#include "partdata/AnswersVersion.h"
#include "partdata/Windows1252.h"
#include "requests/Names.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace
{
using Json = nlohmann::ordered_json;

/// The number as a single, in its shortest text; null for what is not finite.
Json Number(double value)
{
    const auto single = static_cast<float>(value);
    return std::isfinite(single) ? Json::parse(NumberText(single)) : Json();
}

template <class Value> Json Number(const std::optional<Value>& value)
{
    return value ? Number(static_cast<double>(*value)) : Json();
}

Json TextOrNull(const std::string& text)
{
    return text.empty() ? Json() : Json(text);
}

Json RangeOf(const ConditionRange& range)
{
    return {{"low", Number(range.Low)}, {"high", Number(range.High)}};
}

Json NameOf(BomVerdict verdict)
{
    return BomVerdictNames.at(static_cast<std::size_t>(verdict));
}

// ---- Places ----

Json CapacitancePlace(const Place& place)
{
    return {{"dcBias", Number(place.BiasVolts)}, {"ambient", Number(place.AmbientC)}};
}

std::string_view KeyOf(Quantity condition)
{
    return condition == Quantity::DCVoltage     ? "dcBias"
           : condition == Quantity::Temperature ? "ambient"
                                                : "frequency";
}

Json PlaceOf(const JudgedItem& item, FoundPlace place)
{
    const auto conditions = item.Judged ? item.Judged->Figures.ConditionsAt(place) : std::nullopt;
    Json object;
    for (std::size_t i = 0; conditions && i < conditions->size(); ++i)
    {
        object[std::string(KeyOf(KindOf(place).Conditions[i]))] = Number((*conditions)[i]);
    }
    return object;
}

/// Where a net's current heats most; all its frequencies are there at once.
Json PlaceOfHeating(const JudgedItem& item, FoundPlace place, Place NetShare::*ofShare)
{
    return item.Share ? CapacitancePlace((*item.Share).*ofShare) : PlaceOf(item, place);
}

// ---- Rows ----

Json CurrentOf(const JudgedItem& item)
{
    const auto load = item.ToldQuestion().At.Load;
    return load ? Number(load->Value) : Json();
}

Json LimitsOf(const JudgedItem& item)
{
    auto limits = Json::array();
    for (const BomLimit& limit : item.Judged ? item.Judged->Limits : std::vector<BomLimit>())
    {
        limits.push_back({{"limit", limit.Name},
                          {"wanted", Number(limit.Wanted)},
                          {"found", Number(limit.Found)},
                          {"reserve", Number(limit.Reserve)}});
    }
    return limits;
}

Json SuggestionsOf(const JudgedItem& item, const BomSettings& settings)
{
    auto suggestions = Json::array();
    if (item.Suggestion)
    {
        const auto& [part, count, least, reserve] = *item.Suggestion;
        const auto view = static_cast<std::size_t>(settings.View);
        suggestions.push_back({{"part", NumberOf(*part, settings)},
                               {"count", count},
                               {"size", Utf8FromWindows1252(part->SizeCode[view])},
                               {"characteristic", Utf8FromWindows1252(part->Tcc[view])},
                               {"capacitance", Number(part->Data[Value::NominalCapacitance])},
                               {"ratedVoltage", Number(part->Data[Value::RatedVoltage])},
                               {"leastCapacitance", Number(least)},
                               {"reserve", Number(reserve)}});
    }
    return suggestions;
}

/// Of two columns with the same heading the first counts.
Json CellsOf(const BomItem& item, const BomTable& bill)
{
    const auto& texts = bill.Rows.at(item.Row).Cells;
    auto cells = Json::object();
    for (std::size_t i = 0; i < bill.Headings.size(); ++i)
    {
        cells.emplace(bill.Headings[i], i < texts.size() ? texts[i] : "");
    }
    return cells;
}

void AddConditions(Json& row, const JudgedItem& item)
{
    const auto& at = item.Question.Asked.At;
    row["net"] = TextOrNull(item.Item->TextOf(BomField::Net));
    row["parallel"] = item.Question.Parallel();
    row["dcBias"] = item.Question.HasBias ? RangeOf(at.BiasVolts) : Json();
    row["ambient"] = RangeOf(at.AmbientC);
    row["frequency"] = at.Kilohertz ? RangeOf(*at.Kilohertz) : Json();
    row["tolerance"] = {{"down", Number(at.Tolerance.Down)}, {"up", Number(at.Tolerance.Up)}};
    row["current"] = CurrentOf(item);
}

void AddFigures(Json& row, const JudgedItem& item)
{
    const auto figure = [&](FoundColumn column) { return Number(item.Figure(column)); };
    row["effectiveCapacitance"] = figure(FoundColumn::EffectiveCapacitance);
    row["leastAt"] = PlaceOf(item, FoundPlace::Least);
    row["mostCapacitance"] = figure(FoundColumn::MostCapacitance);
    row["mostAt"] = PlaceOf(item, FoundPlace::Most);
    row["left"] = figure(FoundColumn::Left);
    row["rise"] = figure(FoundColumn::Rise);
    row["riseAt"] = PlaceOfHeating(item, FoundPlace::Rise, &NetShare::RiseAt);
    row["permittedRise"] = figure(FoundColumn::PermittedRise);
    row["margin"] = figure(FoundColumn::Margin);
    row["marginAt"] = PlaceOfHeating(item, FoundPlace::Margin, &NetShare::MarginAt);
    row["body"] = figure(FoundColumn::Body);
    row["warmCapacitance"] = figure(FoundColumn::WarmCapacitance);
    row["lossResistance"] = figure(FoundColumn::LossResistance);
}

Json RowOf(const JudgedItem& item, const BomTable& bill, const BomSettings& settings)
{
    Json row = {{"line", item.Item->Line},         {"references", item.Item->References},
                {"count", item.Item->Parts()},     {"part", PartText(item, settings)},
                {"byValue", item.IsByValue},       {"verdict", NameOf(item.Verdict)},
                {"reserve", Number(item.Reserve)}, {"decides", TextOrNull(item.Decides)},
                {"reasons", item.Reasons}};
    AddConditions(row, item);
    AddFigures(row, item);
    row["limits"] = LimitsOf(item);
    row["near"] = item.Near;
    row["suggestions"] = SuggestionsOf(item, settings);
    row["cells"] = CellsOf(*item.Item, bill);
    const auto heating = item.Question.Asked.At.HeatingAmbientC();
    row["heatingAmbient"] =
        heating != item.Question.Asked.At.AmbientC && item.IsLoaded() ? RangeOf(heating) : Json();
    return row;
}

// ---- Nets ----

Json NetOf(const JudgedNet& net, const JudgedBom& bom, const BomSettings& settings)
{
    auto pieces = Json::array();
    auto shares = Json::array();
    for (std::size_t i = 0; i < net.Pieces.size(); ++i)
    {
        const JudgedItem& item = bom.Items.at(net.Items[i]);
        const Json piece = {{"part", PartText(item, settings)}, {"count", net.Pieces[i].Count}};
        pieces.push_back(piece);
        if (i < net.Answer.Shares.size())
        {
            shares.push_back(piece);
            shares.back()["current"] = Number(net.Answer.Shares[i].Arms);
            shares.back()["rise"] = Number(net.Answer.Shares[i].Rise);
        }
    }
    return {{"net", net.Name},
            {"pieces", pieces},
            {"nominal", net.Answer.Nominal > 0 ? Number(net.Answer.Nominal) : Json()},
            {"leastCapacitance", Number(net.Answer.Least)},
            {"leastAt", net.Answer.Least ? CapacitancePlace(net.Answer.LeastAt) : Json()},
            {"wanted", Number(net.Wanted)},
            {"verdict", NameOf(net.Verdict)},
            {"reserve", Number(net.Reserve)},
            {"current", Number(net.Answer.Arms)},
            {"shares", shares},
            {"reason", TextOrNull(net.Reason)}};
}

Json CountsOf(const JudgedBom& bom)
{
    Json counts;
    for (std::size_t i = 0; i < BomVerdictNames.size(); ++i)
    {
        counts[std::string(BomVerdictNames.at(i))] = bom.Counts.at(i);
    }
    counts["skipped"] = bom.Skipped;
    counts["notFitted"] = bom.NotFitted;
    return counts;
}
} // namespace

std::string BomJson(const CheckedBom& bom, const BomSettings& settings, const BomNames& names)
{
    Json answer = {{"schemaVersion", AnswersVersion},
                   {"bom", names.Bill},
                   {"conditions", TextOrNull(names.Conditions)},
                   {"counts", CountsOf(bom.Judged)},
                   {"conditionUnits",
                    {{"dcBias", ShownUnitOf(Quantity::DCVoltage)},
                     {"ambient", ShownUnitOf(Quantity::Temperature)},
                     {"frequency", ShownUnitOf(Quantity::Frequency)},
                     {"tolerance", "%"},
                     {"current", ShownUnitOf(Quantity::Current)}}},
                   {"rows", Json::array()},
                   {"nets", Json::array()},
                   {"warnings", Json::array()}};
    for (const JudgedItem& item : bom.Judged.Items)
    {
        answer["rows"].push_back(RowOf(item, bom.Bill, settings));
    }
    for (const JudgedNet& net : bom.Judged.Nets)
    {
        answer["nets"].push_back(NetOf(net, bom.Judged, settings));
    }
    for (const BomRemark& warning : bom.Warnings)
    {
        answer["warnings"].push_back(RemarkText(warning, names));
    }
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}
