#include "stress/PrefixedText.h"

#include <gtest/gtest.h>

namespace
{
TEST(PrefixedText, RoundsToItsDigits)
{
    EXPECT_EQ(PrefixedText(272e-6, "s", 5), "272 us");
    EXPECT_EQ(PrefixedText(1.5e-3, "s", 5), "1.5 ms");
    EXPECT_EQ(PrefixedText(2e-6, "s", 5, true), "2.0000 us");
    EXPECT_EQ(PrefixedText(499999.96, "Hz", 5, true), "500.00 kHz");
    EXPECT_EQ(PrefixedText(0.99999999, "A", 4), "1 A");
    EXPECT_EQ(PrefixedText(999.9996e-6, "s", 5), "1 ms");
    EXPECT_EQ(PrefixedText(-0.0001, "A", 4), "-100 uA");
    EXPECT_EQ(PrefixedText(0, "s", 5), "0 s");
    EXPECT_EQ(PrefixedText(123456, "s", 3), "123 ks");
    EXPECT_EQ(PrefixedText(1.5e-15, "s", 3), "0.0015 ps");
}
} // namespace
