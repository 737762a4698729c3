/// Bills of materials in the forms that schematic programs write.

#include "board/BomTable.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
std::string Utf16(const std::string& ascii)
{
    std::string bytes = "\xFF\xFE";
    for (const char c : ascii)
    {
        bytes += c;
        bytes += '\0';
    }
    return bytes;
}

BomTable Bill(const std::string& text, const std::vector<ChosenColumn>& chosen = {})
{
    return ReadBomTable(text, BomTableKind::Bill, chosen);
}

std::string Cell(const BomTable& table, BomField field, std::size_t row = 0)
{
    const auto cell = table.CellOf(table.Rows.at(row), field);
    return cell ? cell->Text : "none";
}

struct ExportRow
{
    const char* Name;
    std::string Text;
};

class ExportTest : public testing::TestWithParam<ExportRow>
{
};
} // namespace

INSTANTIATE_TEST_SUITE_P(
    Forms, ExportTest,
    testing::Values(
        ExportRow{"GroupedFields", "\"Reference\",\"Value\",\"Footprint\",\"Qty\",\"MPN\",\"DNP\"\r\n"
                                   "\"C1,C2\",\"10u\",\"C_1210\",\"2\",\"P10\",\"\"\r\n"},
        ExportRow{"PreambleAndSemicolons", "Source:;power.sch\nDate:;2026-11-20\n\n"
                                           "Reference(s);Value;Qty;Mfr. Part No.\nC1, C2;10u;2;P10\n"},
        ExportRow{"ItemNumbers", "Item,Qty,Reference(s),Value,MPN\n1,2,\"C1, C2\",10u,P10\n"},
        ExportRow{"Designators", "Comment,Description,Designator,Footprint,LibRef,Quantity,Manufacturer Part "
                                 "Number\n10u,Cap,\"C1, C2\",1210,CAP,2,P10\n"},
        ExportRow{"TabsInUtf16", Utf16("RefDes\tPart Number\tQty\r\nC1 C2\tP10\t2\r\n")},
        ExportRow{"QuotedBlanks", "\"Qty\" \"x\"\nParts,Qty,Value,Reference Designators,Mfg PN\n"
                                  ",2,10u,C1;C2,P10\n"},
        ExportRow{"ValueIsThePart", "Designator,Comment,Qty\nC1-C2,P10,2\n"},
        ExportRow{"DeviceIsThePart", "Qty;Value;Device;Refs\n2;P10;;C1, C2\n"},
        ExportRow{"CarriageReturnsAlone", "Ref\tPN\tPcs\rC1,C2\tP10\t2\r"},
        ExportRow{"MarkOfUtf8", "\xEF\xBB\xBF"
                                "Ref,MPN,Count\nC1..2,P10,2\n"},
        ExportRow{"LettersOfWindows", "Projekt;L\xFC"
                                      "fter\nRefs;Manufacturer PN;Qty\nC1 C2;P10;2\n"},
        ExportRow{"BreaksWithinCells", "Ref,MPN,Qty\n\"C1,\nC2\",P10,2\n"}),
    [](const auto& row) { return row.param.Name; });

TEST_P(ExportTest, IsUnderstood)
{
    const auto table = Bill(GetParam().Text);
    EXPECT_THAT(table.Faults, IsEmpty());
    ASSERT_THAT(table.Rows, SizeIs(1));
    EXPECT_THAT(Cell(table, BomField::Reference), HasSubstr("C1"));
    EXPECT_EQ(Cell(table, BomField::Part), "P10");
    EXPECT_EQ(Cell(table, BomField::Quantity), "2");
}

TEST(BomTable, GivesBareNumbersTheUnitOfTheirHeading)
{
    const auto table = Bill("Ref;MPN;DC Bias [mV];Tol (%)\nC1;P;500;10\nC1;P;10,8..13,2;\nC1;P;12\u00B110%;\n"
                            "C1;P;5V;-20/+80\n");
    EXPECT_EQ(Cell(table, BomField::DCBias, 0), "500mV");
    EXPECT_EQ(Cell(table, BomField::DCBias, 1), "10.8..13.2mV");
    EXPECT_EQ(Cell(table, BomField::DCBias, 2), "12mV\u00B110%");
    EXPECT_EQ(Cell(table, BomField::DCBias, 3), "5V");
    EXPECT_EQ(Cell(table, BomField::Tolerance, 0), "10%");
}

