#include "files/PairReading.h"

#include "files/PartLoading.h"
#include "partdata/RunTimeError.h"
#include "tests/partdata/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace
{
/// A folder with one pair, which can be replaced as other programs do: by renaming, one file after the other.
class Pair
{
public:
    Pair() { Replace("old"); }

    void Replace(const std::string& text) const
    {
        for (const std::string file : {"p.dat", "p.idx"})
        {
            folder.Write("next", text);
            std::filesystem::rename(folder.Path() + "/next", folder.Path() + "/" + file);
        }
    }
    std::string Path() const { return folder.Path(); }
    std::string File(const std::string& name) const { return folder.Path() + "/" + name; }

private:
    TemporaryFolder folder;
};

TEST(PairReading, ReadsAgainWhatIsReplacedBetweenIndexAndData)
{
    const Pair pair;
    int attempts = 0;
    std::string index;
    std::string data;
    ReadSettled(SearchFor(std::filesystem::path(pair.Path())),
                [&](PairReading& reading)
                {
                    index = ReadBytes(reading.Index(), 100);
                    if (++attempts == 1)
                    {
                        pair.Replace("new");
                    }
                    data = ReadBytes(reading.Data(), 100);
                });
    EXPECT_EQ(attempts, 2);
    EXPECT_EQ(index, "new");
    EXPECT_EQ(data, "new");
}

TEST(PairReading, ReadsAgainWhatIsOverwrittenInPlace)
{
    const Pair pair;
    int attempts = 0;
    ReadSettled(SearchFor(std::filesystem::path(pair.File("p.idx"))),
                [&](PairReading& reading)
                {
                    reading.Index();
                    if (++attempts == 1)
                    {
                        std::ofstream(pair.File("p.idx")) << "longer than it was";
                    }
                    reading.Data();
                });
    EXPECT_EQ(attempts, 2);
}

TEST(PairReading, ReadsAgainWhereAFileWasMissingForAMoment)
{
    const Pair pair;
    std::filesystem::remove(pair.File("p.dat"));
    int attempts = 0;
    ReadSettled(SearchFor(std::filesystem::path(pair.Path())),
                [&](PairReading& reading)
                {
                    ++attempts;
                    try
                    {
                        reading.Data();
                    }
                    catch (const RunTimeError&)
                    {
                        pair.Replace("new");
                        throw;
                    }
                });
    EXPECT_EQ(attempts, 2);
}

TEST(PairReading, PassesOnAFaultOfAPairThatStandsStill)
{
    const Pair pair;
    std::filesystem::remove(pair.File("p.dat"));
    int attempts = 0;
    EXPECT_THROW(ReadSettled(SearchFor(std::filesystem::path(pair.Path())),
                             [&](PairReading& reading)
                             {
                                 ++attempts;
                                 reading.Data();
                             }),
                 RunTimeError);
    EXPECT_EQ(attempts, 1);
}

TEST(PairReading, GivesUpOnAPairThatNeverStandsStill)
{
    const Pair pair;
    try
    {
        ReadSettled(SearchFor(std::filesystem::path(pair.Path())),
                    [&](PairReading& reading)
                    {
                        reading.Index();
                        pair.Replace("new");
                    });
        FAIL() << "a pair that changes was taken";
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), 75);
        EXPECT_EQ(error.Description(), "The part files are being replaced all the time");
    }
}

TEST(PairReading, ReadsAStagedFileByItsOwnName)
{
    const Pair pair;
    std::filesystem::create_directory(pair.File(".p.new"));
    std::ofstream(pair.File(".p.new/idx")) << "staged";
    ReadSettled(SearchFor(PairPaths{pair.File("p.idx"), pair.File("p.dat")}),
                [&](PairReading& reading)
                {
                    EXPECT_EQ(reading.Index().Name(), "p.idx");
                    EXPECT_EQ(ReadBytes(reading.Index(), 100), "staged");
                    EXPECT_EQ(ReadBytes(reading.Data(), 100), "old");
                });
}
} // namespace
