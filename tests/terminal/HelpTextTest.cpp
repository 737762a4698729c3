/// Texts of the help as a terminal shows them.

#include "terminal/HelpText.h"

#include <gtest/gtest.h>

namespace
{
const std::string word(55, 'x');

TEST(HelpText, IsBrokenBetweenWords)
{
    EXPECT_EQ(Wrapped(""), "");
    EXPECT_EQ(Wrapped("a b"), "a b");
    EXPECT_EQ(Wrapped(word + ' ' + word), word + ' ' + word);
    // 112 characters still stand on a line, 113 do not.
    EXPECT_EQ(Wrapped(word + "x " + word + " b"), word + "x " + word + "\nb");
    EXPECT_EQ(Wrapped(word + "xx " + word + " b"), word + "xx\n" + word + " b");
}

TEST(HelpText, LeavesALongWordWhole)
{
    EXPECT_EQ(Wrapped(word + word + word), word + word + word);
    EXPECT_EQ(Wrapped("a " + word + word + word + " b"), "a\n" + word + word + word + "\nb");
}
} // namespace
