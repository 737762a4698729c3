#include "cli/data/Finding.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <utility>

namespace
{
constexpr std::size_t LongestValue = 80;

bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

std::string HexOf(char c)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(c);
    return {Digits[code >> 4], Digits[code & 0x0FU]};
}

/// The place: file, record and part number, as far as they are known.
std::string PlaceOf(const Finding& finding)
{
    std::string place = finding.File;
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
    return static_cast<std::size_t>(std::ranges::count(Findings, level, &Finding::Level));
}

std::string OneLine(std::string_view text)
{
    std::string line;
    for (const char c : text)
    {
        // Never cut within a character of several bytes.
        if (line.size() >= LongestValue && (static_cast<unsigned char>(c) & 0xC0U) != 0x80)
        {
            return line + "...";
        }
        line += IsControl(c) ? "\\x" + HexOf(c) : std::string(1, c);
    }
    return line;
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
    AddText(object, "indexFile", report.IndexFile);
    AddText(object, "dataFile", report.DataFile);
    object["parts"] = report.Parts;
    object["errors"] = report.Count(Severity::Error);
    object["warnings"] = report.Count(Severity::Warning);
    object["findings"] = std::move(findings);
    // A file may be named by bytes that are no text.
    return object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}
