/// Bills of materials joined with their conditions.

#include "board/BomConditions.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
JoinedBom Join(const std::string& bill, const std::string& conditions = "", const BomCells& options = {})
{
    const auto table = ReadBomTable(bill, BomTableKind::Bill);
    EXPECT_THAT(table.Faults, IsEmpty());
    return JoinBom(
        table, conditions.empty() ? BomTable() : ReadBomTable(conditions, BomTableKind::Conditions), options);
}

std::string BiasOf(const BomItem& item)
{
    return item.TextOf(BomField::DCBias);
}
} // namespace

TEST(BomConditions, SplitRowsWhoseReferencesDiffer)
{
    const auto joined = Join("Ref,MPN,Qty\n\"C10,C11,C12,C13\",P,4\n",
                             "net,reference,dc bias\n+12V,C12,12V\n+3V3,C10-C11,3.3V\n");
    ASSERT_THAT(joined.Items, SizeIs(3));
    EXPECT_THAT(joined.Items[0].References, ElementsAre("C10", "C11"));
    EXPECT_EQ(BiasOf(joined.Items[0]), "3.3V");
    EXPECT_THAT(joined.Items[1].References, ElementsAre("C12"));
    EXPECT_EQ(BiasOf(joined.Items[1]), "12V");
    EXPECT_THAT(joined.Items[2].References, ElementsAre("C13"));
    EXPECT_EQ(BiasOf(joined.Items[2]), "");
    EXPECT_EQ(joined.Items[2].ReferencesOfRow, 4U);
}

TEST(BomConditions, CountInTheirOrder)
{
    BomCells options;
    options[static_cast<std::size_t>(BomField::DCBias)] = BomCell{.Text = "4V"};
    const std::string bill = "# dc bias: 6V\nRef,MPN,Net,Bias\n";
    const std::string conditions = "# dc bias: 5V\nreference,net,dc bias\n";
    const auto biasWith = [&](const std::string& row, const std::string& rows, const BomCells& said)
    { return BiasOf(Join(bill + row, conditions + rows, said).Items.at(0)); };
    EXPECT_EQ(biasWith("C1,P,N,1V\n", "C1,,2V\n,N,3V\n", options), "1V");
    EXPECT_EQ(biasWith("C1,P,N,\n", "C1,,2V\n,N,3V\n", options), "2V");
    EXPECT_EQ(biasWith("C1,P,N,\n", ",N,3V\n", options), "3V");
    EXPECT_EQ(biasWith("C1,P,N,\n", "C9,,3V\n", options), "4V");
    EXPECT_EQ(biasWith("C1,P,N,\n", "C9,,3V\n", {}), "5V");
    EXPECT_EQ(BiasOf(Join(bill + "C1,P,N,\n").Items.at(0)), "6V");
}

TEST(BomConditions, OfReferencesPutThemOnNets)
{
    const auto joined = Join("Ref,MPN\nC1,P\n", "reference,net,dc bias\nc1,N,\n,N,3V\n");
    EXPECT_EQ(joined.Items.at(0).TextOf(BomField::Net), "N");
    EXPECT_EQ(BiasOf(joined.Items.at(0)), "3V");
    EXPECT_THAT(joined.Warnings, IsEmpty());
}

TEST(BomConditions, ThatOutlivedTheirPartsAreTold)
{
    const auto joined = Join("Ref,MPN\nC1,P\n", "reference,net,dc bias\n,GONE,3V\n\"C1,C2\",N,2V\n");
    ASSERT_THAT(joined.Warnings, SizeIs(2));
    EXPECT_EQ(joined.Warnings[0].Note.Text, "no part is on net GONE");
    EXPECT_EQ(joined.Warnings[0].Note.Line, 2U);
    EXPECT_EQ(joined.Warnings[1].Note.Text, "C2 is not in the bill of materials");
    EXPECT_EQ(joined.Warnings[1].Note.Line, 3U);
}

TEST(BomConditions, RefuseAReferenceInTwoRows)
{
    const auto inBill = Join("Ref,MPN\nC1,P\n\"C2,c1\",Q\n");
    ASSERT_THAT(inBill.Faults, SizeIs(1));
    EXPECT_EQ(inBill.Faults[0].Note.Text, "c1 stands in line 2 already");
    EXPECT_EQ(inBill.Faults[0].Note.Line, 3U);
    const auto inConditions = Join("Ref,MPN\nC1,P\n", "reference,dc bias\nC1,2V\nC1,3V\n");
    ASSERT_THAT(inConditions.Faults, SizeIs(1));
    EXPECT_EQ(inConditions.Faults[0].Note.Text, "C1 stands in line 2 already");
    EXPECT_TRUE(inConditions.Faults[0].IsOfConditions);
}

TEST(BomConditions, RefuseANetWithTwoBiases)
{
    const auto joined = Join("Ref,MPN\n\"C1,C2\",P\n", "reference,net,dc bias\nC1,N,2V\nC2,N,3V\n");
    ASSERT_THAT(joined.Faults, SizeIs(1));
    EXPECT_EQ(joined.Faults[0].Note.Text, "net N has another dc bias, 3V, than in line 2, 2V");
    EXPECT_EQ(joined.Faults[0].Note.Line, 3U);
}

TEST(BomConditions, TellWhatIsNotFitted)
{
    const auto joined = Join("Ref,MPN,DNP\nC1,P,\nC2,P,0\nC3,P,no\nC4,P,x\nC5,P,DNP\n");
    std::vector<bool> fitted;
    std::ranges::transform(joined.Items, std::back_inserter(fitted), &BomItem::IsFitted);
    EXPECT_THAT(fitted, ElementsAre(true, true, true, false, false));
    EXPECT_FALSE(Join("Ref,MPN,Fitted\nC1,P,No\n").Items.at(0).IsFitted());
    EXPECT_TRUE(Join("Ref,MPN,Populate\nC1,P,\n").Items.at(0).IsFitted());
}

TEST(BomConditions, AreNotReadOnBeyondAnyBoard)
{
    std::string bill = "Ref,MPN\n";
    std::string twice = "Ref,MPN\n";
    for (int i = 0; i < 500; ++i)
    {
        const auto first = std::to_string(1000 * i);
        bill += "C" + first + "-" + std::to_string(1000 * i + 999) + ",P\n";
        twice += "C0-C999,P\n";
    }
    const auto joined = Join(bill);
    ASSERT_THAT(joined.Faults, SizeIs(1));
    EXPECT_EQ(joined.Faults[0].Note.Text, "there are more than 100,000 references");
    EXPECT_EQ(joined.Faults[0].Note.Line, 102U);
    const auto faulty = Join(twice);
    ASSERT_THAT(faulty.Faults, SizeIs(1001));
    EXPECT_THAT(faulty.Faults.back().Note.Text, HasSubstr("the rest of the file was not read"));
    const auto conditions = Join("Ref,MPN\nC1,P\n", "reference" + bill.substr(3));
    ASSERT_THAT(conditions.Faults, SizeIs(1));
    EXPECT_THAT(conditions.Warnings, IsEmpty());
}
