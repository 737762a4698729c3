#include "partfiles/IndexCheck.h"

#include "partfiles/PairCheck.h"
#include "tests/calc/NamedRow.h"
#include "tests/partfiles/SmallPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace
{
struct BrokenIndex
{
    std::string Name;
    /// What becomes of the text of a sound index.
    std::function<void(std::string&)> Break;
    Severity Level;
    std::string Rule;
    std::size_t Record;
    std::string Field;
};

/// Replaces the first `from` behind the first `behind`.
std::function<void(std::string&)> Replace(const std::string& from, const std::string& to,
                                          const std::string& behind = "")
{
    return [=](std::string& text) { text.replace(text.find(from, text.find(behind)), from.size(), to); };
}

const std::string SoundIndex = "\"A1\",\"A2\",\"A3\",\"A4\",\"0402\",\"1005\",\"X7R\",\"R\"\n"
                               "\"B1\",\"B2\",\"B3\",\"B4\",\"0603\",\"1608\",\"X5R\",\"B\"\n"
                               "\"C1\",\"C2\",\"C3\",\"C4\",\"0603\",\"1608\",\"Y5V\",\"F\"\n";

std::vector<Finding> FindingsIn(const std::string& text)
{
    std::vector<Finding> findings;
    CheckIndex(text, "parts.idx", findings);
    return findings;
}

class BrokenIndexTest : public testing::TestWithParam<BrokenIndex>
{
};

TEST_P(BrokenIndexTest, IsTheOnlyFinding)
{
    const auto& row = GetParam();
    auto text = SoundIndex;
    row.Break(text);

    const auto findings = FindingsIn(text);

    ASSERT_THAT(findings, testing::SizeIs(1));
    EXPECT_EQ(findings[0].Level, row.Level);
    EXPECT_EQ(findings[0].Rule, row.Rule) << findings[0].Message;
    EXPECT_EQ(findings[0].File, "parts.idx");
    EXPECT_EQ(findings[0].Record, row.Record);
    EXPECT_EQ(findings[0].Field, row.Field);
}

constexpr auto Error = Severity::Error;
constexpr auto Warning = Severity::Warning;

INSTANTIATE_TEST_SUITE_P(
    Rules, BrokenIndexTest,
    testing::Values(
        BrokenIndex{"duplicate in form 0", Replace("\"C1\"", "\"A1\""), Error, "duplicate", 3, "PartNum(0)"},
        BrokenIndex{"duplicate in form 1", Replace("\"C2\"", "\"A2\""), Error, "duplicate", 3, "PartNum(1)"},
        BrokenIndex{"duplicate in form 2", Replace("\"C3\"", "\"B3\""), Error, "duplicate", 3, "PartNum(2)"},
        BrokenIndex{"duplicate in form 3", Replace("\"B4\"", "\"A4\""), Error, "duplicate", 2, "PartNum(3)"},
        BrokenIndex{"duplicate in another letter case", Replace("\"B1\"", "\"a1\""), Error, "duplicate", 2,
                    "PartNum(0)"},
        BrokenIndex{"last field missing", Replace(",\"F\"\n", "\n"), Error, "index-end", 3, "field 8"},
        BrokenIndex{"file ends behind a comma", Replace("\"F\"\n", ""), Error, "index-end", 3, "field 8"},
        BrokenIndex{"last quote missing", Replace("\"F\"", "\"F"), Error, "open-quote", 3, "field 8"},
        BrokenIndex{"file ends behind a stray quote", Replace("\"Y5V\",\"F\"\n", "Y5V\"\n"), Error,
                    "index-end", 3, "field 8"},
        BrokenIndex{"comma missing", Replace("\"B1\",", "\"B1\""), Warning, "separator", 2, "PartNum(1)"},
        BrokenIndex{"comma missing before a plain field", Replace("\"B1\",\"B2\"", "\"B1\"B2"), Warning,
                    "separator", 2, "PartNum(1)"},
        BrokenIndex{"file ends within its first field", [](std::string& text) { text = "\"A1"; }, Error,
                    "open-quote", 1, "field 1"},
        BrokenIndex{"record on two lines", Replace("\"B1\",", "\"B1\"\n"), Warning, "record-line", 2, ""},
        BrokenIndex{"two records on one line", Replace("\"R\"\n", "\"R\","), Warning, "record-line", 2, ""},
        BrokenIndex{"line break in quotes", Replace("\"B1\"", "\"B\n1\""), Warning, "line-break", 2,
                    "PartNum(0)"},
        BrokenIndex{"empty field", Replace("\"B3\"", "\"\""), Warning, "empty-field", 2, "PartNum(2)"},
        BrokenIndex{"quote in an unquoted field", Replace("\"B3\"", "B\"3"), Warning, "stray-quote", 2,
                    "PartNum(2)"},
        BrokenIndex{"size that became a number", Replace("\"0402\"", "\"402\""), Warning, "size", 1,
                    "SizeCode(0)"},
        BrokenIndex{"size of another JIS name", Replace("\"1005\"", "\"2012\""), Warning, "size", 1,
                    "SizeCode(1)"},
        BrokenIndex{"size that JIS does not know", Replace("\"1005\"", "\"1006\""), Warning, "size", 1,
                    "SizeCode(1)"},
        BrokenIndex{"control character", Replace("B2", "B\x1B[2J"), Warning, "control-character", 2,
                    "PartNum(1)"},
        BrokenIndex{"character of no shape", Replace("B2", "B\x9D"), Warning, "control-character", 2,
                    "PartNum(1)"},
        BrokenIndex{"name that is a formula", Replace("C1", "=C1"), Warning, "formula", 3, "PartNum(0)"},
        BrokenIndex{"name with an at sign before it", Replace("C1", "@C1"), Warning, "formula", 3,
                    "PartNum(0)"},
        BrokenIndex{"JIS characteristic with two EIA names", Replace("\"F\"", "\"B\""), Warning, "pairing", 3,
                    "Tcc(0)"}),
    RowName<BrokenIndex>);

TEST(IndexCheck, FindsNothingInAnySoundForm)
{
    EXPECT_THAT(FindingsIn(SoundIndex), testing::IsEmpty());
    EXPECT_THAT(FindingsIn(""), testing::IsEmpty());
    EXPECT_THAT(FindingsIn("\xEF\xBB\xBF"
                           "a1, a2 ,a3,a4,0402,1005,X7R,R\r\n\r\nb1,b2,b3,b4,0402,1005,X7R,R\x1A"),
                testing::IsEmpty());
    EXPECT_THAT(FindingsIn("a1,a2,a3,a4,0402,1005,X7R,R"), testing::IsEmpty());
}

TEST(IndexCheck, TellsAMissingFieldWhereTheShiftBegins)
{
    auto text = SoundIndex;
    Replace("\"B1\",", "")(text);
    const auto findings = FindingsIn(text);
    // The second record borrows from the third line, which then ends too early.
    ASSERT_THAT(findings, testing::SizeIs(3));
    EXPECT_EQ(findings[0].Rule, "index-end");
    EXPECT_EQ(findings[0].Record, 3U);
    EXPECT_EQ(findings[1].Rule, "record-line");
    EXPECT_EQ(findings[1].Record, 2U);
    EXPECT_EQ(findings[2].Rule, "size");
}

TEST(IndexCheck, TellsRecordsThatShareALineOnce)
{
    auto text = SoundIndex;
    std::ranges::replace(text, '\n', ',');
    const auto findings = FindingsIn(text);
    ASSERT_THAT(findings, testing::SizeIs(1));
    EXPECT_EQ(findings[0].Rule, "record-line");
    EXPECT_EQ(findings[0].Record, 2U);
}

TEST(IndexCheck, TellsAFurtherPairingOnce)
{
    auto text = SoundIndex + "\"D1\",\"D2\",\"D3\",\"D4\",\"0603\",\"1609\",\"Y5V\",\"F\"\n";
    Replace("\"1608\"", "\"1609\"", "\"C4\"")(text);
    const auto findings = FindingsIn(text);
    // One of the two names is no known partner of the other, which is told too.
    ASSERT_THAT(findings, testing::SizeIs(2));
    EXPECT_EQ(findings[0].Rule, "size");
    EXPECT_EQ(findings[1].Rule, "pairing");
    EXPECT_EQ(findings[1].Record, 3U);
    EXPECT_EQ(findings[1].Field, "SizeCode(1)");
    EXPECT_EQ(findings[1].Value, "1609");
}

TEST(IndexCheck, TellsAJisSizeWithTwoEiaSizes)
{
    auto text = SoundIndex;
    Replace("\"0603\"", "\"0604\"", "\"C4\"")(text);
    const auto findings = FindingsIn(text);
    ASSERT_THAT(findings, testing::SizeIs(2));
    EXPECT_EQ(findings[0].Rule, "size");
    EXPECT_EQ(findings[1].Rule, "pairing");
    EXPECT_EQ(findings[1].Field, "SizeCode(0)");
}

TEST(IndexCheck, TellsWhichSizesDoNotFitEachOtherOnce)
{
    auto text = SoundIndex + "\"D1\",\"D2\",\"D3\",\"D4\",\"0402\",\"2012\",\"Y5V\",\"F\"\n";
    Replace("\"1005\"", "\"2012\"")(text);
    const auto findings = FindingsIn(text);
    ASSERT_THAT(findings, testing::SizeIs(1));
    EXPECT_EQ(findings[0].Message, "EIA size 0402 is 1005 in JIS, not 2012");
}

TEST(IndexCheck, GoesOnBehindADuplicate)
{
    auto text = SoundIndex;
    Replace("\"B1\"", "\"A1\"")(text);
    Replace("\"C4\"", "\"a4\"")(text);
    const auto findings = FindingsIn(text);
    ASSERT_THAT(findings, testing::SizeIs(2));
    EXPECT_EQ(findings[0].Message, "the part number stands in record 1 already");
    EXPECT_EQ(findings[1].Value, "a4");
}

TEST(IndexCheck, TellsMorePartsThanCanBeLoaded)
{
    const auto records = [](int count)
    {
        std::string text;
        for (int i = 0; i < count; ++i)
        {
            const auto n = std::to_string(i);
            text += n + "," + n + "," + n + "," + n + ",0402,1005,X7R,R\n";
        }
        return text;
    };
    EXPECT_THAT(FindingsIn(records(32767)), testing::IsEmpty());
    const auto findings = FindingsIn(records(32768));
    ASSERT_THAT(findings, testing::SizeIs(1));
    EXPECT_EQ(findings[0].Rule, "part-count");
    EXPECT_EQ(findings[0].Level, Severity::Error);
    EXPECT_EQ(findings[0].Value, "32768");
}

TEST(IndexCheck, KeepsNoMorePartsThanCanBeLoaded)
{
    std::vector<Finding> findings;
    const std::string text(8 * 40000, ',');
    EXPECT_EQ(CheckIndex(text + "A,B", "parts.idx", findings).size(), 32767U);
    ASSERT_GE(findings.size(), 2U);
    EXPECT_EQ(findings[0].Rule, "index-end");
    EXPECT_EQ(findings[0].Record, 40001U);
    EXPECT_EQ(findings[1].Rule, "part-count");
    EXPECT_EQ(findings[1].Value, "40000");
}

TEST(PairCheck, TellsMissingFilesAndStillChecksTheIndex)
{
    const TemporaryFolder folder;
    folder.Write("parts.idx", SoundIndex + "\"D1\"");
    const auto report = CheckPair(folder.Path());
    ASSERT_THAT(report.Findings, testing::SizeIs(2));
    EXPECT_EQ(report.Findings[0].Rule, "index-end");
    EXPECT_EQ(report.Findings[1].Rule, "unreadable");
    EXPECT_EQ(report.Findings[1].File, "*.dat");
    EXPECT_EQ(report.Findings[1].Message, "File not found");
}

TEST(PairCheck, TellsAMissingIndexAndChecksNoData)
{
    const TemporaryFolder folder;
    folder.Write("parts.dat", "x");
    const auto report = CheckPair(folder.Path());
    ASSERT_THAT(report.Findings, testing::SizeIs(1));
    EXPECT_EQ(report.Findings[0].File, "*.idx");
    EXPECT_EQ(report.DataFile, "parts.dat");
    EXPECT_EQ(report.Parts, 0U);
}

TEST(PairCheck, LooksForANamedPairInTheFolderAtHand)
{
    const SmallPair pair;
    const TemporaryFolder folder;
    folder.Write("b.idx", pair.Index());
    folder.Write("b.Dat", pair.Data());
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    const auto report = CheckPair("b.idx");
    std::filesystem::current_path(before);
    EXPECT_EQ(TextOf(report), "3 parts, 0 errors, 0 warnings\n");
}

TEST(PairCheck, TellsBothMissingFilesOfAnEmptyFolder)
{
    const TemporaryFolder folder;
    EXPECT_EQ(CheckPair(folder.Path()).Count(Severity::Error), 2U);
    EXPECT_EQ(CheckPair(folder.Path() + "/parts.idx").Count(Severity::Error), 2U);
}

TEST(PairCheck, WarnsOfFilesThatTheProgramIgnores)
{
    const SmallPair pair;
    const TemporaryFolder folder;
    folder.Write("b.IDX", pair.Index());
    folder.Write("a.idx", pair.Index());
    folder.Write("b.dat", pair.Data());
    const auto report = CheckPair(folder.Path());
    ASSERT_THAT(report.Findings, testing::SizeIs(1)) << TextOf(report);
    EXPECT_EQ(report.Findings[0].Rule, "further-file");
    EXPECT_EQ(report.Findings[0].File, "b.IDX");
    EXPECT_EQ(report.Findings[0].Level, Severity::Warning);
}

TEST(PairCheck, TakesTheDataFileBesideANamedIndex)
{
    SmallPair pair;
    const TemporaryFolder folder;
    folder.Write("a.idx", "");
    folder.Write("a.dat", "");
    folder.Write("b.idx", pair.Index());
    folder.Write("b.DAT", pair.Data());
    const auto report = CheckPair(folder.Path() + "/b.idx");
    EXPECT_EQ(report.DataFile, "b.DAT");
    EXPECT_EQ(TextOf(report), "3 parts, 0 errors, 0 warnings\n");
}

TEST(PairCheck, FindsNothingInTheSampleRange)
{
    const auto report = CheckPair(SAMPLE_DATA);
    EXPECT_GT(report.Parts, 1000U);
    EXPECT_THAT(report.Findings, testing::IsEmpty()) << TextOf(report);
}
} // namespace
