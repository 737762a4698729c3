#include "partdata/PartTable.h"
#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>

namespace
{
/// One index line; the four part numbers bear the number of the part.
std::string LineOf(int part, const std::string& sizes = "0805,2012", const std::string& tccs = "X7R,R")
{
    const auto number = std::to_string(part);
    return "GE" + number + ",GJ" + number + ",PE" + number + ",PJ" + number + "," + sizes + "," + tccs +
           "\r\n";
}

std::string LinesOf(int parts)
{
    std::string lines;
    for (int i = 0; i < parts; ++i)
    {
        lines += LineOf(i);
    }
    return lines;
}

/// Data records whose value j of part i is i + j / 100, written byte by byte, lowest first.
std::string ValuesOf(int parts)
{
    std::string bytes;
    for (int i = 0; i < parts; ++i)
    {
        for (int j = 0; j < 66; ++j)
        {
            const auto bits =
                std::bit_cast<std::uint32_t>(static_cast<float>(i) + static_cast<float>(j) / 100);
            for (int shift = 0; shift < 32; shift += 8)
            {
                bytes += static_cast<char>(bits >> shift & 0xFF);
            }
        }
    }
    return bytes;
}

float ValueOf(std::size_t part, std::size_t value)
{
    return static_cast<float>(part) + static_cast<float>(value) / 100;
}

PartTable Load(const std::string& index, const std::string& data)
{
    return ReadPartPair(index, data, "parts.idx");
}

std::string FaultOf(const std::string& index, const std::string& data = "")
{
    try
    {
        Load(index, data);
    }
    catch (const RunTimeError& error)
    {
        return error.what();
    }
    return "";
}

TEST(PartTable, HoldsEachLineWithItsDataRecord)
{
    const auto table = Load(LinesOf(600), ValuesOf(600));
    ASSERT_EQ(table.PartMax, 599);
    ASSERT_EQ(table.PartData.size(), 600U);
    for (std::size_t i = 0; i < 600; ++i)
    {
        const auto& part = table.PartData[i];
        EXPECT_EQ(part.PartNum[0], "GE" + std::to_string(i));
        EXPECT_EQ(part.PartNum[3], "PJ" + std::to_string(i));
        EXPECT_EQ(part.SizeCode[1], "2012");
        EXPECT_EQ(part.Tcc[0], "X7R");
        for (std::size_t j = 0; j < DataValues; ++j)
        {
            ASSERT_EQ(part.Data[j], ValueOf(i, j)) << i << " " << j;
        }
    }
}

TEST(PartTable, IsEmptyForAnEmptyIndex)
{
    const auto table = Load("", ValuesOf(3));
    EXPECT_EQ(table.PartMax, -1);
    EXPECT_TRUE(table.PartData.empty());
    EXPECT_EQ(table.PartIndex[0].size(), 0U);
    EXPECT_EQ(table.SizeCodeMap[0].Find(""), nullptr);
}

TEST(PartTable, FindsAPartByEachOfItsNumbersInAnyLetterCase)
{
    const auto table = Load(LinesOf(300), "");
    const std::array<std::string, PartNumForms> keys = {"ge299", "Gj299", "pE299", "PJ299"};
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        ASSERT_NE(table.PartIndex[form].Find(keys[form]), nullptr);
        EXPECT_EQ(*table.PartIndex[form].Find(keys[form]), 299);
        EXPECT_EQ(table.PartIndex[form].Find(keys[(form + 1) % PartNumForms]), nullptr);
    }
}

TEST(PartTable, StaysWholeWhenMoved)
{
    auto first = Load(LinesOf(2), ValuesOf(2));
    const auto second = std::move(first);
    EXPECT_EQ(second.PartData[1].PartNum[2], "PE1");
    EXPECT_EQ(*second.PartIndex[2].Find("PE1"), 1);
    first = Load(LinesOf(3), ValuesOf(3));
    EXPECT_EQ(first.PartData[2].PartNum[3], "PJ2");
    EXPECT_EQ(*first.PartIndex[3].Find("PJ2"), 2);
}

TEST(PartTable, LeavesZerosWhereTheDataFileEnds)
{
    // Two whole records, and 263 of the 264 bytes of a third.
    const auto table = Load(LinesOf(4), ValuesOf(3).substr(0, 3 * 264 - 1));
    EXPECT_EQ(table.PartData[1].Data[65], ValueOf(1, 65));
    for (std::size_t i = 2; i < 4; ++i)
    {
        for (const float value : table.PartData[i].Data)
        {
            EXPECT_EQ(value, 0);
        }
    }
}

TEST(PartTable, IgnoresSurplusDataRecords)
{
    const auto table = Load(LinesOf(2), ValuesOf(5));
    EXPECT_EQ(table.PartMax, 1);
    EXPECT_EQ(table.PartData[1].Data[0], 1);
}

TEST(PartTable, IsNoLargerThanItsIndexHoweverMuchDataThereIs)
{
    const auto table = Load(LinesOf(2), ValuesOf(5000));
    EXPECT_EQ(table.PartData[1].Data[65], ValueOf(1, 65));
    EXPECT_LE(table.PartData.capacity(), LinesOf(2).size() / 8 + 1);
}

TEST(PartTable, TakesThirtyTwoThousandSevenHundredAndSixtySevenParts)
{
    const auto table = Load(LinesOf(32767), "");
    EXPECT_EQ(table.PartMax, 32766);
    EXPECT_EQ(*table.PartIndex[0].Find("GE32766"), 32766);
    EXPECT_EQ(table.PartIndex[3].size(), 32767U);
}

