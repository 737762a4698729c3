#include "board/BomText.h"

#include "board/References.h"
#include "partdata/OneLine.h"
#include "partdata/Windows1252.h"
#include "requests/FourDigits.h"
#include "requests/ListText.h"
#include "requests/Names.h"

#include <array>
#include <charconv>
#include <cmath>

namespace
{
std::string Digits(double value)
{
    return FourDigits(static_cast<float>(value));
}

std::string Fixed(double value, int decimals)
{
    std::array<char, 400> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals).ptr;
    return {text.data(), end};
}

std::string OrHyphen(const std::string& text)
{
    return text.empty() ? "-" : WithoutControls(text);
}

/// "try 2 x KTS31NB51V106MA01 1206 X5R 10uF 35V (2.099uF, 25 %)".
std::string SuggestionText(const JudgedItem& item, const BomSettings& settings)
{
    if (!item.Suggestion)
    {
        return item.WasSuggested ? "; none passes" : "";
    }
    const auto& [part, count, least, reserve] = *item.Suggestion;
    const auto view = static_cast<std::size_t>(settings.View);
    return "; try " + (count > 1 ? std::to_string(count) + " x " : "") + NumberOf(*part, settings) + ' ' +
           Utf8FromWindows1252(part->SizeCode[view]) + ' ' + Utf8FromWindows1252(part->Tcc[view]) + ' ' +
           FaradsText(part->Data[Value::NominalCapacitance]) + ' ' + Digits(part->Data[Value::RatedVoltage]) +
           "V (" + (least ? FaradsText(*least) + ", " : "") + Digits(std::round(reserve)) + " %)";
}

ListRow RowOf(const JudgedItem& item, const BomSettings& settings)
{
    return {std::string(BomVerdictNames.at(static_cast<std::size_t>(item.Verdict))),
            OrHyphen(ReferenceText(item.Item->References)),
            OrHyphen(PartText(item, settings)),
            OrHyphen(item.Item->TextOf(BomField::Net)),
            item.Reserve ? PercentText(*item.Reserve) : "-",
            LeastText(item),
            RiseText(item),
            ReasonsText(item, settings)};
}

/// "net +12V: 3 parts, 20.1uF nominal, at least 10.87uF at 13.2 V, -10 C, 10uF wanted: warn (+8.7 %); 2.257
/// Arms shared".
std::string NetText(const JudgedNet& net)
{
    const auto name = "net " + WithoutControls(net.Name) + ": ";
    if (!net.Answer.Least)
    {
        return name + "no total: " + net.Reason + '\n';
    }
    auto text = name + std::to_string(net.Parts()) + (net.Parts() == 1 ? " part" : " parts") + ", " +
                FaradsText(net.Answer.Nominal) + " nominal, at least " + FaradsText(*net.Answer.Least) +
                " at " + PlaceText(net.Answer.LeastAt);
    if (net.Wanted)
    {
        text += ", " + FaradsText(*net.Wanted) +
                " wanted: " + std::string(BomVerdictNames.at(static_cast<std::size_t>(net.Verdict)));
    }
    if (net.Reserve)
    {
        text += " (" + std::string(*net.Reserve > 0 ? "+" : "") + PercentText(*net.Reserve) + ')';
    }
    text += net.Answer.Arms ? "; " + Digits(*net.Answer.Arms) + " Arms shared" : "";
    return text + (net.Reason.empty() ? "" : "; " + net.Reason) + '\n';
}
} // namespace

std::string ReasonsText(const JudgedItem& item, const BomSettings& settings)
{
    auto reasons = ListOf(item.Reasons, "; ");
    reasons += item.Near.empty() ? "" : "; near: " + ListOf(item.Near);
    return WithoutControls(reasons) + SuggestionText(item, settings);
}

std::string NumberOf(const PartRecord& part, const BomSettings& settings)
{
    return Utf8FromWindows1252(
        part.PartNum[static_cast<std::size_t>(settings.View) + settings.NumberingOffset]);
}

std::string PartText(const JudgedItem& item, const BomSettings& settings)
{
    return item.IsByValue ? NumberOf(*item.Part, settings) : item.Item->TextOf(BomField::Part);
}

std::string FaradsText(double picofarads)
{
    return CapacitanceInFourDigits(static_cast<float>(picofarads));
}

std::string PercentText(double percent)
{
    return Fixed(percent, 1) + " %";
}

std::string PlaceText(const Place& place)
{
    return Digits(place.BiasVolts) + " V, " + Digits(place.AmbientC) + " C";
}

std::string LeastText(const JudgedItem& item)
{
    const auto least = item.Figure(FoundColumn::EffectiveCapacitance);
    const auto left = item.Figure(FoundColumn::Left);
    return least && left ? FaradsText(*least) + ' ' + PercentText(*left) : "";
}

std::string RiseText(const JudgedItem& item)
{
    const auto* rise = item.Limit("rise");
    return rise == nullptr ? "" : Fixed(rise->Found, 2) + " C of " + Digits(rise->Wanted);
}

std::string CountsText(const JudgedBom& bom)
{
    std::string text;
    for (std::size_t i = 0; i < BomVerdictNames.size(); ++i)
    {
        text += (text.empty() ? "" : ", ") + std::to_string(bom.Counts.at(i)) + ' ' +
                std::string(BomVerdictNames.at(i));
    }
    return text + "; " + std::to_string(bom.Skipped) + (bom.Skipped == 1 ? " row" : " rows") + " skipped, " +
           std::to_string(bom.NotFitted) + " not fitted";
}

std::string BomText(const JudgedBom& bom, const BomSettings& settings)
{
    std::vector<ListRow> rows;
    for (const JudgedItem& item : bom.Items)
    {
        rows.push_back(RowOf(item, settings));
    }
    auto text = rows.empty()
                    ? std::string()
                    : AlignedTable(std::move(rows), {false, false, false, false, true, false, false, false});
    for (const JudgedNet& net : bom.Nets)
    {
        text += net.IsTold() ? NetText(net) : "";
    }
    return text + CountsText(bom) + '\n';
}