TEST(BomTable, TakesDefaultsBeforeTheHeading)
{
    const auto table =
        ReadBomTable("# ambient: -10..65C;;\n# tolerance: 10%\n# written by hand\n# ambeint: 5\n"
                     "net;dc bias\n+5V;5V\n",
                     BomTableKind::Conditions);
    EXPECT_EQ(table.Defaults[static_cast<std::size_t>(BomField::Ambient)]->Text, "-10..65C");
    EXPECT_EQ(table.Defaults[static_cast<std::size_t>(BomField::Tolerance)]->Text, "10%");
    ASSERT_THAT(table.Notes, SizeIs(1));
    EXPECT_EQ(table.Notes.front().Line, 4U);
    EXPECT_THAT(table.Notes.front().Text, HasSubstr("ambeint"));
}

TEST(BomTable, CountsLinesOfTheFile)
{
    const auto table = Bill("first\n\nRef,MPN\n\n\"C1,\nC2\",P\nC3,Q\n");
    ASSERT_THAT(table.Rows, SizeIs(2));
    EXPECT_EQ(table.Rows[0].Line, 5U);
    EXPECT_EQ(table.Rows[1].Line, 7U);
}

TEST(BomTable, TellsOfTheSecondColumnOfAMeaning)
{
    const auto table = Bill("Ref,MPN,Part Number\nC1,P,Q\n");
    EXPECT_EQ(Cell(table, BomField::Part), "P");
    ASSERT_THAT(table.Notes, SizeIs(1));
    EXPECT_THAT(table.Notes.front().Text, HasSubstr("Part Number"));
}

TEST(BomTable, TakesNoVoltageThatMayBeTheRating)
{
    const std::string text = "Ref,MPN,Voltage\nC1,P,25V\n";
    const auto table = Bill(text);
    EXPECT_EQ(Cell(table, BomField::DCBias), "none");
    ASSERT_THAT(table.Notes, SizeIs(1));
    EXPECT_THAT(table.Notes.front().Text, HasSubstr("--column \"dc bias=Voltage\""));
    const auto said = Bill(text, {{BomField::DCBias, "Voltage"}});
    EXPECT_EQ(Cell(said, BomField::DCBias), "25V");
    EXPECT_THAT(said.Notes, IsEmpty());
}

TEST(BomTable, RefusesWhatIsNoTableOfParts)
{
    EXPECT_THAT(Bill("").Faults, SizeIs(1));
    EXPECT_THAT(Bill("MPN,Qty\nP,2\n").Faults, SizeIs(1));
    EXPECT_THAT(Bill("Ref,MPN\nC1,P\n", {{BomField::DCBias, "Volts"}}).Faults, SizeIs(1));
    const auto table = Bill("Ref,MPN\nC1,\"P\nC2,Q\n");
    ASSERT_THAT(table.Faults, SizeIs(1));
    EXPECT_EQ(table.Faults.front().Line, 2U);
}

TEST(BomTable, TellsOpenQuotesOfTheHeading)
{
    const auto table = Bill("first\nRef,MPN,\"Note\nC1,P,\nC2,Q,\n");
    ASSERT_THAT(table.Faults, SizeIs(1));
    EXPECT_EQ(table.Faults.front().Line, 2U);
    EXPECT_EQ(table.Faults.front().Text, "no closing quote");
}

TEST(BomTable, RefusesLongCellsButListsOfReferences)
{
    const std::string longText(1001, 'x');
    EXPECT_THAT(Bill("Ref,MPN,Note\n" + longText + ",P," + longText + "\n").Faults, IsEmpty());
    EXPECT_THAT(Bill("Ref,MPN\nC1," + longText.substr(1) + "\n").Faults, IsEmpty());
    const auto table = Bill("Ref,MPN\nC1," + longText + "\n");
    ASSERT_THAT(table.Faults, SizeIs(1));
    EXPECT_EQ(table.Faults.front().Line, 2U);
    EXPECT_EQ(table.Faults.front().Text, "part: longer than 1,000 bytes");
}

TEST(BomTable, TellsNoMoreThanAPersonReads)
{
    std::string headings = "Ref,MPN [" + std::string(100'000, 'x') + ']';
    std::string faults = "Ref,MPN\n";
    for (int i = 0; i < 2000; ++i)
    {
        headings += ",MPN";
        faults += "C1,\"P\"x\n";
    }
    const auto notes = Bill(headings + "\nC1,P\n").Notes;
    EXPECT_THAT(notes, SizeIs(MostBomNotes));
    EXPECT_LT(notes.back().Text.size(), 200U);
    EXPECT_THAT(Bill(faults).Faults, SizeIs(MostBomNotes));
}

TEST(BomTable, LooksForTheHeadingInFiftyLines)
{
    const std::string heading = "Ref,MPN\nC1,P\n";
    EXPECT_THAT(Bill(std::string(49, '\n') + heading).Faults, IsEmpty());
    EXPECT_THAT(Bill(std::string(50, '\n') + heading).Faults, SizeIs(1));
}
