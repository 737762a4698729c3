#include "files/WholeFile.h"

#include "partdata/RunTimeError.h"
#include "tests/Seed.h"
#include "tests/partdata/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <sstream>
#include <thread>

#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

std::string Contents(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

void Write(const std::filesystem::path& file, const std::string& contents)
{
    WriteWholeFile(file, contents);
}

std::optional<RunTimeError> ErrorOf(const std::filesystem::path& file, const std::string& contents)
{
    try
    {
        Write(file, contents);
    }
    catch (const RunTimeError& error)
    {
        return error;
    }
    return {};
}

/// A file system of 64 kilobytes in a folder; only an administrator may have one.
class SmallDisk
{
public:
    explicit SmallDisk(std::filesystem::path place)
        : folder(std::move(place))
        , mounted(mount("none", folder.c_str(), "tmpfs", 0, "size=64k") == 0)
    {
    }
    ~SmallDisk()
    {
        if (mounted)
        {
            umount(folder.c_str());
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool IsMounted() const { return mounted; }
    bool MakeReadOnly() const
    {
        return mount("none", folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "") == 0;
    }

private:
    std::filesystem::path folder;
    bool mounted;
};

TEST(WholeFile, ReplacesNoPipe)
{
    const TemporaryFolder folder;
    const auto pipe = std::filesystem::path(folder.Path()) / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const auto error = ErrorOf(pipe, "new");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 75);
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST(WholeFile, IsWrittenAndReplaced)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    const auto file = folder / "a.tvk";
    Write(file, "first\r\n");
    EXPECT_EQ(Contents(file), "first\r\n");
    Write(file, "");
    EXPECT_EQ(Contents(file), "");
    EXPECT_TRUE(std::filesystem::exists(file));
}

TEST(WholeFile, LeavesNothingElseInTheFolder)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    Write(folder / "a.tvk", std::string(100000, 'a'));
    const std::filesystem::directory_iterator files(folder);
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST(WholeFile, GoesBehindALink)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    Write(folder / "a.tvk", "old");
    std::filesystem::create_symlink(folder / "a.tvk", folder / "link");
    Write(folder / "link", "new");
    EXPECT_EQ(Contents(folder / "a.tvk"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
}

TEST(WholeFile, NeedsItsFolder)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    const auto file = folder / "gone" / "a.tvk";
    const auto error = ErrorOf(file, "text");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 76);
    EXPECT_EQ(error->Description(), "Path not found");
    EXPECT_EQ(error->Place(), file.string());
}

TEST(WholeFile, DoesNotReplaceAFolder)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    std::filesystem::create_directory(folder / "a.tvk");
    const auto error = ErrorOf(folder / "a.tvk", "text");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 75);
    EXPECT_TRUE(std::filesystem::is_directory(folder / "a.tvk"));
}

TEST(WholeFile, FullDiskLeavesTheOldFile)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    const SmallDisk disk(folder);
    if (!disk.IsMounted())
    {
        GTEST_SKIP() << "only an administrator can make a small disk";
    }
    const auto file = folder / "a.tvk";
    Write(file, "old");
    const auto error = ErrorOf(file, std::string(200000, 'n'));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 61);
    EXPECT_EQ(error->Description(), "Disk full");
    EXPECT_EQ(Contents(file), "old");
    const std::filesystem::directory_iterator files(folder);
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST(WholeFile, FullDiskShowsWithASmallFileToo)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    const SmallDisk disk(folder);
    if (!disk.IsMounted())
    {
        GTEST_SKIP() << "only an administrator can make a small disk";
    }
    const auto file = folder / "a.tvk";
    Write(file, "old");
    std::ofstream(folder / "filler") << std::string(100000, 'f') << std::flush;
    const auto error = ErrorOf(file, std::string(6000, 'n'));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 61);
    EXPECT_EQ(Contents(file), "old");
    std::filesystem::remove(folder / "filler");
    EXPECT_FALSE(ErrorOf(file, std::string(6000, 'n')));
}

TEST(WholeFile, ReadOnlyFolderIsNotPermitted)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    const SmallDisk disk(folder);
    const auto file = folder / "a.tvk";
    Write(file, "old");
    // An administrator may write everywhere but on a read-only disk.
    if (!disk.IsMounted())
    {
        std::filesystem::permissions(folder, std::filesystem::perms(0500));
    }
    ASSERT_TRUE(!disk.IsMounted() || disk.MakeReadOnly());
    for (const auto& target : {file, folder / "new.tvk"})
    {
        const auto error = ErrorOf(target, "new");
        ASSERT_TRUE(error);
        EXPECT_EQ(error->Number(), 70);
        EXPECT_EQ(error->Description(), "Permission denied");
    }
    EXPECT_EQ(Contents(file), "old");
    EXPECT_FALSE(std::filesystem::exists(folder / "new.tvk"));
    if (!disk.IsMounted())
    {
        std::filesystem::permissions(folder, std::filesystem::perms(0700));
    }
}

// The long form kills as often as TAVIK_TEST_RUNS says.
TEST(WholeFile, SurvivesItsWriterBeingKilled)
{
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    const auto file = folder / "a.tvk";
    const std::string a(200000, 'a');
    const std::string b(300000, 'b');
    Write(file, a);
    std::mt19937 random(TestSeed(7));
    std::uniform_int_distribution<int> microseconds(100, 6000);
    int foundA = 0;
    int foundB = 0;
    const char* const asked = std::getenv("TAVIK_TEST_RUNS");
    const int runs = asked != nullptr ? std::atoi(asked) : 300;
    for (int run = 0; run < runs; ++run)
    {
        const pid_t writer = fork();
        ASSERT_GE(writer, 0);
        if (writer == 0)
        {
            while (true)
            {
                Write(file, b);
                Write(file, a);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        const std::string found = Contents(file);
        ASSERT_TRUE(found == a || found == b) << "run " << run << ": " << found.size() << " bytes";
        found == a ? ++foundA : ++foundB;
    }
    // The writers were at work when they were killed.
    EXPECT_GT(foundA, 0);
    EXPECT_GT(foundB, 0);
}

} // namespace
