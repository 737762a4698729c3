/// What "data check" finds in any pair of part files: it agrees with the program's own loading, and all of it
/// can be told.

#include "fuzz/PairInput.h"
#include "fuzz/Require.h"
#include "partdata/PartTable.h"
#include "partdata/RunTimeError.h"
#include "partfiles/PairCheck.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <string>

/// The number of the run-time error that loading ends with; 0 when it goes well.
static int LoadingError(const PairInput& pair)
{
    try
    {
        ReadPartPair(pair.Index(), pair.Data(), "parts.idx");
        return 0;
    }
    catch (const RunTimeError& error)
    {
        return error.Number();
    }
}

static bool HasError(const PairReport& report, std::string_view rule)
{
    return std::ranges::any_of(report.Findings, [&](const Finding& finding)
                               { return finding.Rule == rule && finding.Level == Severity::Error; });
}

static void RequireFinding(const Finding& finding, const PairReport& report)
{
    Require(!finding.Rule.empty() && !finding.Message.empty(), "a finding says which rule is broken and how");
    Require(finding.File == report.IndexFile || finding.File == report.DataFile,
            "a finding is about one of the files");
    Require(finding.Record <= report.Parts + 1, "a finding is about a record of the pair");
}

static void RequireTold(const PairReport& report)
{
    const auto text = TextOf(report);
    const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n'));
    const bool isWhole = report.DroppedErrors + report.DroppedWarnings == 0;
    Require(lines == report.Findings.size() + (isWhole ? 1 : 2),
            "each finding is one line, and the last line is the sum");
    Require(std::ranges::none_of(text, [](unsigned char c) { return (c < ' ' && c != '\n') || c == 0x7F; }),
            "a finding is readable");
    const auto object = nlohmann::json::parse(JsonOf(report), nullptr, false);
    Require(object.is_object() && object.at("findings").size() == report.Findings.size(),
            "the findings are told as JSON");
    Require(object.at("errors") == report.Count(Severity::Error) &&
                object.at("warnings") == report.Count(Severity::Warning),
            "the findings are counted");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const PairInput pair(bytes, size);
    const auto report = CheckPair({"parts.idx", pair.Index()}, {"parts.dat", pair.Data()});
    for (const auto& finding : report.Findings)
    {
        RequireFinding(finding, report);
    }
    RequireTold(report);

    const int error = LoadingError(pair);
    const bool endsEarly = HasError(report, "index-end") || HasError(report, "open-quote");
    Require((error == 62) == endsEarly, "an index that ends within a record is found");
    // A number that stands twice before the end counts only when the index can be read to its end.
    Require(error != 457 || HasError(report, "duplicate"), "a number that stands twice is found");
    Require(error != 0 || !HasError(report, "duplicate"), "no number is found twice that is not");
    const bool isShort = HasError(report, "short") || HasError(report, "partial-record");
    Require(!isShort || pair.Data().size() < report.Parts * 264, "data are found missing where they are");
    return 0;
}