TEST(PartTable, OverflowsWithOnePartMore)
{
    EXPECT_EQ(FaultOf(LinesOf(32768)), "Run-time error '6': Overflow: parts.idx: record 32768");
}

TEST(PartTable, EndsWithinOnePartMoreRatherThanOverflowing)
{
    EXPECT_EQ(FaultOf(LinesOf(32767) + "A,B"),
              "Run-time error '62': Input past end of file: parts.idx: record 32768: field 3");
}

TEST(PartTable, ReadsNoValuesForAnIndexWithAFault)
{
    IndexSource index = {.Bytes = std::make_unique<char[]>(5), .Size = 5, .Name = "parts.idx"};
    std::memcpy(index.Bytes.get(), "A,B,C", 5);
    const auto readValues = [](std::span<PartRecord>) { FAIL() << "the values were asked for"; };
    EXPECT_THROW(MakePartTable(std::move(index), 1, readValues), RunTimeError);
}

TEST(PartTable, KeepsItsNamesWhenTheTextThatItWasReadFromIsGone)
{
    auto text = LinesOf(2);
    const auto table = ReadPartPair(text, ValuesOf(2), "parts.idx");
    text.assign(text.size(), 'x');
    EXPECT_EQ(table.PartData[1].PartNum[0], "GE1");
}

TEST(PartTable, NamesAPartNumberThatStandsTwiceOnOneLine)
{
    const auto named = [](const std::string& partNum)
    {
        const auto fault = FaultOf(partNum + ",a,b,c,1,2,3,4\n" + partNum + ",d,e,f,1,2,3,4\n");
        return fault.substr(fault.find("PartNum"));
    };
    EXPECT_EQ(named("\"A\r\nB\""), "PartNum(0) \"A\\x0D\\x0AB\"");
    EXPECT_EQ(named("\xC4\x80"), "PartNum(0) \"Ä€\"");
    EXPECT_EQ(named(std::string(1000000, 'M')), "PartNum(0) \"" + std::string(80, 'M') + "...\"");
}

TEST(PartTable, RefusesAPartNumberThatStandsTwiceInOneForm)
{
    const std::string twice = "Run-time error '457': This key is already associated with an element of this "
                              "collection: parts.idx: record 3: PartNum(";
    EXPECT_EQ(FaultOf(LinesOf(2) + "GE0,x,y,z,0805,2012,X7R,R\r\n"), twice + "0) \"GE0\"");
    EXPECT_EQ(FaultOf(LinesOf(2) + "w,GJ1,y,z,0805,2012,X7R,R\r\n"), twice + "1) \"GJ1\"");
    EXPECT_EQ(FaultOf(LinesOf(2) + "w,x,pe1,z,0805,2012,X7R,R\r\n"), twice + "2) \"pe1\"");
    EXPECT_EQ(FaultOf(LinesOf(2) + "w,x,y,pJ0,0805,2012,X7R,R\r\n"), twice + "3) \"pJ0\"");
    EXPECT_EQ(FaultOf("\xC4,a,b,c,1,2,3,4\n\xE4,d,e,f,1,2,3,4\n").substr(0, 20), "Run-time error '457'");
}

TEST(PartTable, TakesTheSameNumberInTwoForms)
{
    EXPECT_EQ(FaultOf("A,A,A,A,1,2,3,4\nB,B,B,B,1,2,3,4\n"), "");
}

TEST(PartTable, SaysWhereTheIndexEnds)
{
    EXPECT_EQ(FaultOf(LinesOf(16) + "GE16,GJ16"),
              "Run-time error '62': Input past end of file: parts.idx: record 17: field 3");
}

TEST(PartTable, TranslatesNamesBothWays)
{
    const auto table = Load(LineOf(0) + LineOf(1, "1206,3216", "X5R,B"), "");
    EXPECT_EQ(*table.SizeCodeMap[0].Find("3216"), "1206");
    EXPECT_EQ(*table.SizeCodeMap[1].Find("1206"), "3216");
    EXPECT_EQ(*table.TccMap[0].Find("b"), "X5R");
    EXPECT_EQ(*table.TccMap[1].Find("x7r"), "R");
    EXPECT_EQ(table.SizeCodeMap[0].Find("1206"), nullptr);
}

TEST(PartTable, KeepsTheFirstPairingOfAName)
{
    const auto table = Load(LineOf(0, "0805,2012", "X7R,R") + LineOf(1, "0806,2012", "X7R,B") +
                                LineOf(2, "0805,2013", "X5R,r") + LineOf(3, "0806,2013", "X5R,B"),
                            "");
    EXPECT_EQ(*table.SizeCodeMap[0].Find("2012"), "0805");
    EXPECT_EQ(*table.SizeCodeMap[1].Find("0806"), "2012");
    EXPECT_EQ(*table.SizeCodeMap[1].Find("0805"), "2012");
    EXPECT_EQ(*table.SizeCodeMap[0].Find("2013"), "0805");
    EXPECT_EQ(*table.TccMap[1].Find("X7R"), "R");
    EXPECT_EQ(*table.TccMap[0].Find("R"), "X7R");
    EXPECT_EQ(*table.TccMap[0].Find("B"), "X7R");
    EXPECT_EQ(*table.TccMap[1].Find("X5R"), "r");
}

TEST(PartTable, PairsEmptyNames)
{
    const auto table = Load("A,B,C,D,,,,\r\n", "");
    ASSERT_NE(table.SizeCodeMap[0].Find(""), nullptr);
    EXPECT_EQ(*table.SizeCodeMap[0].Find(""), "");
}
} // namespace
