#include "requests/LikeList.h"

#include "calc/NumberText.h"
#include "find/Appearances.h"
#include "partdata/AnswersVersion.h"
#include "partdata/Windows1252.h"
#include "requests/FourDigits.h"
#include "requests/ListJson.h"
#include "requests/ListText.h"
#include "requests/SortKeys.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>

namespace
{
using Json = nlohmann::ordered_json;

/// In the order of the columns.
constexpr std::array<std::string_view, 9> columnNames = {
    "part",        "size",       "characteristic", "capacitance", "rated-voltage",
    "least-ratio", "most-ratio", "loss-ratio",     "area",
};

/// As singles are told.
using Told = std::optional<float>;

std::string NameOf(const LikePart& like, LikeColumn column, CodeView code, const CurveSettings& settings)
{
    const auto naming = static_cast<std::size_t>(code);
    switch (column)
    {
    case LikeColumn::Part:
        return ShownPartNum(*like.Part, code, settings);
    case LikeColumn::Size:
        return Utf8FromWindows1252(like.Part->SizeCode[naming]);
    default:
        return Utf8FromWindows1252(like.Part->Tcc[naming]);
    }
}

constexpr std::array nameColumns = {LikeColumn::Part, LikeColumn::Size, LikeColumn::Characteristic};

/// Those that fit; where none does, the nearest.
const std::vector<LikePart>& ListedOf(const LikeParts& found)
{
    return found.Parts.empty() ? found.Nearest : found.Parts;
}

std::string CapacitancePlace(const Extreme& extreme)
{
    return FourDigits(static_cast<float>(extreme.At.BiasVolts)) + "V " +
           FourDigits(static_cast<float>(extreme.At.AmbientC)) + 'C';
}

float KilohertzOf(const Extreme& extreme)
{
    return ShownValue(Quantity::Frequency, extreme.At.Hertz);
}

std::string LossPlace(const std::optional<Extreme>& loss)
{
    return loss ? FourDigits(static_cast<float>(loss->At.AmbientC)) + "C " + FourDigits(KilohertzOf(*loss)) +
                      "kHz"
                : "-";
}

ListRow TableRow(const LikePart& like, const LikeQuestion& question, const CurveSettings& settings)
{
    ListRow row;
    for (const LikeColumn column : nameColumns)
    {
        row.push_back(NameOf(like, column, question.View, settings));
    }
    const auto area = ValueOf(like, LikeColumn::Area);
    const ListRow values = {CapacitanceInFourDigits(like.Part->Data[Value::Capacitance]),
                            FourDigits(like.Part->Data[Value::RatedVoltage]),
                            RatioText(ValueOf(like, LikeColumn::LeastRatio)),
                            CapacitancePlace(like.Least),
                            RatioText(ValueOf(like, LikeColumn::MostRatio)),
                            CapacitancePlace(like.Most),
                            RatioText(ValueOf(like, LikeColumn::LossRatio)),
                            LossPlace(like.Loss),
                            area ? FourDigits(*area) : "-"};
    row.insert(row.end(), values.begin(), values.end());
    return row;
}

std::string Table(const LikeParts& found, const LikeQuestion& question, const CurveSettings& settings)
{
    std::vector<ListRow> rows = {{"PART", "SIZE", "TCC", "CAPACITANCE", "RATED[V]", "LEAST[%]", "AT",
                                  "MOST[%]", "AT", "LOSS[%]", "AT", "AREA[mm2]"}};
    std::vector<bool> areNumbers = {false, false, false, true, true,  true,
                                    false, true,  false, true, false, true};
    for (const LikePart& like : ListedOf(found))
    {
        rows.push_back(TableRow(like, question, settings));
    }
    if (found.Parts.empty() && !found.Nearest.empty())
    {
        areNumbers.push_back(false);
        rows[0].emplace_back("MARK");
        std::for_each(rows.begin() + 1, rows.end(), [](ListRow& row) { row.emplace_back("short"); });
    }
    return AlignedTable(std::move(rows), areNumbers);
}

std::string FullText(const Told& value)
{
    return value ? NumberText(*value) : "";
}

ListRow CsvRow(const LikePart& like, const LikeQuestion& question, const CurveSettings& settings)
{
    ListRow row;
    for (const LikeColumn column : nameColumns)
    {
        row.push_back(NameOf(like, column, question.View, settings));
    }
    const auto full = [](double value) { return NumberText(static_cast<float>(value)); };
    row.push_back(FullText(ValueOf(like, LikeColumn::Capacitance)));
    row.push_back(FullText(ValueOf(like, LikeColumn::RatedVoltage)));
    for (const Extreme& extreme : {like.Least, like.Most})
    {
        row.insert(row.end(), {full(extreme.Value), full(extreme.At.BiasVolts), full(extreme.At.AmbientC)});
    }
    row.push_back(FullText(ValueOf(like, LikeColumn::LossRatio)));
    row.push_back(like.Loss ? full(like.Loss->At.AmbientC) : "");
    row.push_back(like.Loss ? NumberText(KilohertzOf(*like.Loss)) : "");
    row.push_back(FullText(ValueOf(like, LikeColumn::Area)));
    return row;
}

std::string Csv(const LikeParts& found, const LikeQuestion& question, const CurveSettings& settings)
{
    std::vector<ListRow> rows = {{"part", "size", "characteristic", "capacitance [pF]", "rated voltage [V]",
                                  "least ratio [%]", "least at bias [V]", "least at ambient [°C]",
                                  "most ratio [%]", "most at bias [V]", "most at ambient [°C]",
                                  "loss ratio [%]", "loss at ambient [°C]", "loss at frequency [kHz]",
                                  "area [mm²]", "mark"}};
    for (const LikePart& like : ListedOf(found))
    {
        rows.push_back(CsvRow(like, question, settings));
        rows.back().emplace_back(found.Parts.empty() ? "short" : "");
    }
    return CsvOf(rows);
}

Json PlaceOf(const Extreme& extreme)
{
    return {{"dcBias", JsonNumber(extreme.At.BiasVolts)}, {"ambient", JsonNumber(extreme.At.AmbientC)}};
}

Json ObjectOf(const LikePart& like, const LikeQuestion& question, const CurveSettings& settings)
{
    const auto number = [&](LikeColumn column)
    {
        const auto value = ValueOf(like, column);
        return value ? JsonNumber(*value) : Json();
    };
    Json object;
    for (const LikeColumn column : nameColumns)
    {
        object[std::string(columnNames[static_cast<std::size_t>(column)])] =
            NameOf(like, column, question.View, settings);
    }
    object["capacitance"] = number(LikeColumn::Capacitance);
    object["ratedVoltage"] = number(LikeColumn::RatedVoltage);
    object["leastRatio"] = number(LikeColumn::LeastRatio);
    object["leastAt"] = PlaceOf(like.Least);
    object["mostRatio"] = number(LikeColumn::MostRatio);
    object["mostAt"] = PlaceOf(like.Most);
    object["lossRatio"] = number(LikeColumn::LossRatio);
    object["lossAt"] = like.Loss ? Json{{"ambient", JsonNumber(like.Loss->At.AmbientC)},
                                        {"frequency", JsonNumber(KilohertzOf(*like.Loss))}}
                                 : Json();
    object["area"] = number(LikeColumn::Area);
    return object;
}

std::string JsonOf(const LikeParts& found, const LikeQuestion& question, const CurveSettings& settings)
{
    const auto range = [](const ConditionRange& ends) {
        return Json{{"low", JsonNumber(ends.Low)}, {"high", JsonNumber(ends.High)}};
    };
    const auto list = [&](const std::vector<LikePart>& parts)
    {
        auto objects = Json::array();
        std::ranges::for_each(parts, [&](const LikePart& like)
                              { objects.push_back(ObjectOf(like, question, settings)); });
        return objects;
    };
    const Json answer = {{"schemaVersion", AnswersVersion},
                         {"part", ShownPartNum(*question.Original, question.View, settings)},
                         {"dcBias", range(question.Box().BiasVolts)},
                         {"ambient", range(question.Box().AmbientC)},
                         {"parts", list(found.Parts)},
                         {"nearest", list(found.Nearest)}};
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

/// What a part is compared by, upwards.
using Rank = std::function<double(const LikePart&)>;

Rank RankOf(const PartTable& parts, LikeKey key, CodeView code)
{
    const double sign = key.Downwards ? -1 : 1;
    const auto byAppearance = [&](Appearances::Names names) -> Rank
    {
        return [sign, appearances = Appearances(parts, names, code)](const LikePart& like)
        { return sign * static_cast<double>(appearances(*like.Part)); };
    };
    switch (key.Column)
    {
    case LikeColumn::Part:
        return [sign, &parts](const LikePart& like)
        { return sign * static_cast<double>(like.Part - parts.PartData.data()); };
    case LikeColumn::Size:
        return byAppearance(&PartRecord::SizeCode);
    case LikeColumn::Characteristic:
        return byAppearance(&PartRecord::Tcc);
    default:
        return [=](const LikePart& like)
        {
            const auto value = ValueOf(like, key.Column);
            return value ? sign * *value : std::numeric_limits<double>::infinity();
        };
    }
}
} // namespace

std::optional<float> ValueOf(const LikePart& like, LikeColumn column)
{
    const auto told = [](double value) { return static_cast<float>(value); };
    switch (column)
    {
    case LikeColumn::Capacitance:
        return like.Part->Data[Value::Capacitance];
    case LikeColumn::RatedVoltage:
        return like.Part->Data[Value::RatedVoltage];
    case LikeColumn::LeastRatio:
        return told(like.Least.Value);
    case LikeColumn::MostRatio:
        return told(like.Most.Value);
    case LikeColumn::LossRatio:
        return like.Loss ? Told(told(like.Loss->Value)) : std::nullopt;
    default:
        break;
    }
    const auto size = SizeOf(*like.Part);
    return size ? Told(told(size->Area())) : std::nullopt;
}

std::string RatioText(std::optional<float> percent)
{
    const std::string digits = percent ? FourDigits(*percent) : "-";
    return (percent && *percent > 0 ? "+" : "") + digits;
}

std::vector<std::string_view> LikeColumnNames()
{
    return {columnNames.begin(), columnNames.end()};
}

std::vector<LikeKey> LikeKeysOf(std::string_view typed)
{
    std::vector<LikeKey> keys;
    for (const TypedKey& key : TypedKeysOf(typed, LikeColumnNames()))
    {
        keys.push_back({.Column = static_cast<LikeColumn>(key.Index), .Downwards = key.Downwards});
    }
    return keys;
}

void SortLike(std::vector<LikePart>& found, const PartTable& parts, const std::vector<LikeKey>& keys,
              CodeView code)
{
    // The weightiest key last: each pass keeps the order of those before it among equals.
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
    {
        std::ranges::stable_sort(found, {}, RankOf(parts, *key, code));
    }
}

std::span<const LikeListFormat> LikeListFormats()
{
    static constexpr std::array<LikeListFormat, 3> formats = {{
        {{"table", "if left out"}, Table},
        {{"csv", ""}, Csv},
        {{"json", ""}, JsonOf},
    }};
    return formats;
}
