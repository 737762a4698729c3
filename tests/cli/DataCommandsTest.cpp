#include "cli/DataCommands.h"

#include "tests/cli/CommandRun.h"
#include "tests/partfiles/SmallPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;
using testing::StartsWith;

namespace
{
TEST(DataCheck, SucceedsForACleanPair)
{
    const auto run = RunData({"check", SAMPLE_DATA});
    EXPECT_EQ(run.Failure, "");
    EXPECT_EQ(run.Notes, "");
    EXPECT_EQ(run.Output, "1179 parts, 0 errors, 0 warnings\n");
}

TEST(DataCheck, SucceedsWithWarningsOnly)
{
    const SmallPair pair;
    const TemporaryFolder folder;
    folder.Write("p.idx", pair.Index());
    folder.Write("p.dat", pair.Data() + "x");
    const auto run = RunData({"check", folder.Path()});
    EXPECT_EQ(run.Failure, "");
    EXPECT_EQ(run.Output, "p.dat: warning: 1 bytes behind the data of the last part [surplus]\n"
                          "3 parts, 0 errors, 1 warning\n");
}

TEST(DataCheck, FailsWithErrorsInEitherFormat)
{
    SmallPair pair;
    pair.Parts[1].Data[Value::RatedVoltage] = 0;
    const TemporaryFolder folder;
    folder.Write("p.idx", pair.Index());
    folder.Write("p.dat", pair.Data());
    const auto text = RunData({"check", folder.Path()});
    EXPECT_EQ(text.Failure, folder.Path() + ": 1 error");
    EXPECT_THAT(text.Output,
                StartsWith("p.dat: record 2: " + pair.Parts[1].Names[0] + ": error: Data(2) = 0: "));
    const auto json = RunData({"check", folder.Path(), "--format", "json"});
    EXPECT_EQ(json.Failure, folder.Path() + ": 1 error");
    EXPECT_THAT(json.Output, HasSubstr("\"rule\": \"rated-voltage\""));
}

TEST(DataCheck, RefusesAnotherFormat)
{
    EXPECT_THAT(RunData({"check", SAMPLE_DATA, "--format", "xml"}).Failure, HasSubstr("xml"));
}

TEST(DataCheck, FailsWhereStandardOutputTakesNothing)
{
    const auto run = RunDataIntoFullOutput({"check", SAMPLE_DATA});
    EXPECT_EQ(run.Failure, "standard output: cannot be written");
}

TEST(DataBuild, RefusesANameThatStartsTheIndexLikeAByteOrderMark)
{
    // The quote inside keeps the name without quotes around it, so the index would begin with the mark.
    const TemporaryFolder folder;
    auto text = RunData({"export", SAMPLE_DATA}).Output;
    const auto firstName = text.find('\n') + 1;
    text.replace(firstName, text.find(',', firstName) - firstName, "\"\u00EF\u00BB\u00BFA\"\"B\"");
    const auto table = folder.Write("t.csv", text);
    const auto run = RunData({"build", table.string(), "--output", folder.Path() + "/p"});
    EXPECT_EQ(run.Failure, "Run-time error '5': part 1 has names that no index can hold");
    EXPECT_FALSE(std::filesystem::exists(folder.Path() + "/p.idx"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path() + "/p.dat"));
}

TEST(DataBuild, DoesNotTakeATableBeyondAnySizeIntoMemory)
{
    const TemporaryFolder folder;
    const auto table = folder.Write("t.csv", "");
    std::filesystem::resize_file(table, 1ULL << 40);
    const auto run = RunData({"build", table.string(), "--output", folder.Path() + "/p"});
    EXPECT_EQ(run.Failure, "Run-time error '6': Overflow: t.csv");
}

TEST(DataBuild, TellsEveryErrorAndLeavesThePairAlone)
{
    const SmallPair pair;
    const TemporaryFolder folder;
    folder.Write("p.idx", pair.Index());
    folder.Write("p.dat", pair.Data());
    const auto table = folder.Path() + "/t.csv";
    RunData({"export", folder.Path(), "--output", table});
    auto text = BytesOf(table);
    const auto lastLine = text.rfind(pair.Parts[2].Names[0]);
    text.replace(lastLine, pair.Parts[2].Names[0].size(), pair.Parts[0].Names[0]);
    folder.Write("t.csv", text + "more\n");

    const auto run = RunData({"build", table, "--output", folder.Path() + "/p"});

    EXPECT_TRUE(run.HasFailed);
    EXPECT_EQ(run.Failure, "");
    EXPECT_EQ(run.Notes, table + ": line 4: global part number EIA: \"" + pair.Parts[0].Names[0] +
                             "\": the part number stands in line 2 already\n" + table +
                             ": line 5: 1 cells instead of 74\n");
    EXPECT_EQ(BytesOf(folder.Path() + "/p.idx"), pair.Index());
    EXPECT_EQ(BytesOf(folder.Path() + "/p.dat"), pair.Data());
}

/// The sample range with another output each, and a table of it.
class BuildTest : public testing::Test
{
protected:
    BuildTest()
    {
        folder.Write("p.idx", pair.Index());
        folder.Write("p.dat", pair.Data());
        RunData({"export", folder.Path(), "--output", table});
        const auto text = BytesOf(table);
        folder.Write("empty.csv", text.substr(0, text.find('\n') + 1));
    }
    std::string File(const std::string& name) const { return folder.Path() + "/" + name; }

