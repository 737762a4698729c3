#include "files/PartFiles.h"
#include "files/PartLoading.h"
#include "partdata/RunTimeError.h"
#include "tests/partdata/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace
{
/// The error's line, or "" when nothing is thrown.
std::string FaultOf(auto&& work)
{
    try
    {
        work();
    }
    catch (const RunTimeError& error)
    {
        return error.what();
    }
    return "";
}

TEST(PathSep, ComesFromTheProgramFolder)
{
    EXPECT_EQ(PathSepOf("/opt/tavik"), '/');
    EXPECT_EQ(PathSepOf("/"), '/');
    EXPECT_EQ(PathSepOf("\\\\server\\share"), '\\');
    EXPECT_EQ(PathSepOf("//server/share"), '/');
    EXPECT_EQ(PathSepOf("C:\\tavik"), '\\');
    EXPECT_EQ(PathSepOf("C:/tavik"), '/');
    EXPECT_EQ(PathSepOf(""), '/');
    EXPECT_EQ(PathSepOf("C:"), '/');
    EXPECT_EQ(PathSepOf("tavik\\bin"), '/');
}

TEST(PartFiles, AreFoundInAnyLetterCaseOfTheExtension)
{
    const TemporaryFolder folder;
    folder.Write("parts.IdX", "");
    folder.Write("parts.idx.bak", "");
    folder.Write("idx", "");
    EXPECT_EQ(FindPartFile(folder.Path(), ".idx"), folder.Path() + "/parts.IdX");
}

TEST(PartFiles, MayBeAnExtensionAlone)
{
    const TemporaryFolder folder;
    folder.Write(".idx", "");
    EXPECT_EQ(FindPartFile(folder.Path(), ".idx"), folder.Path() + "/.idx");
}

TEST(PartFiles, AreTheFirstInAlphabeticalOrder)
{
    const TemporaryFolder folder;
    folder.Write("c.idx", "");
    folder.Write("B.idx", "");
    folder.Write("a2.IDX", "");
    folder.Write("a10.idx", "");
    EXPECT_EQ(FindPartFile(folder.Path(), ".idx"), folder.Path() + "/a10.idx");
}

TEST(PartFiles, ThatDifferInLetterCaseAloneAreInTheOrderOfTheirBytes)
{
    const TemporaryFolder folder;
    folder.Write("parts.idx", "");
    folder.Write("PARTS.IDX", "");
    folder.Write("Parts.idx", "");
    EXPECT_EQ(FindPartFile(folder.Path(), ".idx"), folder.Path() + "/PARTS.IDX");
}

TEST(PartFiles, AreListedInOrder)
{
    const TemporaryFolder folder;
    folder.Write("c.idx", "");
    folder.Write("B.IDX", "");
    folder.Write("a.dat", "");
    EXPECT_EQ(NamesOfPartFiles(folder.Path(), ".idx"), (std::vector<std::string>{"B.IDX", "c.idx"}));
    EXPECT_TRUE(NamesOfPartFiles(folder.Path() + "/none", ".idx").empty());
}

TEST(PartFiles, ThatAreMissingAreToldWithTheFolderThatWasSearched)
{
    const TemporaryFolder folder;
    try
    {
        FindPartFile(folder.Path(), ".dat");
        FAIL() << "a file was found in an empty folder";
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Where().File, "*.dat");
        EXPECT_EQ(error.Where().Folder, folder.Path());
    }
}

TEST(PartFiles, ThatAreMissingAreNotFound)
{
    const TemporaryFolder folder;
    folder.Write("parts.idx", "");
    EXPECT_EQ(FaultOf([&] { LoadPartData(folder.Path()); }), "Run-time error '53': File not found: *.dat");
    EXPECT_EQ(FaultOf([&] { LoadPartData(folder.Path() + "/none"); }),
              "Run-time error '53': File not found: *.idx");
    EXPECT_EQ(FaultOf([&] { ReadPartPair(folder.Path() + "/x.idx", folder.Path() + "/x.dat"); }),
              "Run-time error '53': File not found: x.idx");
}

