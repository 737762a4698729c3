#include "files/WholeFile.h"

#include "files/InputFile.h"
#include "partdata/RunTimeError.h"
#include "tests/partdata/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

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

std::string BytesOf(const std::filesystem::path& file)
{
    return ReadBytes(file, 1 << 20);
}

mode_t RightsOf(const std::filesystem::path& file)
{
    struct stat status = {};
    stat(file.c_str(), &status);
    return status.st_mode & 0777U;
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

TEST(StagedWholeFile, IsGoneWithItsObject)
{
    const TemporaryFolder folder;
    {
        const WholeFile staged(folder.Path() + "/a", "new");
        EXPECT_EQ(BytesOf(staged.Path()), "new");
        EXPECT_EQ(FilesIn(folder), 1U);
    }
    EXPECT_EQ(FilesIn(folder), 0U);
}

TEST(StagedWholeFile, ThatCannotBeWrittenToItsEndLeavesNothing)
{
    const TemporaryFolder folder;
    const auto target = folder.Write("a", "old");
    const auto fault = [&]
    {
        const SizeLimit limit(100);
        return FaultOf([&] { const WholeFile staged(target, std::string(101, 'x')); });
    }();
    EXPECT_EQ(fault, std::pair(61, target.string()));
    EXPECT_EQ(FilesIn(folder), 1U);
    EXPECT_EQ(BytesOf(target), "old");
}

TEST(StagedWholeFile, NeedsAFolderThatMayBeWritten)
{
    const auto target = std::string("/sys/kernel/a.idx");
    if (!std::filesystem::is_directory("/sys/kernel"))
    {
        GTEST_SKIP() << "there is no folder here that nobody may write";
    }
    EXPECT_EQ(FaultOf([&] { const WholeFile staged(target, "x"); }), std::pair(70, target));
}

TEST(StagedWholeFile, NeedsANameThatTheFileSystemTakes)
{
    const TemporaryFolder folder;
    const auto target = folder.Path() + "/" + std::string(300, 'a');
    EXPECT_EQ(FaultOf([&] { const WholeFile staged(target, "x"); }), std::pair(75, target));
}

TEST(StagedWholeFile, NeedsAFolderOnItsWay)
{
    const TemporaryFolder folder;
    folder.Write("a", "");
    const auto target = folder.Path() + "/a/b";
    EXPECT_EQ(FaultOf([&] { const WholeFile staged(target, "x"); }), std::pair(76, target));
}

TEST(StagedWholeFile, HoldsAllPiecesInTheirOrder)
{
    const TemporaryFolder folder;
    const auto target = std::filesystem::path(folder.Path()) / "a";
    std::string expected;
    {
        WholeFile whole(target);
        for (const std::size_t size : {1U, 0U, 65535U, 1U, 70000U, 3U, 65536U, 65537U})
        {
            const std::string piece(size, static_cast<char>('a' + expected.size() % 26));
            whole.Write(piece);
            expected += piece;
        }
        EXPECT_FALSE(std::filesystem::exists(target));
        whole.Commit();
    }
    EXPECT_TRUE(BytesOf(target) == expected);
    EXPECT_EQ(FilesIn(folder), 1U);
}

TEST(StagedWholeFile, LeavesTheOldFileWithoutACommit)
{
    const TemporaryFolder folder;
    const auto target = folder.Write("a", "old");
    {
        WholeFile whole(target);
        whole.Write("new");
        whole.Finish();
    }
    EXPECT_EQ(BytesOf(target), "old");
    EXPECT_EQ(FilesIn(folder), 1U);
}

TEST(StagedWholeFile, KeepsTheRightsOfTheFileThatItReplaces)
{
    const TemporaryFolder folder;
    const auto target = folder.Write("a", "old");
    for (const mode_t rights : {0600U, 0640U, 0666U, 0755U})
    {
        ASSERT_EQ(chmod(target.c_str(), rights), 0);
        WriteWholeFile(target, "new");
        EXPECT_EQ(RightsOf(target), rights);
    }
}

TEST(StagedWholeFile, HasTheRightsOfAnyNewFile)
{
    const TemporaryFolder folder;
    const mode_t before = umask(027);
    WriteWholeFile(folder.Path() + "/a", "new");
    const mode_t after = umask(before);
    EXPECT_EQ(RightsOf(folder.Path() + "/a"), 0640U);
    EXPECT_EQ(after, 027U);
}

TEST(StagedWholeFile, DoesNotReplaceAWriteProtectedFile)
{
    const TemporaryFolder folder;
    const auto target = folder.Write("a", "old");
    ASSERT_EQ(chmod(target.c_str(), 0444), 0);
    if (access(target.c_str(), W_OK) == 0)
    {
        GTEST_SKIP() << "this user may write every file";
    }
    EXPECT_EQ(FaultOf([&] { WriteWholeFile(target, "new"); }), std::pair(70, target.string()));
    EXPECT_EQ(BytesOf(target), "old");
}

TEST(StagedWholeFile, IsMadeWhereALinkLeadsTo)
{
    const TemporaryFolder folder;
    const std::filesystem::path at = folder.Path();
    std::filesystem::create_directory(at / "far");
    std::filesystem::create_symlink("far/a", at / "near");
    std::filesystem::create_symlink("near", at / "link");
    WriteWholeFile(at / "link", "new");
    EXPECT_EQ(BytesOf(at / "far" / "a"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(at / "near"));
    EXPECT_TRUE(std::filesystem::is_symlink(at / "link"));
}

TEST(StagedWholeFile, DoesNotReplaceALinkThatLeadsNowhere)
{
    const TemporaryFolder folder;
    const std::filesystem::path at = folder.Path();
    std::filesystem::create_symlink("b", at / "a");
    std::filesystem::create_symlink("a", at / "b");
    EXPECT_NE(FaultOf([&] { WriteWholeFile(at / "a", "new"); }).first, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(at / "a"));
    EXPECT_TRUE(std::filesystem::is_symlink(at / "b"));
}

TEST(SpecialFile, IsNeitherFileNorFolderNorNothing)
{
    const TemporaryFolder folder;
    const auto file = folder.Write("a", "");
    std::filesystem::create_symlink("/dev/null", folder.Path() + "/null");
    EXPECT_TRUE(IsSpecialFile("/dev/null"));
    EXPECT_TRUE(IsSpecialFile(folder.Path() + "/null"));
    EXPECT_FALSE(IsSpecialFile(file));
    EXPECT_FALSE(IsSpecialFile(folder.Path()));
    EXPECT_FALSE(IsSpecialFile(folder.Path() + "/none"));
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
    PutInPlace(WholeFile("a", "new").Path(), "a");
    std::filesystem::current_path(before);
    EXPECT_EQ(BytesOf(folder.Path() + "/a"), "new");
    EXPECT_EQ(FilesIn(folder), 1U);
}
} // namespace
