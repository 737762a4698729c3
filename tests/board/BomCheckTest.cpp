/// A bill from its text to its verdicts in one: what is told on the way, and where it ends.

#include "board/BomCheck.h"
#include "board/FilesBeside.h"
#include "files/PartLoading.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <stdexcept>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
const PartTable& Range()
{
    static const PartTable parts = LoadPartData(RANGE_FOLDER);
    return parts;
}

WaveformTable NoWaveform(const std::string& /*name*/, bool /*isOfConditions*/)
{
    throw std::runtime_error("no waveform");
}

/// "conditions 2: dc bias: ...", a line each.
std::vector<std::string> Told(const std::vector<BomRemark>& remarks)
{
    std::vector<std::string> told;
    for (const BomRemark& remark : remarks)
    {
        told.push_back((remark.IsOfConditions ? "conditions " : "bill ") + std::to_string(remark.Note.Line) +
                       ": " + remark.Note.Text);
    }
    return told;
}

std::unique_ptr<const CheckedBom> Check(const std::string& bill,
                                        const std::optional<std::string>& conditions = {},
                                        BomAsked asked = {.Waveforms = NoWaveform})
{
    return CheckBom({.Bill = bill, .Conditions = conditions}, asked, Range());
}

const std::string Bill = "Reference,MPN\nC1,KTS31NB51C226MA01\n";
} // namespace

TEST(BomCheck, JudgesUnderItsConditions)
{
    const auto checked = Check(Bill, "reference,dc bias\nC1,12V\n");
    EXPECT_THAT(checked->Faults, IsEmpty());
    EXPECT_THAT(checked->Warnings, IsEmpty());
    ASSERT_THAT(checked->Judged.Items, SizeIs(1));
    EXPECT_EQ(checked->Judged.Items[0].Verdict, BomVerdict::Ok);
}

TEST(BomCheck, TakesOptionsAndColumns)
{
    BomAsked asked{.Columns = {{.Field = BomField::DCBias, .Heading = "Voltage"}}, .Waveforms = NoWaveform};
    asked.Options[static_cast<std::size_t>(BomField::MaxBias)] = BomCell{.Text = "50%"};
    const auto checked = Check("Reference,MPN,Voltage\nC1,KTS31NB51C226MA01,12V\n", {}, asked);
    ASSERT_THAT(checked->Judged.Items, SizeIs(1));
    EXPECT_EQ(checked->Judged.Items[0].Verdict, BomVerdict::Fail);
    EXPECT_EQ(checked->Judged.Items[0].Decides, "bias");
}

TEST(BomCheck, TellsFaultsOfBothTables)
{
    const auto checked = Check("a\nb\n", "c\nd\n");
    EXPECT_THAT(Told(checked->Faults),
                ElementsAre("bill 0: there is no heading with a part column and a reference, net or bias "
                            "column among the first 50 lines",
                            "conditions 0: there is no heading with a reference or net column among the "
                            "first 50 lines"));
}

TEST(BomCheck, EndsAtTheFirstStepWithFaults)
{
    const auto joined = Check(Bill + "C1,KTS31NB51C226MA01\n", "reference,dc bias\nC1,twelve\nC9,12V\n");
    EXPECT_THAT(Told(joined->Faults), ElementsAre("bill 3: C1 stands in line 2 already"));
    EXPECT_THAT(Told(joined->Warnings), ElementsAre("conditions 3: C9 is not in the bill of materials"));
    EXPECT_THAT(joined->Judged.Items, IsEmpty());
    const auto judged = Check(Bill, "reference,dc bias\nC1,twelve\n");
    ASSERT_THAT(judged->Faults, SizeIs(1));
    EXPECT_TRUE(judged->Faults[0].IsOfConditions);
    EXPECT_EQ(judged->Faults[0].Note.Line, 2U);
}

TEST(BomCheck, TellsWhatManyPartsShareOnce)
{
    BomAsked asked{.Waveforms = NoWaveform};
    asked.Options[static_cast<std::size_t>(BomField::MaxBias)] = BomCell{.Text = "150%"};
    const auto checked = Check(Bill + "C2,KTS31NB51C226MA01\n", {}, asked);
    EXPECT_THAT(Told(checked->Faults), ElementsAre("bill 0: max bias: not above 0, up to 100 %"));
}

TEST(BomCheck, IsLeftBetweenTwoParts)
{
    struct Unwanted
    {
    };
    int count = 0;
    const BomAsked asked{.Waveforms = NoWaveform,
                         .Pause = [&]
                         {
                             if (++count == 4)
                             {
                                 throw Unwanted();
                             }
                         }};
    EXPECT_THROW(Check(Bill + "C2,KTS31NB51C226MA01\n", "reference,dc bias\nC1,12V\n", asked), Unwanted);
}

TEST(BomCheck, IsLeftWhenItIsNoLongerWanted)
{
    struct Unwanted
    {
    };
    const BomAsked asked{.Waveforms = NoWaveform, .Pause = [] { throw Unwanted(); }};
    EXPECT_THROW(Check(Bill, {}, asked), Unwanted);
}

TEST(FilesBeside, HavePathsInTheFolderOfTheBillAlone)
{
    const auto folder = std::filesystem::weakly_canonical(".");
    EXPECT_EQ(PathBeside("bill.csv", "waves/a.txt"), folder / "waves" / "a.txt");
    EXPECT_THROW(PathBeside("bill.csv", "../a.txt"), std::runtime_error);
    EXPECT_THROW(PathBeside("bill.csv", "/etc/a.txt"), std::runtime_error);
}
