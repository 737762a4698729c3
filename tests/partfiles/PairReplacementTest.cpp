#include "partfiles/PairReplacement.h"

#include "files/PartFiles.h"
#include "files/PartLoading.h"
#include "partdata/RunTimeError.h"
#include "partfiles/PairBytes.h"
#include "partfiles/PairCheck.h"
#include "tests/calc/NamedRow.h"
#include "tests/partfiles/SmallPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <thread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
/// Parts by their number, each with a rated voltage that tells whose data it has.
using Volts = std::vector<std::pair<std::string, float>>;

PairBytes PairOf(const Volts& parts)
{
    PairBytes pair;
    for (const auto& [name, volts] : parts)
    {
        pair.Index += "\"" + name + "\",\"" + name + "\",\"" + name + "\",\"" + name +
                      "\",\"0402\",\"1005\",\"X7R\",\"R\"\n";
        std::array<float, DataValues> values{};
        values[2] = volts;
        AddDataRecord(pair.Data, values);
    }
    return pair;
}

Volts PartsIn(const PairPaths& paths)
{
    Volts parts;
    for (const auto& part : ReadPartPair(paths.Index, paths.Data).PartData)
    {
        parts.emplace_back(part.PartNum[0], part.Data[Value::RatedVoltage]);
    }
    return parts;
}

/// A folder with an old pair that is to be replaced.
class PairFolder
{
public:
    PairFolder()
        : name(folder.Path() + "/p")
        , paths(PairNamed(name))
    {
    }
    void Write(const PairBytes& pair) const
    {
        folder.Write("p.idx", pair.Index);
        folder.Write("p.dat", pair.Data);
    }
    std::vector<std::string> Files() const
    {
        std::vector<std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        {
            files.push_back(entry.path().filename().string());
        }
        std::ranges::sort(files);
        return files;
    }
    std::string Path() const { return folder.Path(); }
    const std::string& Name() const { return name; }
    const PairPaths& Paths() const { return paths; }

private:
    TemporaryFolder folder;
    std::string name;
    PairPaths paths;
};

const std::vector<std::string> PairAlone = {"p.dat", "p.idx"};

struct Change
{
    std::string Name;
    Volts Old;
    Volts New;
};

const Volts ThreeParts = {{"A", 10.0F}, {"B", 20.0F}, {"C", 30.0F}};

const std::vector<Change> Changes = {
    {"part inserted", ThreeParts, {{"A", 10.0F}, {"X", 15.0F}, {"B", 20.0F}, {"C", 30.0F}}},
    {"part removed", ThreeParts, {{"B", 20.0F}, {"C", 30.0F}}},
    {"part appended", ThreeParts, {{"A", 10.0F}, {"B", 20.0F}, {"C", 30.0F}, {"D", 40.0F}}},
    {"last part dropped", ThreeParts, {{"A", 10.0F}, {"B", 20.0F}}},
    {"only data changed", ThreeParts, {{"A", 11.0F}, {"B", 21.0F}, {"C", 31.0F}}},
    {"all parts others", ThreeParts, {{"X", 1.0F}, {"Y", 2.0F}}},
    {"old range empty", {}, ThreeParts},
    {"new range empty", ThreeParts, {}},
};

/// Steps of a replacement before the new pair counts, and all of them.
constexpr int StepsBefore = 4;
constexpr int AllSteps = 7;

/// Throws at one step, counted from 0.
BeforeStep FailingAt(int failing)
{
    return [failing, step = 0]() mutable
    {
        if (step++ == failing)
        {
            throw RunTimeError(RunTimeErrorNumber::DiskFull);
        }
    };
}

/// The whole old range before the deciding step, the whole new one after it.
void ExpectWhole(const PairFolder& folder, const Change& change, int stepsDone)
{
    EXPECT_EQ(PartsIn(folder.Paths()), stepsDone < StepsBefore ? change.Old : change.New)
        << "after " << stepsDone << " steps";
    EXPECT_EQ(CheckPair(folder.Path()).Parts, (stepsDone < StepsBefore ? change.Old : change.New).size());
}

class ReplacementTest : public testing::TestWithParam<Change>
{
};

TEST_P(ReplacementTest, PutsTheNewPairInPlace)
{
    const PairFolder folder;
    folder.Write(PairOf(GetParam().Old));
    ReplacePair(folder.Name(), PairOf(GetParam().New));
    EXPECT_EQ(PartsIn(folder.Paths()), GetParam().New);
    EXPECT_EQ(BytesOf(folder.Paths().Index), PairOf(GetParam().New).Index);
    EXPECT_EQ(BytesOf(folder.Paths().Data), PairOf(GetParam().New).Data);
    EXPECT_EQ(folder.Files(), PairAlone);
}

