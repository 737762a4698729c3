#include "simulation/ModelName.h"

#include <gtest/gtest.h>

namespace
{
TEST(ModelName, IsThePartNumberWhereSimulatorsReadIt)
{
    EXPECT_EQ(ModelName("KTS31NB51A476MA01"), "KTS31NB51A476MA01");
    EXPECT_EQ(ModelName("c_1"), "c_1");
}

TEST(ModelName, ReplacesWhatTheyDoNotRead)
{
    EXPECT_EQ(ModelName("A-1/X7R 10%"), "A_1_X7R_10_");
    EXPECT_EQ(ModelName("A\n.END"), "A__END");
    EXPECT_EQ(ModelName("K\xC4"), "K_");
}

TEST(ModelName, BeginsWithALetter)
{
    EXPECT_EQ(ModelName("0603-X7R/10"), "C_0603_X7R_10");
    EXPECT_EQ(ModelName("_A"), "C__A");
    EXPECT_EQ(ModelName(""), "C_");
}
} // namespace
