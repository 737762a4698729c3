/// Loads and kills beside builds: nobody ever sees anything but one whole range. `scripts/prove-pairs` runs
/// it at length.

#include "files/PartLoading.h"
#include "partdata/RunTimeError.h"
#include "partfiles/PairReplacement.h"
#include "tests/Seed.h"
#include "tests/partfiles/SmallPair.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <random>
#include <set>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace
{
/// How often something is tried: a few times, or as often as the environment says.
int TimesOf(const char* variable, int usual)
{
    const char* const asked = std::getenv(variable);
    return asked != nullptr ? static_cast<int>(std::strtol(asked, nullptr, 10)) : usual;
}

/// A range whose every name and value tells which range it is of.
PairBytes RangeOf(const std::string& mark, float volts, int parts)
{
    PairBytes pair;
    for (int i = 0; i < parts; ++i)
    {
        for (int field = 0; field < static_cast<int>(NameFields); ++field)
        {
            pair.Index +=
                (field == 0 ? "\"" : ",\"") + mark + std::to_string(i) + "-" + std::to_string(field) + "\"";
        }
        pair.Index += "\n";
        std::array<float, DataValues> values{};
        values.fill(volts);
        values[0] = static_cast<float>(i);
        AddDataRecord(pair.Data, values);
    }
    return pair;
}

const std::vector<PairBytes>& Ranges()
{
    static const std::vector<PairBytes> ranges = {RangeOf("A", 1, 1179), RangeOf("B", 2, 300)};
    return ranges;
}

/// "A" or "B" for a whole range, or what is wrong with what is seen.
std::string Seen(const std::string& folder)
{
    try
    {
        const auto table = LoadPartData(folder);
        const bool isA = table.PartData.size() == 1179;
        if (!isA && table.PartData.size() != 300)
        {
            return "shortened to " + std::to_string(table.PartData.size());
        }
        for (std::size_t i = 0; i < table.PartData.size(); ++i)
        {
            const auto& part = table.PartData[i];
            const bool fits = part.PartNum[0] == (isA ? "A" : "B") + std::to_string(i) + "-0" &&
                              part.Data[0] == static_cast<float>(i) && part.Data[65] == (isA ? 1 : 2);
            if (!fits)
            {
                return "mixed at " + std::to_string(i);
            }
        }
        return isA ? "A" : "B";
    }
    catch (const RunTimeError& error)
    {
        return error.what();
    }
}

/// Builds one range after the other, until it is killed.
[[noreturn]] void BuildForever(const std::string& name)
{
    try
    {
        for (std::size_t i = 0;; ++i)
        {
            ReplacePair(name, Ranges()[i % 2]);
        }
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "a build failed: %s\n", error.what());
        _exit(1);
    }
}

/// The process of builds without an end; ended with the object.
class Builder
{
public:
    explicit Builder(const std::string& name)
        : process(fork())
    {
        if (process == 0)
        {
            BuildForever(name);
        }
    }
    ~Builder() { Kill(); }
    Builder(const Builder&) = delete;
    Builder& operator=(const Builder&) = delete;

    /// True when it was still building.
    bool Kill()
    {
        if (process <= 0)
        {
            return false;
        }
        kill(process, SIGKILL);
        int status = 0;
        waitpid(process, &status, 0);
        process = 0;
        return WIFSIGNALED(status);
    }

private:
    pid_t process;
};

std::vector<std::string> FilesIn(const std::string& folder)
{
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
    {
        files.push_back(entry.path().filename().string());
    }
    std::ranges::sort(files);
    return files;
}

TEST(PairProof, AKillAtAnyMomentLeavesOneWholeRange)
{
    const int kills = TimesOf("TAVIK_PAIR_KILLS", 40);
    std::mt19937 random(TestSeed(18));
    std::uniform_int_distribution<int> microseconds(0, 30000);
    const TemporaryFolder folder;
    const auto name = folder.Path() + "/p";
    ReplacePair(name, Ranges()[0]);
    int unfinished = 0;
    for (int i = 0; i < kills; ++i)
    {
        Builder builder(name);
        usleep(static_cast<useconds_t>(microseconds(random)));
        ASSERT_TRUE(builder.Kill());
        const auto seen = Seen(folder.Path());
        ASSERT_TRUE(seen == "A" || seen == "B") << "kill " << i << ": " << seen;
        const auto files = FilesIn(folder.Path());
        ASSERT_LE(files.size(), 4U) << "kill " << i << ": leftovers pile up";
        unfinished += files.size() == 2 ? 0 : 1;
    }
    std::printf("%d kills, %d of them within a build, no mixed and no shortened range\n", kills, unfinished);
    ReplacePair(name, Ranges()[1]);
    EXPECT_EQ(Seen(folder.Path()), "B");
    EXPECT_EQ(FilesIn(folder.Path()), (std::vector<std::string>{"p.dat", "p.idx"}));
    EXPECT_EQ(BytesOf(name + ".idx"), Ranges()[1].Index);
    EXPECT_EQ(BytesOf(name + ".dat"), Ranges()[1].Data);
}

TEST(PairProof, EveryLoadBesideBuildsSeesOneWholeRange)
{
    const int loads = TimesOf("TAVIK_PAIR_LOADS", 2000);
    const TemporaryFolder folder;
    const auto name = folder.Path() + "/p";
    ReplacePair(name, Ranges()[0]);
    Builder builder(name);
    int changes = 0;
    std::string last = "A";
    for (int i = 0; i < loads; ++i)
    {
        const auto seen = Seen(folder.Path());
        ASSERT_TRUE(seen == "A" || seen == "B") << "load " << i << ": " << seen;
        changes += seen == last ? 0 : 1;
        last = seen;
    }
    EXPECT_TRUE(builder.Kill()) << "the builds ended too early";
    EXPECT_GT(changes, 0) << "no build came between the loads";
    std::printf("%d loads, %d changes of the range between them, no mixed and no shortened range\n", loads,
                changes);
}
} // namespace
