#include "ownparts/FitJson.h"

#include "calc/NumberText.h"
#include "partdata/AnswersVersion.h"
#include "partdata/Windows1252.h"

#include <nlohmann/json.hpp>

using Json = nlohmann::ordered_json;

/// The digits that tell the single, and no more.
static double Single(double value)
{
    return ToldBy(NumberText(static_cast<float>(value)));
}

static Json ResidualJson(const std::optional<Residuals>& residual)
{
    return residual ? Json{{"rms", Single(residual->Rms)},
                           {"largest", Single(residual->Largest)},
                           {"at", residual->Line}}
                    : Json();
}

static Json GroupJson(const FitGroup& group, const TablePart& row)
{
    auto values = Json::object();
    for (const auto& range : group.Values)
    {
        for (auto i = range.First; i <= range.Last; ++i)
        {
            values[DataName(i)] = Single(row.Data[i]);
        }
    }
    return {{"name", group.Name},
            {"points", group.Points},
            {"values", std::move(values)},
            {"borrowedFrom", group.BorrowedFrom.empty() ? Json() : Json(group.BorrowedFrom)},
            {"residual", ResidualJson(group.Residual)}};
}

static void AddPoints(Json& points, const std::string& kind, const std::vector<FittedPoint>& fitted)
{
    for (const auto& point : fitted)
    {
        points.push_back({{"line", point.Line},
                          {"kind", kind},
                          {"measured", Single(point.Measured)},
                          {"fitted", Single(point.Fitted)},
                          {"residual", Single(point.Residual())}});
    }
}

std::string JsonOf(const FittedPart& fitted)
{
    Json json = {{"schemaVersion", AnswersVersion},
                 {"part", Utf8FromWindows1252(fitted.Row.Names[0])},
                 {"groups", Json::array()},
                 {"warnings", fitted.Warnings},
                 {"points", Json::array()}};
    for (const auto& group : fitted.Groups)
    {
        json["groups"].push_back(GroupJson(group, fitted.Row));
    }
    AddPoints(json["points"], "capacitance", fitted.Capacitances);
    AddPoints(json["points"], "rise-by-current", fitted.RisesByCurrent);
    AddPoints(json["points"], "rise-by-voltage", fitted.RisesByVoltage);
    return json.dump(2) + '\n';
}
