#include "partfiles/PairCheck.h"

#include "partdata/DataReader.h"
#include "partdata/InputFile.h"
#include "partdata/KeyedCollection.h"
#include "partdata/PartTable.h"
#include "partdata/RunTimeError.h"
#include "partfiles/IndexCheck.h"
#include "partfiles/PairFiles.h"
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
void CheckFurtherFiles(const fs::path& folder, const std::string& taken, const std::string& extension,
                       PairReport& report)
{
    std::error_code fault;
    for (fs::directory_iterator entry(folder, fault); !fault && entry != fs::directory_iterator();
         entry.increment(fault))
    {
        const auto name = entry->path().filename().string();
        if (name != taken && name.size() >= extension.size() &&
            EqualKeys(name.substr(name.size() - extension.size()), extension))
        {
            report.Findings.push_back(FileFinding(Severity::Warning, "further-file", name,
                                                  "the file is ignored, since " + taken + " comes first"));
        }
    }
}

void CheckData(const fs::path& dataFile, std::vector<PartRecord>& parts, PairReport& report)
{
    InputFile file(dataFile);
    ReadPartValues(file, parts);
    CheckSize(file.Size(), parts.size(), report);
    const auto present = std::min<std::uintmax_t>(file.Size() / DataRecordBytes, parts.size());
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

PairReport CheckPair(const fs::path& pair)
{
    PairReport report;
    fs::path indexFile;
    fs::path dataFile;
    std::string indexText;
    std::vector<PartRecord> parts;

    const bool hasIndex = Try(report,
                              [&]
                              {
                                  indexFile = IndexOf(pair);
                                  report.IndexFile = indexFile.filename().string();
                                  indexText = ReadBytes(indexFile, MostIndexBytes);
                              });
    if (hasIndex)
    {
        parts = CheckIndex(indexText, report.IndexFile, report.Findings);
        report.DropSurplus();
        report.Parts = parts.size();
    }
    Try(report,
        [&]
        {
            dataFile = DataOf(pair);
            report.DataFile = dataFile.filename().string();
            if (hasIndex)
            {
                CheckData(dataFile, parts, report);
            }
        });
    if (std::error_code fault; fs::is_directory(pair, fault))
    {
        CheckFurtherFiles(pair, report.IndexFile, ".idx", report);
        CheckFurtherFiles(pair, report.DataFile, ".dat", report);
    }
    return report;
}
