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
    EXPECT_EQ(run.Failure, "Run-time error '57': Device I/O error: standard output");
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

    EXPECT_EQ(run.Failure, table + ": 2 errors");
    EXPECT_EQ(run.Notes, table + ": line 4: global part number EIA: \"" + pair.Parts[0].Names[0] +
                             "\": the part number stands in line 2 already\n" + table +
                             ": line 5: 1 cells instead of 74\n");
    EXPECT_EQ(BytesOf(folder.Path() + "/p.idx"), pair.Index());
    EXPECT_EQ(BytesOf(folder.Path() + "/p.dat"), pair.Data());
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
