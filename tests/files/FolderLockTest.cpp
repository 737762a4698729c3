#include "files/FolderLock.h"

#include "partdata/RunTimeError.h"
#include "tests/partdata/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <thread>

#include <unistd.h>

namespace
{
using std::chrono::milliseconds;

TEST(FolderLock, TellsWhoHoldsAFolder)
{
    const TemporaryFolder folder;
    const FolderLock lock(folder.Path());
    try
    {
        const FolderLock second(folder.Path(), milliseconds(20));
        FAIL() << "two writers in one folder";
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), 70);
        EXPECT_EQ(error.Place(), folder.Path());
        EXPECT_THAT(error.Description(),
                    testing::AnyOf(testing::StartsWith("process " + std::to_string(getpid()) + " ("),
                                   testing::StartsWith("another program")));
        EXPECT_THAT(error.Description(), testing::EndsWith(" is writing there"));
    }
}

TEST(FolderLock, WaitsForAFolder)
{
    const TemporaryFolder folder;
    std::optional<FolderLock> lock(std::in_place, folder.Path());
    std::thread end(
        [&]
        {
            std::this_thread::sleep_for(milliseconds(50));
            lock.reset();
        });
    EXPECT_NO_THROW(FolderLock(folder.Path(), milliseconds(60000)));
    end.join();
}

TEST(FolderLock, LeavesOtherFoldersFree)
{
    const TemporaryFolder folder;
    const TemporaryFolder other;
    const FolderLock lock(folder.Path());
    EXPECT_NO_THROW(FolderLock(other.Path(), milliseconds(0)));
}

TEST(FolderLock, RefusesAFolderThatIsNotThere)
{
    try
    {
        const FolderLock lock("/nowhere/at/all");
        FAIL() << "a lock of nothing";
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), 76);
    }
}
} // namespace