TEST_P(ReplacementTest, ShowsTheOldOrTheNewRangeBeforeEveryStep)
{
    const PairFolder folder;
    folder.Write(PairOf(GetParam().Old));
    int steps = 0;
    ReplacePair(folder.Name(), PairOf(GetParam().New), [&] { ExpectWhole(folder, GetParam(), steps++); });
    EXPECT_EQ(steps, AllSteps);
}

TEST_P(ReplacementTest, KeepsTheOldPairAfterAFaultBeforeTheNewOneCounts)
{
    for (int failing = 0; failing < StepsBefore; ++failing)
    {
        const PairFolder folder;
        folder.Write(PairOf(GetParam().Old));
        EXPECT_THROW(ReplacePair(folder.Name(), PairOf(GetParam().New), FailingAt(failing)), RunTimeError);
        EXPECT_EQ(BytesOf(folder.Paths().Index), PairOf(GetParam().Old).Index) << "step " << failing;
        EXPECT_EQ(BytesOf(folder.Paths().Data), PairOf(GetParam().Old).Data) << "step " << failing;
        EXPECT_EQ(folder.Files(), PairAlone);
    }
}

TEST_P(ReplacementTest, ShowsTheNewPairAfterALaterFaultUntilTheNextWriterFinishesIt)
{
    for (int failing = StepsBefore; failing < AllSteps; ++failing)
    {
        const PairFolder folder;
        folder.Write(PairOf(GetParam().Old));
        EXPECT_THROW(ReplacePair(folder.Name(), PairOf(GetParam().New), FailingAt(failing)), RunTimeError);
        ExpectWhole(folder, GetParam(), failing);
        ReplacePair(folder.Path() + "/q", PairOf({{"Q", 1.0F}}));
        EXPECT_EQ(BytesOf(folder.Paths().Index), PairOf(GetParam().New).Index) << "step " << failing;
        EXPECT_EQ(BytesOf(folder.Paths().Data), PairOf(GetParam().New).Data) << "step " << failing;
        EXPECT_EQ(folder.Files(), (std::vector<std::string>{"p.dat", "p.idx", "q.dat", "q.idx"}));
    }
}

