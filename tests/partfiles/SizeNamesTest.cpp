#include "partfiles/SizeNames.h"

#include <gtest/gtest.h>

namespace
{
TEST(SizeNames, GoWithEachOther)
{
    EXPECT_EQ(JisSizeOf("0201"), "0603");
    EXPECT_EQ(JisSizeOf("0603"), "1608");
    EXPECT_EQ(EiaSizeOf("0603"), "0201");
    EXPECT_EQ(EiaSizeOf("5750"), "2220");
}

TEST(SizeNames, AreNoNumbers)
{
    EXPECT_EQ(JisSizeOf("201"), std::nullopt);
    EXPECT_EQ(EiaSizeOf("603"), std::nullopt);
    EXPECT_EQ(JisSizeOf(""), std::nullopt);
    EXPECT_EQ(EiaSizeOf(""), std::nullopt);
}
} // namespace
