/// Loads of rows and nets, and what makes a row a warning though its limits are held.

#include "board/BomCheck.h"
#include "tests/board/Board.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace
{
/// A triangle from 0 A to `peak` and back in 2 us, and a column of twice that.
std::string Triangles(double peak)
{
    std::string text = "time,i,twice\n";
    for (int i = 0; i <= 1000; ++i)
    {
        const double part = i % 20 < 10 ? i % 20 / 10.0 : 2 - i % 20 / 10.0;
        text += std::to_string(i) + "e-7";
        text += ',' + std::to_string(peak * part) + ',' + std::to_string(2 * peak * part) + '\n';
    }
    return text;
}

struct LoadedBoard
{
    explicit LoadedBoard(const std::string& bill, const std::string& conditions = "", double peak = 2)
    {
        Source = [this, peak](const std::string& name, bool /*isOfConditions*/)
        {
            Names.push_back(name);
            return ReadWaveforms(Triangles(peak));
        };
        Checked = CheckBom(
            {.Bill = bill, .Conditions = conditions.empty() ? std::nullopt : std::optional(conditions)},
            {.Waveforms = Source}, Range());
        EXPECT_THAT(Checked->Faults, IsEmpty());
    }

    const JudgedItem& Item(std::size_t index = 0) const { return Checked->Judged.Items.at(index); }

    std::vector<std::string> Names;
    WaveformSource Source;
    std::unique_ptr<const CheckedBom> Checked;
};

const std::string Part = "KTS31NB51C226MA01";
constexpr const char* Buck = "buck vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH side=input";
} // namespace

TEST(RowWarnings, TellAnotherQuantityThanReferences)
{
    const auto reasons = [](const std::string& quantity)
    { return Board("Ref,MPN,Qty,Bias\n\"C1,C2\"," + Part + ',' + quantity + ",5V\n").Item().Reasons; };
    EXPECT_THAT(reasons("3"), ElementsAre("quantity 3, but 2 references"));
    EXPECT_THAT(reasons("2 pcs"), ElementsAre("quantity 2 pcs, but 2 references"));
    EXPECT_THAT(reasons("2.0"), ElementsAre("bias 5 V of 16 V"));
}

TEST(RowWarnings, TellRippleAboveTheRatedVoltage)
{
    const std::string bill = "Ref,MPN,Frequency,Current,Bias\nC1,KTS188R71H104KA01,10kHz,0.02A,";
    EXPECT_THAT(Board(bill + "40V\n").Item().Reasons, Not(Contains(HasSubstr("reach"))));
    const Board board(bill + "49V\n");
    EXPECT_EQ(board.Item().Verdict, BomVerdict::Warn);
    EXPECT_THAT(board.Item().Reasons,
                Contains(testing::MatchesRegex("bias and ripple reach 5[0-9.]+ V, above the rated 50 V")));
}

TEST(RowWarnings, TellACapacitanceThatHeatTakes)
{
    const std::string bill = "Ref,MPN,Bias,Ambient,Frequency,Current\nC1,KTS21JF51A106ZA01,2V,40C,300kHz,";
    EXPECT_THAT(Board(bill + "0.1A\n").Item().Reasons, Not(Contains(HasSubstr("warm"))));
    const Board board(bill + "3A\n");
    EXPECT_THAT(board.Item().Reasons, Contains(testing::MatchesRegex(
                                          "warm it has [0-9.]+ % less capacitance than at the ambient.*")));
}

TEST(RowWarnings, TellWhatMakesALoadLessSure)
{
    const LoadedBoard board("Ref,MPN,Bias,Converter\nC1," + Part +
                            ",5V,flyback vin=48 vout=5 iout=3 f=800kHz l=4uH n=4\n");
    EXPECT_THAT(board.Item().Reasons, Contains(HasSubstr("of the rise is above 1 MHz")));
}

