#include "partfiles/WholeFiles.h"

#include "partdata/RunTimeError.h"
#include "tests/partfiles/SmallPair.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace
{
/// Number and place of the error, or 0 when nothing is thrown.
std::pair<int, std::string> FaultOf(auto&& work)
{
    try
    {
        work();
    }
    catch (const RunTimeError& error)
    {
        return {error.Number(), error.Place()};
    }
    return {0, ""};
}

std::size_t FilesIn(const TemporaryFolder& folder)
{
    const std::filesystem::directory_iterator files(folder.Path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

/// Lets no file of this process grow beyond some bytes.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes)
        : oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &oldLimit);
        const rlimit limit = {.rlim_cur = bytes, .rlim_max = oldLimit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &oldLimit);
        std::signal(SIGXFSZ, oldHandler);
    }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;

private:
    rlimit oldLimit{};
    void (*oldHandler)(int);
};

TEST(StagedFile, IsGoneWithItsObject)
{
    const TemporaryFolder folder;
    {
        const StagedFile staged(folder.Path() + "/a", "new");
        EXPECT_EQ(BytesOf(staged.Path()), "new");
        EXPECT_EQ(FilesIn(folder), 1U);
    }
    EXPECT_EQ(FilesIn(folder), 0U);
}

TEST(StagedFile, ThatCannotBeWrittenToItsEndLeavesNothing)
{
    const TemporaryFolder folder;
    const auto target = folder.Write("a", "old");
    const auto fault = [&]
    {
        const SizeLimit limit(100);
        return FaultOf([&] { const StagedFile staged(target, std::string(101, 'x')); });
    }();
    EXPECT_EQ(fault, std::pair(75, target.string()));
    EXPECT_EQ(FilesIn(folder), 1U);
    EXPECT_EQ(BytesOf(target), "old");
}

TEST(StagedFile, NeedsAFolderThatMayBeWritten)
{
    const auto target = std::string("/sys/kernel/a.idx");
    if (!std::filesystem::is_directory("/sys/kernel"))
    {
        GTEST_SKIP() << "there is no folder here that nobody may write";
    }
    EXPECT_EQ(FaultOf([&] { const StagedFile staged(target, "x"); }), std::pair(70, target));
}

TEST(StagedFile, NeedsANameThatTheFileSystemTakes)
{
    const TemporaryFolder folder;
    const auto target = folder.Path() + "/" + std::string(300, 'a');
    EXPECT_EQ(FaultOf([&] { const StagedFile staged(target, "x"); }), std::pair(75, target));
}

TEST(StagedFile, NeedsAFolderOnItsWay)
{
    const TemporaryFolder folder;
    folder.Write("a", "");
    const auto target = folder.Path() + "/a/b";
    EXPECT_EQ(FaultOf([&] { const StagedFile staged(target, "x"); }), std::pair(76, target));
}

TEST(PutInPlace, LeavesTheTargetWhereTheFinishedFileIsGone)
{
    const TemporaryFolder folder;
    const auto target = folder.Write("a", "old");
    EXPECT_EQ(FaultOf([&] { PutInPlace(folder.Path() + "/none", target); }), std::pair(76, target.string()));
    EXPECT_EQ(BytesOf(target), "old");
}

TEST(PutInPlace, TakesANameInTheFolderAtHand)
{
    const TemporaryFolder folder;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    PutInPlace(StagedFile("a", "new").Path(), "a");
    std::filesystem::current_path(before);
    EXPECT_EQ(BytesOf(folder.Path() + "/a"), "new");
    EXPECT_EQ(FilesIn(folder), 1U);
}
} // namespace
