/// Verdicts on the parts of a board and on its nets.

#include "board/BomText.h"
#include "board/FilesBeside.h"
#include "tests/board/Board.h"

#include <gmock/gmock.h>

#include <fstream>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
const std::string Part = "KTS31NB51C226MA01";
} // namespace

TEST(BomVerdict, FailsAboveTheRatedVoltage)
{
    EXPECT_EQ(Board("Ref,MPN,Bias\nC1," + Part + ",16V\n").Item().Verdict, BomVerdict::Warn);
    EXPECT_DOUBLE_EQ(Board("Ref,MPN,Bias\nC1," + Part + ",16V\n").Item().Reserve.value(), 0);
    const Board above("Ref,MPN,Bias\nC1," + Part + ",16.01V\n");
    EXPECT_EQ(above.Item().Verdict, BomVerdict::Fail);
    EXPECT_THAT(above.Item().Reasons, ElementsAre("bias 16.01 V above 16 V"));
}

TEST(BomVerdict, WarnsBelowTheReserveAskedFor)
{
    const std::string bill = "Ref,MPN,Bias\nC1," + Part + ",12V\n";
    EXPECT_EQ(Board(bill, "", {.WarnPercent = 25}).Item().Verdict, BomVerdict::Ok);
    EXPECT_EQ(Board(bill, "", {.WarnPercent = 25.01F}).Item().Verdict, BomVerdict::Warn);
}

TEST(BomVerdict, NeverTakesABiasForGranted)
{
    const Board board("Ref,MPN\nC1," + Part + "\n");
    EXPECT_EQ(board.Item().Verdict, BomVerdict::Unknown);
    EXPECT_THAT(board.Item().Reasons, ElementsAre("no bias is given"));
}

TEST(BomVerdict, TakesMagnitudesOfNegativeRails)
{
    const auto range =
        Board("Ref,MPN,Bias\nC1," + Part + ",-12.6..-11.4V\n").Item().Question.Asked.At.BiasVolts;
    EXPECT_EQ(range, ConditionRange(11.4F, 12.6F));
    const auto across = Board("Ref,MPN,Bias\nC1," + Part + ",-5..3V\n").Item().Question.Asked.At.BiasVolts;
    EXPECT_EQ(across, ConditionRange(0, 5));
}

TEST(BomVerdict, FailsOutsideTheCharacteristic)
{
    const Board board("Ref,MPN,Bias,Ambient\nC1," + Part + ",5V,-10..90C\n");
    EXPECT_EQ(board.Item().Verdict, BomVerdict::Fail);
    EXPECT_THAT(board.Item().Reasons.at(0), HasSubstr("characteristic"));
}

TEST(BomVerdict, JudgesTheRiseOfALoad)
{
    const std::string bill = "Ref,MPN,Bias,Frequency,Current\nC1," + Part + ",5V,300kHz,";
    EXPECT_EQ(Board(bill + "1Arms\n").Item().Verdict, BomVerdict::Ok);
    const Board failing(bill + "20Arms\n");
    EXPECT_EQ(failing.Item().Verdict, BomVerdict::Fail);
    EXPECT_EQ(failing.Item().Decides, "rise");
}

TEST(BomVerdict, CountsWhatIsNotJudged)
{
    const Board board("Ref,MPN,Bias,DNP\nC1,OTHER,5V,\nR1,R-10K,,\nU1," + Part + ",5V,\nC2," + Part +
                      ",5V,x\n");
    EXPECT_EQ(CountsText(board.Judged), "0 fail, 1 unknown, 0 warn, 1 ok; 1 row skipped, 1 not fitted");
}

TEST(BomVerdict, TellsEveryFaultByItsLine)
{
    const Board board("Ref,MPN,Bias,Ambient,Min Left\nC1," + Part + ",12 Volt,hot,\nC2," + Part +
                      ",5V,13..12C,-1\n");
    ASSERT_THAT(board.Judged.Faults, SizeIs(4));
    EXPECT_EQ(board.Judged.Faults[0].Note.Line, 2U);
    EXPECT_EQ(board.Judged.Faults[0].Note.Text,
              "dc bias: \"12 Volt\": \"Volt\" is not the unit of a voltage");
    EXPECT_EQ(board.Judged.Faults[2].Note.Line, 3U);
    EXPECT_THAT(board.Judged.Faults[3].Note.Text, HasSubstr("min left"));
}

TEST(BomVerdict, FailsANetWhosePieceIsAboveItsRating)
{
    const Board board("Ref,MPN,Net,Bias\nC1," + Part + ",N,20V\n");
    EXPECT_EQ(board.Judged.Nets.at(0).Verdict, BomVerdict::Fail);
    EXPECT_FALSE(board.Judged.Nets.at(0).Answer.Least);
}

TEST(BomVerdict, SharesTheCurrentOfANetAmongEqualsEqually)
{
    const Board board("Ref,MPN,Net,Bias,Net Current,Net Frequency\n\"C1,C2\"," + Part +
                      ",N,5V,4Arms,300kHz\n");
    ASSERT_TRUE(board.Item().Share);
    EXPECT_NEAR(board.Item().Share->Arms, 2, 1e-6);
}

TEST(FilesBeside, LieInTheFolderOfTheFileThatNamesThem)
{
    const auto folder = std::filesystem::path(testing::TempDir()) / "tavik_beside";
    std::filesystem::create_directories(folder / "waves");
    std::ofstream(folder / "waves" / "own.csv") << "own";
    std::ofstream(folder.parent_path() / "tavik_beside_other.csv") << "other";
    std::filesystem::remove(folder / "link.csv");
    std::filesystem::create_symlink("../tavik_beside_other.csv", folder / "link.csv");
    const auto read = [&](const std::string& name) { return ReadBeside(folder / "bill.csv", name, 100); };
    EXPECT_EQ(read("waves/own.csv"), "own");
    EXPECT_EQ(read("waves/../waves/own.csv"), "own");
    EXPECT_THROW(read("../tavik_beside_other.csv"), std::runtime_error);
    EXPECT_THROW(read("link.csv"), std::runtime_error);
    EXPECT_THROW(read("/etc/hostname"), std::runtime_error);
    EXPECT_THROW(read("none.csv"), std::runtime_error);
    EXPECT_THROW(read("waves"), std::runtime_error);
    EXPECT_THROW(read(std::string(10000, 'x')), std::runtime_error);
}
