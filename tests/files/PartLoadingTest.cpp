#include "files/PartLoading.h"

#include "partdata/RunTimeError.h"
#include "tests/partdata/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace
{
std::string FaultIn(const TemporaryFolder& folder)
{
    try
    {
        LoadPartData(folder.Path());
    }
    catch (const RunTimeError& error)
    {
        return error.what();
    }
    return "";
}

/// Two lines of names, and two data records whose first value is 1 and 2.
constexpr const char* TwoLines = "A,B,C,D,0805,2012,X7R,R\r\nE,F,G,H,0603,1608,X5R,B\r\n";

std::string TwoRecords()
{
    std::string bytes(2 * 264, '\0');
    bytes[2] = '\x80';
    bytes[3] = '\x3F';
    bytes[264 + 3] = '\x40';
    return bytes;
}

TEST(PartLoading, ReadsThePairOfAFolder)
{
    const TemporaryFolder folder;
    folder.Write("parts.idx", TwoLines);
    folder.Write("parts.dat", TwoRecords());
    const auto table = LoadPartData(folder.Path());
    ASSERT_EQ(table.PartMax, 1);
    EXPECT_EQ(table.PartData[0].Data[Value::Capacitance], 1);
    EXPECT_EQ(table.PartData[1].Data[Value::Capacitance], 2);
    EXPECT_EQ(table.PartData[1].PartNum[3], "H");
    EXPECT_EQ(*table.PartIndex[0].Find("e"), 1);
    EXPECT_EQ(*table.SizeCodeMap[1].Find("0603"), "1608");
}

TEST(PartLoading, TellsAPartNumberThatStandsTwiceOnceTheDataFileIsThere)
{
    const TemporaryFolder folder;
    folder.Write("parts.idx", "A,B,C,D,1,2,3,4\nA,F,G,H,1,2,3,4\n");
    ASSERT_EQ(mkfifo((folder.Path() + "/parts.dat").c_str(), 0600), 0);
    EXPECT_EQ(FaultIn(folder), "Run-time error '75': Path/File access error: parts.dat");
    std::filesystem::remove(folder.Path() + "/parts.dat");
    folder.Write("parts.dat", "");
    EXPECT_EQ(FaultIn(folder), "Run-time error '457': This key is already associated with an element of this "
                               "collection: parts.idx: record 2: PartNum(0) \"A\"");
}

TEST(PartLoading, GivesATableNoLargerThanItsIndexHoweverLargeTheDataFileIs)
{
    const TemporaryFolder folder;
    const auto index = folder.Write("parts.idx", TwoLines);
    const auto data = folder.Write("parts.dat", TwoRecords());
    std::filesystem::resize_file(data, 1ULL << 40);
    const auto table = ReadPartPair(index, data);
    EXPECT_EQ(table.PartData[1].Data[Value::Capacitance], 2);
    EXPECT_LE(table.PartData.capacity(), std::string_view(TwoLines).size() / 8 + 1);
}

TEST(PartLoading, RefusesAnIndexOfMoreThan64Mebibytes)
{
    const TemporaryFolder folder;
    const auto index = folder.Write("parts.idx", "");
    folder.Write("parts.dat", "");
    std::filesystem::resize_file(index, 67108864);
    EXPECT_EQ(FaultIn(folder), "Run-time error '62': Input past end of file: parts.idx: record 1: field 2");
    std::filesystem::resize_file(index, 67108865);
    EXPECT_EQ(FaultIn(folder), "Run-time error '6': Overflow: parts.idx");
}

TEST(PartLoading, TellsAFaultOfTheIndexBeforeOneOfTheDataFile)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder.Path() + "/parts.dat").c_str(), 0600), 0);
    folder.Write("parts.idx", "A,B,C");
    EXPECT_EQ(FaultIn(folder), "Run-time error '62': Input past end of file: parts.idx: record 1: field 4");
    folder.Write("parts.idx", TwoLines);
    EXPECT_EQ(FaultIn(folder), "Run-time error '75': Path/File access error: parts.dat");
}
} // namespace
