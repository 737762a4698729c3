#include "partfiles/Finding.h"

#include <gtest/gtest.h>

namespace
{
PairReport Report()
{
    return {.IndexFile = "parts.idx",
            .DataFile = "parts.dat",
            .Parts = 1,
            .Findings = {{.Level = Severity::Error,
                          .Rule = "rated-voltage",
                          .File = "parts.dat",
                          .Record = 17,
                          .PartNumber = "A\"1",
                          .Field = "Data(2)",
                          .Value = "0",
                          .Message = "the rated voltage is not positive"},
                         {.Level = Severity::Warning,
                          .Rule = "surplus",
                          .File = "parts.dat",
                          .Record = 0,
                          .PartNumber = {},
                          .Field = {},
                          .Value = {},
                          .Message = "1 bytes behind"}}};
}
} // namespace

TEST(PairReport, DropsWhatNobodyReadsWarningsBeforeErrors)
{
    PairReport report;
    for (int i = 0; i < 8000; ++i)
    {
        report.Findings.emplace_back().Level = Severity::Warning;
        report.Findings.emplace_back().Level = Severity::Error;
    }
    report.Findings.back().Record = 3;
    report.DropSurplus();
    EXPECT_EQ(report.Findings.size(), 10000U);
    EXPECT_EQ(report.Findings.back().Record, 3U);
    EXPECT_EQ(report.DroppedWarnings, 6000U);
    EXPECT_EQ(report.DroppedErrors, 0U);
    EXPECT_EQ(report.Count(Severity::Error), 8000U);
    EXPECT_EQ(report.Count(Severity::Warning), 8000U);
    EXPECT_TRUE(TextOf(report).ends_with("\n... and 6000 further findings\n"
                                         "0 parts, 8000 errors, 8000 warnings\n"));
    EXPECT_NE(JsonOf(report).find("\"dropped\": 6000"), std::string::npos);
}

TEST(Finding, IsOneLineWithItsPlace)
{
    EXPECT_EQ(
        TextOf(Report()),
        "parts.dat: record 17: A\"1: error: Data(2) = 0: the rated voltage is not positive [rated-voltage]\n"
        "parts.dat: warning: 1 bytes behind [surplus]\n"
        "1 part, 1 error, 1 warning\n");
}

TEST(Finding, StaysOnItsLineWhateverTheFileIsCalled)
{
    PairReport report;
    report.Findings = {{.Rule = "surplus", .File = "a\nb\x1B.dat", .Message = "1 bytes behind"}};
    EXPECT_TRUE(TextOf(report).starts_with("a\\x0Ab\\x1B.dat: error: 1 bytes behind [surplus]\n"));
}

TEST(Finding, IsAnObjectWithoutEmptyMembers)
{
    const std::string expected = R"json({
  "schemaVersion": 1,
  "indexFile": "parts.idx",
  "dataFile": "parts.dat",
  "parts": 1,
  "errors": 1,
  "warnings": 1,
  "findings": [
    {
      "severity": "error",
      "rule": "rated-voltage",
      "file": "parts.dat",
      "record": 17,
      "partNumber": "A\"1",
      "field": "Data(2)",
      "value": "0",
      "message": "the rated voltage is not positive"
    },
    {
      "severity": "warning",
      "rule": "surplus",
      "file": "parts.dat",
      "message": "1 bytes behind"
    }
  ]
}
)json";
    EXPECT_EQ(JsonOf(Report()), expected);
}
