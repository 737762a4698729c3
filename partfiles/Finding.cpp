#include "partfiles/Finding.h"

#include "partdata/AnswersVersion.h"
#include "partdata/OneLine.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <utility>

namespace
{
/// The place: file, record and part number, as far as they are known.
std::string PlaceOf(const Finding& finding)
{
    std::string place = WithoutControls(finding.File);
    if (finding.Record != 0)
    {
        place += ": record " + std::to_string(finding.Record);
    }
    if (!finding.PartNumber.empty())
    {
        place += ": " + OneLine(finding.PartNumber);
    }
    return place;
}

std::string LineOf(const Finding& finding)
{
    std::string line = PlaceOf(finding);
    line += finding.Level == Severity::Error ? ": error: " : ": warning: ";
    if (!finding.Field.empty())
    {
        line += finding.Field + (finding.Value.empty() ? "" : " = " + OneLine(finding.Value)) + ": ";
    }
    return line + finding.Message + " [" + finding.Rule + "]\n";
}

using Json = nlohmann::ordered_json;

void AddText(Json& object, const char* name, const std::string& text)
{
    if (!text.empty())
    {
        object[name] = text;
    }
}

Json JsonOf(const Finding& finding)
{
    Json object;
    object["severity"] = finding.Level == Severity::Error ? "error" : "warning";
    object["rule"] = finding.Rule;
    AddText(object, "file", finding.File);
    if (finding.Record != 0)
    {
        object["record"] = finding.Record;
    }
    AddText(object, "partNumber", finding.PartNumber);
    AddText(object, "field", finding.Field);
    AddText(object, "value", finding.Value);
    AddText(object, "message", finding.Message);
    return object;
}
} // namespace

std::size_t PairReport::Count(Severity level) const
{
    return static_cast<std::size_t>(std::ranges::count(Findings, level, &Finding::Level)) +
           (level == Severity::Error ? DroppedErrors : DroppedWarnings);
}

void PairReport::DropSurplus()
{
    if (Findings.size() <= MostFindings)
    {
        return;
    }
    auto left = Findings.size() - MostFindings;
    for (const auto level : {Severity::Warning, Severity::Error})
    {
        auto& dropped = level == Severity::Error ? DroppedErrors : DroppedWarnings;
        const auto of = static_cast<std::size_t>(std::ranges::count(Findings, level, &Finding::Level));
        const auto drop = std::min(left, of);
        std::size_t met = 0;
        std::erase_if(Findings,
                      [&](const Finding& finding) { return finding.Level == level && met++ >= of - drop; });
        dropped += drop;
        left -= drop;
    }
}

std::string Counted(std::size_t count, std::string_view noun)
{
    return std::to_string(count) + " " + std::string(noun) + (count == 1 ? "" : "s");
}

std::string TextOf(const PairReport& report)
{
    std::string text;
    for (const auto& finding : report.Findings)
    {
        text += LineOf(finding);
    }
    const auto dropped = report.DroppedErrors + report.DroppedWarnings;
    if (dropped != 0)
    {
        text += "... and " + Counted(dropped, "further finding") + "\n";
    }
    return text + Counted(report.Parts, "part") + ", " + Counted(report.Count(Severity::Error), "error") +
           ", " + Counted(report.Count(Severity::Warning), "warning") + "\n";
}

std::string JsonOf(const PairReport& report)
{
    auto findings = Json::array();
    for (const auto& finding : report.Findings)
    {
        findings.push_back(JsonOf(finding));
    }
    Json object;
    object["schemaVersion"] = AnswersVersion;
    AddText(object, "indexFile", report.IndexFile);
    AddText(object, "dataFile", report.DataFile);
    object["parts"] = report.Parts;
    object["errors"] = report.Count(Severity::Error);
    object["warnings"] = report.Count(Severity::Warning);
    object["findings"] = std::move(findings);
    if (report.DroppedErrors + report.DroppedWarnings != 0)
    {
        object["dropped"] = report.DroppedErrors + report.DroppedWarnings;
    }
    // A file may be named by bytes that are no text.
    return object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}
