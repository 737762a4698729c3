/// Parts told by their values.

#include "board/PartValues.h"
#include "board/BomText.h"
#include "tests/board/Board.h"

#include <gmock/gmock.h>

using testing::Contains;

namespace
{
const PartRecord* PartOf(const std::string& cell, CodeView view = CodeView::Eia)
{
    PartValues values;
    PartWords(Range(), view).Read(cell, values);
    return PartOfValues(values, Range(), view);
}

std::string NameOf(const PartRecord* part)
{
    return part == nullptr ? "none" : std::string(part->PartNum[0]);
}

struct WordsRow
{
    const char* Name;
    const char* Cell;
    const char* Part;
};

class PartWordsTest : public testing::TestWithParam<WordsRow>
{
};
} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cells, PartWordsTest,
    testing::Values(WordsRow{"Plain", "10uF 25V X7R 1210", "KTS32XR71E106KA01"},
                    WordsRow{"WithoutFarad", "10u/25V/X7R/1210", "KTS32XR71E106KA01"},
                    WordsRow{"InNanofarads", "X7R 1210 10000nF 25 VDC", "KTS32XR71E106KA01"},
                    WordsRow{"MicroSign", "10 \u00B5F 25 V x7r C_1210_3225Metric", "KTS32XR71E106KA01"},
                    WordsRow{"UnitForPoint", "1206 X5R 4u7 6V3", "KTS316B50J475MA01"},
                    WordsRow{"DecimalComma", "1206 X5R 4,7uF 6,3V", "KTS316B50J475MA01"},
                    WordsRow{"SameValueTwice", "10uF 10u 25V X7R 1210", "KTS32XR71E106KA01"},
                    WordsRow{"WithoutRating", "10uF X7R 1210", "none"},
                    WordsRow{"WithoutSize", "10uF 25V X7R", "none"},
                    WordsRow{"WithoutCharacteristic", "10uF 25V 1210", "none"},
                    WordsRow{"WithoutCapacitance", "25V X7R 1210", "none"},
                    WordsRow{"TwoRatings", "10uF 25V 16V X7R 1210", "none"},
                    WordsRow{"TwoSizes", "10uF 25V X7R 1210 0805", "none"},
                    WordsRow{"NoSuchPart", "11uF 25V X7R 1210", "none"},
                    WordsRow{"Inductor", "10uH 25V X7R 1210", "none"}),
    [](const auto& row) { return row.param.Name; });

TEST_P(PartWordsTest, TellAPart)
{
    EXPECT_EQ(NameOf(PartOf(GetParam().Cell)), GetParam().Part);
}

TEST(PartValues, TellEachPartOfTheRange)
{
    for (const PartRecord& part : Range().PartData)
    {
        PartValues values{.Capacitance = part.Data[Value::NominalCapacitance],
                          .RatedVoltage = part.Data[Value::RatedVoltage],
                          .Characteristic = std::string(part.Tcc[0]),
                          .Size = std::string(part.SizeCode[0])};
        EXPECT_EQ(PartOfValues(values, Range(), CodeView::Eia), &part) << part.PartNum[0];
    }
}

TEST(PartValues, AreTakenWhereThatIsAskedFor)
{
    const std::string bill = "Ref,Value,Footprint,MPN,Bias\nC1,10uF 25V X7R,C_1210,OTHER,12V\n";
    EXPECT_EQ(Board(bill).Item().Verdict, BomVerdict::Unknown);
    const BomSettings settings{.IsByValue = true};
    const Board board(bill, "", settings);
    EXPECT_EQ(board.Item().Verdict, BomVerdict::Ok);
    EXPECT_TRUE(board.Item().IsByValue);
    EXPECT_THAT(board.Item().Reasons, Contains("by value"));
    EXPECT_EQ(PartText(board.Item(), settings), "KTS32XR71E106KA01");
}

TEST(PartValues, StandBehindPartNumbersAndBesideConditions)
{
    const BomSettings settings{.IsByValue = true};
    const Board numbered("Ref,Value,Footprint,MPN,Bias\nC1,10uF 25V X7R,C_1210,KTS31NB51C226MA01,12V\n", "",
                         settings);
    EXPECT_FALSE(numbered.Item().IsByValue);
    // Voltages that parts work at are not their rating.
    const Board beside("Ref,Value,Footprint,Bias\nC1,10uF 25V X7R,C_1210,12V\n", "", settings);
    EXPECT_TRUE(beside.Item().IsByValue);
}