TEST(BoardLoads, OfAConverterHeatLikeTheSineThatHeatsAlike)
{
    const LoadedBoard board("Ref,MPN,Bias,Converter\nC1," + Part + ",5V," + Buck + '\n');
    const auto& at = board.Item().Question.Asked.At;
    const Board sine("Ref,MPN,Bias,Frequency,Current\nC1," + Part + ",5V," +
                     std::to_string(at.Kilohertz->Low) + "kHz," + std::to_string(at.Load->Value) + "A\n");
    EXPECT_GT(*board.Item().Figure(FoundColumn::Rise), 0.5);
    EXPECT_NEAR(*board.Item().Figure(FoundColumn::Rise), *sine.Item().Figure(FoundColumn::Rise), 1e-4);
    // Its voltage is another.
    EXPECT_FALSE(board.Item().Figure(FoundColumn::Ripple));
    EXPECT_TRUE(sine.Item().Figure(FoundColumn::Ripple));
}

TEST(BoardLoads, OfAWaveformAreReadOnceForAllParts)
{
    const LoadedBoard board("Ref,MPN,Bias,Waveform\nC1," + Part + ",5V,wave.csv:i\nC2," + Part +
                            ",6V,wave.csv:i\nC3," + Part + ",5V,wave.csv:twice\n");
    EXPECT_THAT(board.Names, ElementsAre("wave.csv", "wave.csv"));
    ASSERT_THAT(board.Checked->Judged.Items, SizeIs(3));
    // A triangle from 0 to 2 A has 1/sqrt(3) A about its mean.
    EXPECT_NEAR(board.Item(2).Question.Asked.At.Load->Value, 2 / std::sqrt(3.0), 1e-3);
    EXPECT_NEAR(board.Item(1).Question.Asked.At.Load->Value, 1 / std::sqrt(3.0), 1e-3);
    EXPECT_THAT(board.Item(1).Reasons, Contains(HasSubstr("the mean is 1 A")));
}

TEST(BoardLoads, OfANetAreSharedByItsParts)
{
    for (const std::string column : {"net waveform", "net converter"})
    {
        const auto load = column == "net waveform" ? std::string("wave.csv:i") : std::string(Buck);
        const LoadedBoard board("Ref,MPN,Net\n\"C1,C2\"," + Part + ",N\n",
                                "net,dc bias," + column + "\nN,5V," + load + '\n');
        ASSERT_TRUE(board.Item().Share) << column;
        ASSERT_TRUE(board.Checked->Judged.Nets.at(0).Answer.Arms);
        EXPECT_NEAR(board.Item().Share->Arms, *board.Checked->Judged.Nets.at(0).Answer.Arms / 2, 1e-6);
        EXPECT_GT(board.Item().Share->Rise, 0);
    }
}

TEST(BoardNotes, TellWhereHeatIsJudgedFrom)
{
    const std::string bill = "Ref,MPN,Bias,Ambient,Frequency,Current\nC1," + Part + ",5V,";
    const auto notes = [&](const std::string& rest) { return Board(bill + rest + '\n').Judged.Notes; };
    EXPECT_THAT(notes("-10..65C,300kHz,1A"),
                ElementsAre("rise and loads judged from 20 C up, where the heating data begins"));
    EXPECT_THAT(notes("20..65C,300kHz,1A"), IsEmpty());
    EXPECT_THAT(notes("-10..65C,,"), IsEmpty());
}

TEST(BoardNotes, TellWhereAnInductanceWouldDecide)
{
    const auto notes = [](const std::string& frequency)
    {
        return Board("Ref,MPN,Net,Bias,Net Current,Net Frequency\nC1," + Part + ",N,5V,1A," + frequency +
                     '\n')
            .Judged.Notes;
    };
    EXPECT_THAT(notes("100kHz"), IsEmpty());
    EXPECT_THAT(notes("1MHz"),
                ElementsAre("net N: at 1000 kHz an inductance of 1 nH would decide currents and "
                            "ripple voltage"));
}
