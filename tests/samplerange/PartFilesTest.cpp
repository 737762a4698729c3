/// The checked-in part files are what the source table makes.

#include "samplerange/PartRange.h"
#include "tests/samplerange/Range.h"

#include <gtest/gtest.h>

TEST(PartFiles, AreMadeFromTheSourceTableByteForByte)
{
    const auto pair = PairOf(MakePartRange(ReadRangeFile("sizes.csv"), ReadRangeFile("ratings.csv")));
    EXPECT_TRUE(pair.Index == ReadRangeFile("halvex.idx"));
    EXPECT_TRUE(pair.Data == ReadRangeFile("halvex.dat"));
}

TEST(PartFiles, HoldQuotedTextsAndLittleEndianSingles)
{
    RangePart part{
        .PartNum = {"G", "g2", "P", "p2"}, .SizeCode = {"0402", "1005"}, .Tcc = {"X7R", "R"}, .Data = {}};
    part.Data[Value::Capacitance] = 1.0F;        // 3F800000
    part.Data[Value::UpperTemperature] = 125.0F; // 42FA0000
    const auto pair = PairOf(std::vector{part});
    EXPECT_EQ(pair.Index, "\"G\",\"g2\",\"P\",\"p2\",\"0402\",\"1005\",\"X7R\",\"R\"\n");
    const auto& bytes = pair.Data;
    ASSERT_EQ(bytes.size(), 264U);
    EXPECT_EQ(bytes.substr(0, 4), std::string("\x00\x00\x80\x3F", 4));
    EXPECT_EQ(bytes.substr(260), std::string("\x00\x00\xFA\x42", 4));
}
