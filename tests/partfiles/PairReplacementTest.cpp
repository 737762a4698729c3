#include "partfiles/PairReplacement.h"

#include "files/PartLoading.h"
#include "partdata/RunTimeError.h"
#include "partfiles/PairBytes.h"
#include "tests/calc/NamedRow.h"
#include "tests/partfiles/SmallPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <map>
#include <stdexcept>

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
class Replacement
{
public:
    Replacement()
        : paths{folder.Path() + "/p.idx", folder.Path() + "/p.dat"}
    {
    }
    void Write(const PairBytes& pair) const
    {
        folder.Write("p.idx", pair.Index);
        folder.Write("p.dat", pair.Data);
    }
    std::size_t FileCount() const
    {
        const std::filesystem::directory_iterator files(folder.Path());
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }
    const PairPaths& Paths() const { return paths; }

private:
    TemporaryFolder folder;
    PairPaths paths;
};

struct Change
{
    std::string Name;
    Volts Old;
    Volts New;
    /// What both begin with: the least that a reader may see in between.
    std::size_t Common;
};

const Volts ThreeParts = {{"A", 10.0F}, {"B", 20.0F}, {"C", 30.0F}};

const std::vector<Change> Changes = {
    {"part inserted", ThreeParts, {{"A", 10.0F}, {"X", 15.0F}, {"B", 20.0F}, {"C", 30.0F}}, 1},
    {"part removed", ThreeParts, {{"B", 20.0F}, {"C", 30.0F}}, 0},
    {"part appended", ThreeParts, {{"A", 10.0F}, {"B", 20.0F}, {"C", 30.0F}, {"D", 40.0F}}, 3},
    {"last part dropped", ThreeParts, {{"A", 10.0F}, {"B", 20.0F}}, 2},
    {"only data changed", ThreeParts, {{"A", 11.0F}, {"B", 21.0F}, {"C", 31.0F}}, 3},
    {"all parts others", ThreeParts, {{"X", 1.0F}, {"Y", 2.0F}}, 0},
    {"old range empty", {}, ThreeParts, 0},
    {"new range empty", ThreeParts, {}, 0},
};

/// Every part in the folder has its own data, old or new, and the common parts are there.
void ExpectGoodPair(const Replacement& replacement, const Change& change)
{
    const auto parts = PartsIn(replacement.Paths());
    EXPECT_GE(parts.size(), change.Common);
    const std::map<std::string, float> before(change.Old.begin(), change.Old.end());
    const std::map<std::string, float> after(change.New.begin(), change.New.end());
    for (const auto& [name, volts] : parts)
    {
        const bool isOld = before.contains(name) && before.at(name) == volts;
        const bool isNew = after.contains(name) && after.at(name) == volts;
        EXPECT_TRUE(isOld || isNew) << name << " with " << volts;
    }
}

class ReplacementTest : public testing::TestWithParam<Change>
{
};

TEST_P(ReplacementTest, PutsTheNewPairInPlace)
{
    const Replacement replacement;
    replacement.Write(PairOf(GetParam().Old));
    ReplacePair(replacement.Paths(), PairOf(GetParam().New));
    EXPECT_EQ(PartsIn(replacement.Paths()), GetParam().New);
    EXPECT_EQ(replacement.FileCount(), 2U);
}

TEST_P(ReplacementTest, ShowsAGoodPairBeforeAndAfterEveryStep)
{
    const Replacement replacement;
    replacement.Write(PairOf(GetParam().Old));
    ReplacePair(replacement.Paths(), PairOf(GetParam().New),
                [&](const auto& finished, const auto& target)
                {
                    ExpectGoodPair(replacement, GetParam());
                    PutInPlace(finished, target);
                    ExpectGoodPair(replacement, GetParam());
                });
}

TEST_P(ReplacementTest, PutsTheOldPairBackAfterAFaultAtAnyStep)
{
    const auto old = PairOf(GetParam().Old);
    int failing = 0;
    for (bool failed = true; failed; ++failing)
    {
        const Replacement replacement;
        replacement.Write(old);
        int steps = 0;
        const auto place = [&](const auto& finished, const auto& target)
        {
            if (steps++ == failing)
            {
                throw RunTimeError(RunTimeErrorNumber::DiskFull);
            }
            PutInPlace(finished, target);
        };
        try
        {
            ReplacePair(replacement.Paths(), PairOf(GetParam().New), place);
            failed = false;
        }
        catch (const RunTimeError&)
        {
            EXPECT_EQ(BytesOf(replacement.Paths().Index), old.Index) << "step " << failing;
            EXPECT_EQ(BytesOf(replacement.Paths().Data), old.Data) << "step " << failing;
        }
        EXPECT_EQ(replacement.FileCount(), 2U);
    }
    // Two steps at least have failed before all went well.
    EXPECT_GE(failing, 3);
}

