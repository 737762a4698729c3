#include "partfiles/PairCheck.h"

#include "files/PairReading.h"
#include "partdata/DataReader.h"
#include "partdata/PartTable.h"
#include "partdata/RunTimeError.h"
#include "partfiles/IndexCheck.h"
#include "partfiles/ValueCheck.h"

#include <algorithm>
#include <functional>
#include <system_error>

namespace fs = std::filesystem;

namespace
{
Finding FileFinding(Severity level, std::string rule, std::string file, std::string message)
{
    return {.Level = level,
            .Rule = std::move(rule),
            .File = std::move(file),
            .Record = 0,
            .PartNumber = {},
            .Field = {},
            .Value = {},
            .Message = std::move(message)};
}

/// Does one step; a file that is missing or cannot be read becomes a finding. True when it went well.
bool Try(PairReport& report, const std::function<void()>& step)
{
    try
    {
        step();
        return true;
    }
    catch (const RunTimeError& error)
    {
        report.Findings.push_back(
            FileFinding(Severity::Error, "unreadable", error.Where().File, error.Description()));
        return false;
    }
}

void CheckSize(std::uintmax_t bytes, std::size_t parts, PairReport& report)
{
    const auto add = [&](Severity level, std::string rule, std::string message)
    { report.Findings.push_back(FileFinding(level, std::move(rule), report.DataFile, std::move(message))); };
    const auto needed = std::uintmax_t{parts} * DataRecordBytes;
    if (bytes > needed)
    {
        add(Severity::Warning, "surplus",
            std::to_string(bytes - needed) + " bytes behind the data of the last part");
        return;
    }
    auto begun = bytes / DataRecordBytes;
    const auto rest = bytes % DataRecordBytes;
    if (rest != 0)
    {
        ++begun;
        add(Severity::Error, "partial-record",
            "record " + std::to_string(begun) + " is cut short: " + std::to_string(rest) + " of " +
                std::to_string(DataRecordBytes) + " bytes");
    }
    if (begun < parts)
    {
        add(Severity::Error, "short",
            "no data from record " + std::to_string(begun + 1) + " to " + std::to_string(parts));
    }
}

/// The program takes one file of a kind out of its folder, and nobody sees which.
void CheckFurtherFiles(const fs::path& folder, const std::string& taken, std::string_view extension,
                       PairReport& report)
{
    // Without a file that is taken there is none at all.
    const auto names =
        taken.empty() ? std::vector<std::string>{} : NamesOfPartFiles(folder.string(), extension);
    for (const auto& name : names)
    {
        if (name != taken)
        {
            report.Findings.push_back(FileFinding(Severity::Warning, "further-file", name,
                                                  "the file is ignored, since " + taken + " comes first"));
        }
    }
}

std::vector<PartRecord> CheckNames(std::string_view indexText, PairReport& report)
{
    auto parts = CheckIndex(indexText, report.IndexFile, report.Findings);
    report.DropSurplus();
    report.Parts = parts.size();
    return parts;
}

void CheckData(ByteSource& source, std::uintmax_t bytes, std::vector<PartRecord>& parts, PairReport& report)
{
    ReadPartValues(source, parts);
    CheckSize(bytes, parts.size(), report);
    const auto present = std::min<std::uintmax_t>(bytes / DataRecordBytes, parts.size());
    for (std::size_t i = 0; i < present; ++i)
    {
        ValueFindings findings(
            report.Findings,
            {.IndexFile = report.IndexFile, .DataFile = report.DataFile, .Record = i + 1, .Part = parts[i]});
        CheckValues(parts[i], findings);
        // Not after every part: each time all findings are looked at.
        if (report.Findings.size() > 2 * MostFindings)
        {
            report.DropSurplus();
        }
    }
    report.DropSurplus();
}
} // namespace

PairReport CheckPair(const NamedBytes& index, const NamedBytes& data)
{
    PairReport report;
    report.IndexFile = index.Name;
    report.DataFile = data.Name;
    auto parts = CheckNames(index.Bytes, report);
    MemorySource source(data.Bytes);
    CheckData(source, data.Bytes.size(), parts, report);
    return report;
}

/// One attempt to check a pair.
static PairReport CheckAttempt(const fs::path& pair, PairReading& reading)
{
    PairReport report;
    std::string indexText;
    std::vector<PartRecord> parts;

    const bool hasIndex = Try(report,
                              [&]
                              {
                                  report.IndexFile = reading.IndexPath().filename().string();
                                  indexText = ReadBytes(reading.Index(), MostIndexBytes);
                              });
    if (hasIndex)
    {
        parts = CheckNames(indexText, report);
    }
    Try(report,
        [&]
        {
            report.DataFile = reading.DataPath().filename().string();
            if (hasIndex)
            {
                CheckData(reading.Data(), reading.Data().Size(), parts, report);
            }
        });
    if (std::error_code fault; fs::is_directory(pair, fault))
    {
        Try(report, [&] { CheckFurtherFiles(pair, report.IndexFile, IndexExtension, report); });
        Try(report, [&] { CheckFurtherFiles(pair, report.DataFile, DataExtension, report); });
    }
    return report;
}

PairReport CheckPair(const fs::path& pair)
{
    PairReport report;
    PairReport settled;
    const bool stoodStill = Try(report,
                                [&] {
                                    ReadSettled(SearchFor(pair), [&](PairReading& reading)
                                                { settled = CheckAttempt(pair, reading); });
                                });
    return stoodStill ? settled : report;
}
