#include "cli/DataCommands.h"

#include "cli/Command.h"
#include "files/PartLoading.h"
#include "tests/calc/NamedRow.h"
#include "tests/cli/CommandRun.h"
#include "tests/partfiles/SmallPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
struct Pair
{
    std::string Name;
    /// Both files without their extension.
    std::string Files;
};

class RoundTripTest : public testing::TestWithParam<Pair>
{
};

TEST_P(RoundTripTest, GivesTheSameBytes)
{
    const TemporaryFolder folder;
    const auto table = folder.Path() + "/table.csv";
    const auto exported = RunData({"export", GetParam().Files + ".idx", "--output", table});
    EXPECT_EQ(exported.Notes, "");
    EXPECT_EQ(RunData({"build", table, "--output", folder.Path() + "/again"}).Failure, "");
    // Compared as one truth value: a failing test should not print the files.
    EXPECT_TRUE(BytesOf(folder.Path() + "/again.idx") == BytesOf(GetParam().Files + ".idx"));
    EXPECT_TRUE(BytesOf(folder.Path() + "/again.dat") == BytesOf(GetParam().Files + ".dat"));
    EXPECT_GT(BytesOf(folder.Path() + "/again.dat").size(), 264U);
}

INSTANTIATE_TEST_SUITE_P(Pairs, RoundTripTest,
                         testing::Values(Pair{"sample range", SAMPLE_DATA "/halvex"},
                                         Pair{"curve vectors", TEST_DATA "/calc/vectors/vectors"}),
                         RowName<Pair>);

TEST(TableExport, NotesAnIndexThatComesBackInAnotherForm)
{
    const TemporaryFolder folder;
    folder.Write("p.idx", "a1, a2 ,\"a,3\",a4\n0402,1005,X7R,R\x1A");
    folder.Write("p.dat", std::string(264, '\0'));
    const auto table = folder.Path() + "/t.csv";
    EXPECT_THAT(RunData({"export", folder.Path(), "--output", table}).Notes,
                testing::StartsWith("p.idx: note: not in canonical form"));
    RunData({"build", table, "--output", folder.Path() + "/q", "--force"});
    EXPECT_EQ(BytesOf(folder.Path() + "/q.idx"),
              "\"a1\",\"a2\",\"a,3\",\"a4\",\"0402\",\"1005\",\"X7R\",\"R\"\n");
}

TEST(TableExport, NotesDataThatAreLeftOut)
{
    const TemporaryFolder folder;
    folder.Write("p.idx", "\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"7\",\"8\"\n");
    folder.Write("p.dat", std::string(300, '\0'));
    const auto run = RunData({"export", folder.Path()});
    EXPECT_EQ(run.Notes, "p.dat: note: 36 bytes behind the data of the last part are left out\n");
    EXPECT_THAT(run.Output, testing::StartsWith("global part number EIA,global part number JIS,"));
    EXPECT_THAT(run.Output, testing::HasSubstr("\n1,2,3,4,5,6,7,8,0,0,"));
}

TEST(TableExport, NotesDataThatAreMissing)
{
    const TemporaryFolder folder;
    folder.Write("p.idx", "\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"7\",\"8\"\n");
    folder.Write("p.dat", std::string(263, '\0'));
    EXPECT_EQ(RunData({"export", folder.Path()}).Notes,
              "p.dat: note: the data from record 1 on are missing; build will write zeros\n");
}

TEST(TableExport, KeepsNamesOfEveryCharacter)
{
    // Every byte but quotes, in quotes; and a quote in a name without quotes.
    std::string name = "x";
    for (int code = 0; code < 256; ++code)
    {
        if (code != '"')
        {
            name += static_cast<char>(code);
        }
    }
    const TemporaryFolder folder;
    const auto index = "\"" + name + "\",2\"2,\" 3 \",\"\",\"5\",\"6\",\"7\",\"8\"\n";
    folder.Write("p.idx", index);
    folder.Write("p.dat", std::string(264, '\1'));
    RunData({"export", folder.Path(), "--output", folder.Path() + "/t.csv"});
    RunData({"build", folder.Path() + "/t.csv", "--output", folder.Path() + "/q.idx"});
    EXPECT_EQ(BytesOf(folder.Path() + "/q.idx"), index);
    EXPECT_EQ(BytesOf(folder.Path() + "/q.dat"), std::string(264, '\1'));
}

TEST(TableExport, KeepsAnEmptyRange)
{
    const TemporaryFolder folder;
    folder.Write("p.idx", "");
    folder.Write("p.dat", "");
    RunData({"export", folder.Path(), "--output", folder.Path() + "/t.csv"});
    RunData({"build", folder.Path() + "/t.csv", "--output", folder.Path() + "/q", "--force"});
    EXPECT_EQ(BytesOf(folder.Path() + "/q.idx"), "");
    EXPECT_EQ(ReadPartPair(folder.Path() + "/q.idx", folder.Path() + "/q.dat").PartMax, -1);
}
} // namespace