TEST_P(ReplacementTest, LeavesAGoodPairWhenKilledAtAnyStep)
{
    constexpr int MostSteps = 3;
    for (int fatal = 0; fatal <= MostSteps; ++fatal)
    {
        const Replacement replacement;
        replacement.Write(PairOf(GetParam().Old));
        const auto child = fork();
        if (child == 0)
        {
            int steps = 0;
            ReplacePair(replacement.Paths(), PairOf(GetParam().New),
                        [&](const auto& finished, const auto& target)
                        {
                            if (steps++ == fatal)
                            {
                                raise(SIGKILL);
                            }
                            PutInPlace(finished, target);
                        });
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ExpectGoodPair(replacement, GetParam());
        if (WIFEXITED(status))
        {
            EXPECT_EQ(PartsIn(replacement.Paths()), GetParam().New);
        }
        else
        {
            EXPECT_EQ(WTERMSIG(status), SIGKILL);
            // Building once more gets there, whatever was left behind.
            ReplacePair(replacement.Paths(), PairOf(GetParam().New));
            EXPECT_EQ(PartsIn(replacement.Paths()), GetParam().New);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Changes, ReplacementTest, testing::ValuesIn(Changes), RowName<Change>);

TEST(PairReplacement, ShowsNoPairBeforeAFirstOneIsWhole)
{
    const Replacement replacement;
    ReplacePair(replacement.Paths(), PairOf(ThreeParts),
                [&](const auto& finished, const auto& target)
                {
                    EXPECT_FALSE(std::filesystem::exists(replacement.Paths().Index));
                    PutInPlace(finished, target);
                });
    EXPECT_EQ(PartsIn(replacement.Paths()), ThreeParts);
}

TEST(PairReplacement, LeavesNothingOfAFirstPairThatFails)
{
    const Replacement replacement;
    int steps = 0;
    EXPECT_THROW(ReplacePair(replacement.Paths(), PairOf(ThreeParts),
                             [&](const auto& finished, const auto& target)
                             {
                                 if (++steps == 2)
                                 {
                                     throw RunTimeError(RunTimeErrorNumber::DiskFull);
                                 }
                                 PutInPlace(finished, target);
                             }),
                 RunTimeError);
    EXPECT_EQ(replacement.FileCount(), 0U);
}

TEST(PairReplacement, ReplacesAPairThatCannotBeLoaded)
{
    const Replacement replacement;
    replacement.Write({.Index = "\"A\",\"unclosed", .Data = "x"});
    ReplacePair(replacement.Paths(), PairOf(ThreeParts));
    EXPECT_EQ(PartsIn(replacement.Paths()), ThreeParts);
}

TEST(PairReplacement, LeavesTheCommonPartsWhereTheOldDataCannotComeBack)
{
    const Replacement replacement;
    replacement.Write(PairOf(ThreeParts));
    const Volts newParts = {{"A", 10.0F}, {"X", 15.0F}, {"B", 20.0F}, {"C", 30.0F}};
    const auto place = [&](const auto& finished, const auto& target)
    {
        PutInPlace(finished, target);
        if (target == replacement.Paths().Data)
        {
            // A pipe of this name keeps any data from coming back.
            std::filesystem::remove(target);
            EXPECT_EQ(mkfifo(target.c_str(), 0600), 0);
            throw RunTimeError(RunTimeErrorNumber::DiskFull);
        }
    };
    EXPECT_THROW(ReplacePair(replacement.Paths(), PairOf(newParts), place), RunTimeError);
    EXPECT_EQ(BytesOf(replacement.Paths().Index), PairOf({{"A", 10.0F}}).Index);
    EXPECT_TRUE(std::filesystem::is_fifo(replacement.Paths().Data));
    EXPECT_EQ(replacement.FileCount(), 2U);
}

TEST(PairReplacement, RefusesAFolderThatIsNotThere)
{
    const PairPaths paths = {"/nowhere/at/all.idx", "/nowhere/at/all.dat"};
    try
    {
        ReplacePair(paths, PairOf(ThreeParts));
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
    const TemporaryFolder folder;
    folder.Write("real.idx", "");
    std::filesystem::permissions(folder.Path() + "/real.idx", std::filesystem::perms{0640});
    std::filesystem::create_symlink("real.idx", folder.Path() + "/p.idx");
    const PairPaths paths = {folder.Path() + "/p.idx", folder.Path() + "/p.dat"};
    ReplacePair(paths, PairOf(ThreeParts));
    EXPECT_TRUE(std::filesystem::is_symlink(paths.Index));
    EXPECT_EQ(BytesOf(folder.Path() + "/real.idx"), PairOf(ThreeParts).Index);
    EXPECT_EQ(std::filesystem::status(paths.Index).permissions(), std::filesystem::perms{0640});
}

TEST(PairReplacement, RefusesAWriteProtectedFile)
{
    if (geteuid() == 0)
    {
        GTEST_SKIP() << "nothing is write-protected from root";
    }
    const Replacement replacement;
    replacement.Write(PairOf(ThreeParts));
    std::filesystem::permissions(replacement.Paths().Index, std::filesystem::perms{0444});
    EXPECT_THROW(ReplacePair(replacement.Paths(), PairOf({})), RunTimeError);
    EXPECT_EQ(PartsIn(replacement.Paths()), ThreeParts);
}

TEST(PairReplacement, PutsNoFileInThePlaceOfAPipe)
{
    const Replacement replacement;
    replacement.Write(PairOf(ThreeParts));
    const std::string pipe = replacement.Paths().Index.string() + ".pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_THROW(PutInPlace(replacement.Paths().Data, pipe), RunTimeError);
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
    EXPECT_EQ(PartsIn(replacement.Paths()), ThreeParts);
}
} // namespace
