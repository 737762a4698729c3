/// Which folder the part files are taken from.

#include "files/PartFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace
{
/// Sets the variable for one test.
class PartFolder : public testing::Test
{
protected:
    ~PartFolder() override { unsetenv("TAVIK_DATA"); }
    static void SetVariable(const char* text) { setenv("TAVIK_DATA", text, 1); }
};

TEST_F(PartFolder, IsNamedByNothingAtFirst)
{
    unsetenv("TAVIK_DATA");
    EXPECT_EQ(NamedPartFolder(""), std::nullopt);
}

TEST_F(PartFolder, IsNamedByTheOptionBeforeTheVariable)
{
    SetVariable("/variable");
    EXPECT_EQ(NamedPartFolder("/option"), "/option");
    EXPECT_EQ(NamedPartFolder(""), "/variable");
}

TEST_F(PartFolder, IsNotNamedByAnEmptyVariable)
{
    SetVariable("");
    EXPECT_EQ(NamedPartFolder(""), std::nullopt);
    EXPECT_EQ(NamedPartFolder("."), ".");
}
} // namespace
