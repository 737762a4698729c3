/// The command line of the desktop program.

#include "app/StartOptions.h"

#include <gmock/gmock.h>

#include <vector>

namespace
{
using testing::HasSubstr;

TEST(StartOptions, ProgramNameIsNoArgument)
{
    const char* const three[] = {"tavik", "a", "b"};
    EXPECT_EQ(ArgumentsOf(3, three).size(), 2U);
    EXPECT_STREQ(ArgumentsOf(3, three)[0], "a");
    EXPECT_TRUE(ArgumentsOf(1, three).empty());
    // A careless caller leaves even the name out.
    EXPECT_TRUE(ArgumentsOf(0, three).empty());
}

TEST(StartOptions, HelpAndVersionAreAskedForAnywhere)
{
    const std::vector<const char*> version = {"-style", "fusion", "--version"};
    EXPECT_EQ(TextAskedFor(version, "1.2.3"), "tavik 1.2.3\n");
    for (const char* option : {"--help", "-h"})
    {
        const std::vector<const char*> help = {"anything", option};
        const auto text = TextAskedFor(help, "1.2.3");
        ASSERT_TRUE(text);
        EXPECT_THAT(*text, HasSubstr("Usage: tavik [OPTIONS]\n"));
        EXPECT_THAT(*text, HasSubstr("\n  --version "));
    }
    const std::vector<const char*> neither = {"--versions", "help"};
    EXPECT_FALSE(TextAskedFor(neither, "1.2.3"));
    EXPECT_FALSE(TextAskedFor({}, "1.2.3"));
}

TEST(StartOptions, NameTheFolderOfThePartFiles)
{
    EXPECT_EQ(ReadStartOptions({}).DataFolder, "");
    const std::vector<const char*> apart = {"--data", "my parts"};
    EXPECT_EQ(ReadStartOptions(apart).DataFolder, "my parts");
    // Whatever bytes the system allows in a name.
    const std::vector<const char*> joined = {"--data=/x=\xE9/"};
    EXPECT_EQ(ReadStartOptions(joined).DataFolder, "/x=\xE9/");
}

static std::string RefusalOf(const std::vector<const char*>& arguments)
{
    try
    {
        ReadStartOptions(arguments);
        return "taken";
    }
    catch (const WrongCommandLine& error)
    {
        return error.what();
    }
}

TEST(StartOptions, RefuseWhatNothingTakes)
{
    EXPECT_EQ(RefusalOf({"--plot\n", "x"}), "unexpected argument \"--plot\\x0A\" (see tavik --help)");
    EXPECT_EQ(RefusalOf({"--dat=x"}), "unexpected argument \"--dat=x\" (see tavik --help)");
    EXPECT_EQ(RefusalOf({"--data"}), "--data wants the name of a folder");
    EXPECT_EQ(RefusalOf({"--data", ""}), "--data wants the name of a folder");
    EXPECT_EQ(RefusalOf({"--data="}), "--data wants the name of a folder");
    EXPECT_EQ(RefusalOf({"--data", "a", "--data=b"}), "--data stands twice");
}
} // namespace