    const SmallPair pair;
    const TemporaryFolder folder;
    const std::string table = folder.Path() + "/t.csv";
};

TEST_F(BuildTest, TellsFileNamesWithoutTheirCommandsToATerminal)
{
    const std::string line = "a\n\x1B[2J";
    const auto strange = folder.Write(line + ".csv", BytesOf(table) + "more\n");
    folder.Write(line + ".idx", pair.Index());
    folder.Write(line + ".dat", pair.Data() + "x");
    const auto faulty = RunData({"build", strange.string(), "--output", File("q")});
    const auto behind = RunData({"build", table, "--output", File(line + "b")});
    const auto exported = RunData({"export", File(line + ".idx"), "--output", File("u.csv")});
    for (const auto& run : {faulty, behind, exported})
    {
        EXPECT_THAT(run.Notes, HasSubstr("a\\x0A\\x1B[2J"));
        EXPECT_EQ(run.Notes.find('\x1B'), std::string::npos) << run.Notes;
    }
}

TEST_F(BuildTest, TellsPartsBeforeAndAfterAndWhatACheckFinds)
{
    const auto first = RunData({"build", table, "--output", File("q")});
    EXPECT_EQ(first.Failure, "");
    EXPECT_THAT(first.Notes, StartsWith("q.idx: note: p.idx comes first in " + folder.Path() +
                                        " and is loaded instead\n"));
    EXPECT_THAT(first.Notes, testing::EndsWith("0 parts, 3 after it\n3 parts, 0 errors, 0 warnings\n"));
    EXPECT_EQ(RunData({"build", table, "--output", File("p.idx")}).Notes,
              "3 parts, 3 after it\n3 parts, 0 errors, 0 warnings\n");
    EXPECT_EQ(BytesOf(File("p.idx")), pair.Index());
}

TEST_F(BuildTest, ReplacesARangeByAnEmptyOneOnlyByForce)
{
    const auto refused = RunData({"build", File("empty.csv"), "--output", File("p")});
    EXPECT_THAT(refused.Failure, HasSubstr("has no parts"));
    EXPECT_EQ(refused.Notes, "");
    EXPECT_EQ(BytesOf(File("p.idx")), pair.Index());
    const auto forced = RunData({"build", File("empty.csv"), "--output", File("p"), "--force"});
    EXPECT_EQ(forced.Failure, "");
    EXPECT_EQ(forced.Notes, "3 parts, 0 after it\n0 parts, 0 errors, 0 warnings\n");
    EXPECT_EQ(BytesOf(File("p.idx")), "");
}

TEST_F(BuildTest, SaysTheSameAndWritesNothingInADryRun)
{
    const auto dry = RunData({"build", File("empty.csv"), "--output", File("p"), "--force", "--dry-run"});
    EXPECT_EQ(dry.Notes, "3 parts, 0 after it\n0 parts, 0 errors, 0 warnings\n");
    EXPECT_EQ(BytesOf(File("p.idx")), pair.Index());
    RunData({"build", table, "--output", File("q"), "--dry-run"});
    EXPECT_FALSE(std::filesystem::exists(File("q.idx")));
    EXPECT_EQ(RunData({"build", table, "--output", File("none/q"), "--dry-run"}).Failure,
              "Run-time error '76': Path not found: " + File("none/q.dat"));
}

TEST_F(BuildTest, NeverTakesThePlaceOfItsTable)
{
    std::filesystem::create_hard_link(table, File("t.idx"));
    const auto run = RunData({"build", table, "--output", File("t")});
    EXPECT_EQ(run.Failure, File("t.idx") + ": is " + table + ", which this command reads");
    EXPECT_FALSE(std::filesystem::exists(File("t.dat")));
}

TEST_F(BuildTest, RefusesNamesThatAreNone)
{
    std::filesystem::create_directory(File("f"));
    for (const std::string& name : {std::string(), std::string("-"), std::string("."), std::string(".."),
                                    folder.Path() + "/", folder.Path(), File("f")})
    {
        EXPECT_THAT(RunData({"build", table, "--output", name}).Failure, StartsWith("--output: ")) << name;
    }
    EXPECT_THAT(RunData({"build", "", "--output", File("q")}).Failure, HasSubstr("the name is empty"));
    EXPECT_THAT(RunData({"check", "-"}).Failure, HasSubstr("has no place in a stream"));
    EXPECT_THAT(RunData({"export", ""}).Failure, HasSubstr("the name is empty"));
    EXPECT_THAT(RunData({"export", folder.Path(), "--output", ""}).Failure, HasSubstr("the name is empty"));
}

TEST_F(BuildTest, WritesTablesAndReportsToStandardOutputByADash)
{
    EXPECT_EQ(RunData({"export", folder.Path(), "--output", "-"}).Output, BytesOf(table));
    EXPECT_EQ(RunData({"check", folder.Path(), "--output", "-"}).Output, "3 parts, 0 errors, 0 warnings\n");
    EXPECT_EQ(RunData({"check", folder.Path(), "--output", File("report")}).Output, "");
    EXPECT_EQ(BytesOf(File("report")), "3 parts, 0 errors, 0 warnings\n");
}

TEST_F(BuildTest, ExportAndCheckNeverWriteOverThePair)
{
    for (const char* const command : {"export", "check"})
    {
        for (const char* const file : {"p.idx", "p.dat"})
        {
            EXPECT_EQ(RunData({command, folder.Path(), "--output", File(file)}).Failure,
                      File(file) + ": is " + File(file) + ", which this command reads");
        }
    }
    EXPECT_EQ(BytesOf(File("p.idx")), pair.Index());
}

TEST_F(BuildTest, GivesBackNamesThatASpreadsheetTakesForFormulas)
{
    auto text = BytesOf(table);
    text.replace(text.find(pair.Parts[0].Names[0]), pair.Parts[0].Names[0].size(), "=1+2");
    folder.Write("t.csv", text);
    EXPECT_EQ(RunData({"build", table, "--output", File("p")}).Failure, "");
    EXPECT_EQ(RunData({"export", folder.Path()}).Output, text);
    EXPECT_THAT(RunData({"check", folder.Path()}).Output, HasSubstr("[formula]"));
}

TEST(DataExport, RefusesAPairThatDoesNotLoad)
{
    SmallPair pair;
    pair.Parts[1].Names[0] = pair.Parts[0].Names[0];
    const TemporaryFolder folder;
    folder.Write("p.idx", pair.Index());
    folder.Write("p.dat", pair.Data());
    const auto run = RunData({"export", folder.Path(), "--output", folder.Path() + "/t.csv"});
    EXPECT_THAT(run.Failure, StartsWith("Run-time error '457'"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path() + "/t.csv"));
}

TEST(DataCommands, NeedOneCommand)
{
    EXPECT_NE(RunData({}).Failure, "");
    EXPECT_NE(RunData({"build", "t.csv"}).Failure, "");
}
} // namespace
