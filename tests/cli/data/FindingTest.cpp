#include "cli/data/Finding.h"

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

TEST(Finding, IsOneLineWithItsPlace)
{
    EXPECT_EQ(
        TextOf(Report()),
        "parts.dat: record 17: A\"1: error: Data(2) = 0: the rated voltage is not positive [rated-voltage]\n"
        "parts.dat: warning: 1 bytes behind [surplus]\n"
        "1 part, 1 error, 1 warning\n");
}

TEST(Finding, IsAnObjectWithoutEmptyMembers)
{
    const std::string expected = R"json({
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

TEST(Finding, ShowsControlCharactersAndCutsLongTexts)
{
    EXPECT_EQ(OneLine("a\nb\x7F"), "a\\x0Ab\\x7F");
    EXPECT_EQ(OneLine(std::string(80, 'x')), std::string(80, 'x'));
    EXPECT_EQ(OneLine(std::string(81, 'x')), std::string(80, 'x') + "...");
    EXPECT_EQ(OneLine(std::string(79, 'x') + "°C"), std::string(79, 'x') + "°...");
}