TEST(PartFiles, AreNoFolders)
{
    const TemporaryFolder folder;
    const auto index = folder.Write("parts.idx", "");
    folder.Write("parts.dat", "");
    std::filesystem::create_directory(folder.Path() + "/aaa.idx");
    std::filesystem::create_directory(folder.Path() + "/aaa.dat");
    std::filesystem::create_directory_symlink(".", folder.Path() + "/aab.idx");
    EXPECT_EQ(FindPartFile(folder.Path(), ".idx"), index);
    EXPECT_EQ(LoadPartData(folder.Path()).PartMax, -1);
    std::filesystem::remove(folder.Path() + "/parts.dat");
    EXPECT_EQ(FaultOf([&] { LoadPartData(folder.Path()); }), "Run-time error '53': File not found: *.dat");
    EXPECT_EQ(FaultOf([&] { ReadPartPair(index, folder.Path() + "/aaa.dat"); }),
              "Run-time error '75': Path/File access error: aaa.dat");
}

TEST(PartFiles, ThatAreBeingPutInPlaceCountByTheirNames)
{
    const TemporaryFolder folder;
    folder.Write("z.idx", "");
    std::filesystem::create_directory(folder.Path() + "/.a.new");
    EXPECT_EQ(NamesOfPartFiles(folder.Path(), ".idx"), std::vector<std::string>{"z.idx"});
    folder.Write(".a.new/idx", "");
    EXPECT_EQ(NamesOfPartFiles(folder.Path(), ".idx"), (std::vector<std::string>{"a.idx", "z.idx"}));
    folder.Write("a.idx", "");
    EXPECT_EQ(NamesOfPartFiles(folder.Path(), ".idx"), (std::vector<std::string>{"a.idx", "z.idx"}));
    EXPECT_TRUE(NamesOfPartFiles(folder.Path(), ".dat").empty());
    std::filesystem::create_directory(folder.Path() + "/.b.writing");
    folder.Write(".b.writing/dat", "");
    EXPECT_TRUE(NamesOfPartFiles(folder.Path(), ".dat").empty());
}

TEST(PartFiles, WhoseBytesCannotBeReadAreNoShortFiles)
{
    // The memory of this process is a file that opens, but holds nothing at its start.
    const std::string unreadable = "/proc/self/mem";
    if (!std::ifstream(unreadable).is_open())
    {
        GTEST_SKIP() << "there is no such file here";
    }
    const TemporaryFolder folder;
    const auto index = folder.Write("parts.idx", "A,B,C,D,1,2,3,4\n");
    EXPECT_EQ(FaultOf([&] { ReadPartPair(index, unreadable); }),
              "Run-time error '75': Path/File access error: mem");
}

TEST(PartFiles, ThatMayNotBeReadCannotBeRead)
{
    const TemporaryFolder folder;
    const auto index = folder.Write("parts.idx", "");
    folder.Write("parts.dat", "");
    std::filesystem::permissions(index, std::filesystem::perms::none);
    if (std::ifstream(index).is_open())
    {
        GTEST_SKIP() << "this user may read every file";
    }
    EXPECT_EQ(FaultOf([&] { LoadPartData(folder.Path()); }),
              "Run-time error '75': Path/File access error: parts.idx");
}

TEST(PartFiles, OfAFolderThatLeadsNowhereCannotBeRead)
{
    const TemporaryFolder folder;
    const auto loop = std::filesystem::path(folder.Path()) / "loop";
    std::filesystem::create_symlink(loop, loop);
    try
    {
        LoadPartData(loop.string());
        FAIL() << "a link to itself was taken for a folder";
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), 75);
        EXPECT_EQ(error.Place(), loop.string());
    }
}

TEST(PartFiles, LargerThanAnyIndexAreNotTakenIntoMemory)
{
    const TemporaryFolder folder;
    std::filesystem::resize_file(folder.Write("parts.idx", ""), 1ULL << 40);
    folder.Write("parts.dat", "");
    EXPECT_EQ(FaultOf([&] { LoadPartData(folder.Path()); }), "Run-time error '6': Overflow: parts.idx");
}
} // namespace