TEST_P(ReplacementTest, LeavesOneWholePairWhenKilledAtAnyStep)
{
    for (int fatal = 0; fatal < AllSteps; ++fatal)
    {
        const PairFolder folder;
        folder.Write(PairOf(GetParam().Old));
        const auto child = fork();
        if (child == 0)
        {
            int steps = 0;
            ReplacePair(folder.Name(), PairOf(GetParam().New),
                        [&]
                        {
                            if (steps++ == fatal)
                            {
                                raise(SIGKILL);
                            }
                        });
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "step " << fatal;
        ExpectWhole(folder, GetParam(), fatal);
        // Building once more gets there, and clears whatever was left behind.
        ReplacePair(folder.Name(), PairOf(GetParam().Old));
        EXPECT_EQ(PartsIn(folder.Paths()), GetParam().Old);
        EXPECT_EQ(folder.Files(), PairAlone);
    }
}

INSTANTIATE_TEST_SUITE_P(Changes, ReplacementTest, testing::ValuesIn(Changes), RowName<Change>);

TEST(PairReplacement, LetsAFirstPairAppearAtOnceBesideAnother)
{
    const PairFolder folder;
    folder.Write(PairOf({}));
    ReplacePair(folder.Path() + "/z", PairOf({{"Z", 5.0F}}));
    std::filesystem::remove(folder.Paths().Index);
    std::filesystem::remove(folder.Paths().Data);
    int steps = 0;
    const auto expectOne = [&]
    {
        const auto table = LoadPartData(folder.Path());
        ASSERT_FALSE(table.PartData.empty());
        const bool isNew = steps++ >= StepsBefore;
        EXPECT_EQ(table.PartData.front().PartNum[0], isNew ? "A" : "Z") << "step " << steps;
        EXPECT_EQ(table.PartData.front().Data[Value::RatedVoltage], isNew ? 10.0F : 5.0F);
    };
    ReplacePair(folder.Name(), PairOf(ThreeParts), expectOne);
    EXPECT_EQ(steps, AllSteps);
}

TEST(PairReplacement, LeavesNothingOfAFirstPairThatFails)
{
    const PairFolder folder;
    EXPECT_THROW(ReplacePair(folder.Name(), PairOf(ThreeParts), FailingAt(2)), RunTimeError);
    EXPECT_TRUE(folder.Files().empty());
}

TEST(PairReplacement, ReplacesAPairThatCannotBeLoaded)
{
    const PairFolder folder;
    folder.Write({.Index = "\"A\",\"unclosed", .Data = "x"});
    ReplacePair(folder.Name(), PairOf(ThreeParts));
    EXPECT_EQ(PartsIn(folder.Paths()), ThreeParts);
}

TEST(PairReplacement, WaitsForAnotherWriterAndLetsItFinish)
{
    const PairFolder folder;
    std::thread other;
    ReplacePair(folder.Name(), PairOf(ThreeParts),
                [&]
                {
                    if (!other.joinable())
                    {
                        other = std::thread([&] { ReplacePair(folder.Name(), PairOf({{"N", 1.0F}})); });
                        std::this_thread::sleep_for(std::chrono::milliseconds(30));
                    }
                    EXPECT_FALSE(std::filesystem::exists(folder.Paths().Index) &&
                                 PartsIn(folder.Paths()) == Volts({{"N", 1.0F}}));
                });
    other.join();
    EXPECT_EQ(PartsIn(folder.Paths()), Volts({{"N", 1.0F}}));
    EXPECT_EQ(folder.Files(), PairAlone);
}

TEST(PairReplacement, LeavesFilesAloneThatOnlyLookLikeItsOwn)
{
    const PairFolder folder;
    std::ofstream(folder.Path() + "/p.dat.backup") << "mine";
    std::ofstream(folder.Path() + "/.hidden") << "mine";
    std::filesystem::create_directory(folder.Path() + "/.new");
    ReplacePair(folder.Name(), PairOf(ThreeParts));
    EXPECT_EQ(folder.Files(),
              (std::vector<std::string>{".hidden", ".new", "p.dat", "p.dat.backup", "p.idx"}));
}

TEST(PairReplacement, RefusesAFolderThatIsNotThere)
{
    try
    {
        ReplacePair("/nowhere/at/all", PairOf(ThreeParts));
        FAIL() << "no error";
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), 76);
        EXPECT_EQ(error.Place(), "/nowhere/at/all.dat");
    }
}

TEST(PairReplacement, KeepsLinksAndRights)
{
    const TemporaryFolder elsewhere;
    const auto real = elsewhere.Write("real.idx", "");
    std::filesystem::permissions(real, std::filesystem::perms{0640});
    const PairFolder folder;
    std::filesystem::create_symlink(real, folder.Paths().Index);
    std::ofstream(folder.Paths().Data) << "";
    std::filesystem::permissions(folder.Paths().Data, std::filesystem::perms{0600});
    ReplacePair(folder.Name(), PairOf(ThreeParts));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Paths().Index));
    EXPECT_EQ(BytesOf(real), PairOf(ThreeParts).Index);
    EXPECT_EQ(std::filesystem::status(real).permissions(), std::filesystem::perms{0640});
    EXPECT_EQ(std::filesystem::status(folder.Paths().Data).permissions(), std::filesystem::perms{0600});
    EXPECT_EQ(folder.Files(), PairAlone);
}

TEST(PairReplacement, RefusesAWriteProtectedFile)
{
    if (geteuid() == 0)
    {
        GTEST_SKIP() << "nothing is write-protected from root";
    }
    const PairFolder folder;
    folder.Write(PairOf(ThreeParts));
    std::filesystem::permissions(folder.Paths().Index, std::filesystem::perms{0444});
    EXPECT_THROW(ReplacePair(folder.Name(), PairOf({})), RunTimeError);
    EXPECT_EQ(PartsIn(folder.Paths()), ThreeParts);
}

TEST(PairReplacement, PutsNoPairInThePlaceOfAPipeOrAFolder)
{
    const PairFolder folder;
    ASSERT_EQ(mkfifo(folder.Paths().Data.c_str(), 0600), 0);
    EXPECT_THROW(ReplacePair(folder.Name(), PairOf(ThreeParts)), RunTimeError);
    EXPECT_TRUE(std::filesystem::is_fifo(folder.Paths().Data));
    std::filesystem::remove(folder.Paths().Data);
    std::filesystem::create_directory(folder.Paths().Index);
    EXPECT_THROW(ReplacePair(folder.Name(), PairOf(ThreeParts)), RunTimeError);
    EXPECT_EQ(folder.Files(), std::vector<std::string>{"p.idx"});
}
} // namespace
