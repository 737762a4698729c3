#include "partfiles/TableMerge.h"

#include <gmock/gmock.h>

#include <algorithm>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
TablePart Part(const std::string& name, std::size_t line = 2)
{
    TablePart part;
    part.Line = line;
    std::fill_n(part.Names.begin(), PartNumForms, name);
    return part;
}

NamedTable Table(const std::string& file, std::initializer_list<TablePart> parts)
{
    NamedTable table{file, {}};
    table.Table.Parts = parts;
    table.Table.LineEnd = "\r\n";
    return table;
}

std::vector<std::string> NamesIn(const TableContents& table)
{
    std::vector<std::string> names;
    std::ranges::transform(table.Parts, std::back_inserter(names),
                           [](const auto& part) { return part.Names[0]; });
    return names;
}

TEST(PutIntoTable, AddsANewPartLast)
{
    auto table = Table("range.csv", {Part("A"), Part("B", 3)});
    EXPECT_EQ(PutIntoTable(table, Part("C"), false), std::nullopt);
    EXPECT_THAT(NamesIn(table.Table), ElementsAre("A", "B", "C"));
}

TEST(PutIntoTable, RefusesANumberInAnyFormAndLetterCase)
{
    auto table = Table("range.csv", {Part("A"), Part("B", 3)});
    table.Table.Parts[1].Names[2] = "Own";
    EXPECT_THAT(PutIntoTable(table, Part("OWN"), false).value(),
                HasSubstr("range.csv: line 3: \"OWN\": the part number stands in the table already"));
    EXPECT_THAT(NamesIn(table.Table), ElementsAre("A", "B"));
}

TEST(PutIntoTable, ReplacesTheOneRowOfThePart)
{
    auto table = Table("range.csv", {Part("A"), Part("own", 3), Part("C", 4)});
    EXPECT_EQ(PutIntoTable(table, Part("OWN"), true), std::nullopt);
    EXPECT_THAT(NamesIn(table.Table), ElementsAre("A", "OWN", "C"));
    auto part = Part("OWN");
    part.Names[3] = "A";
    EXPECT_THAT(PutIntoTable(table, part, true).value(), HasSubstr("stand in more than one row"));
}

TEST(PutIntoTable, HoldsAsManyPartsAsARange)
{
    auto table = Table("range.csv", {});
    for (std::size_t i = 0; i < 32767; ++i)
    {
        table.Table.Parts.push_back(Part(std::to_string(i)));
    }
    EXPECT_EQ(PutIntoTable(table, Part("A"), false), "range.csv: more than 32767 parts");
    EXPECT_EQ(PutIntoTable(table, Part("7"), true), std::nullopt);
}

TEST(MergeTables, KeepsTheOrderAndTheLineEndsOfTheFirst)
{
    const auto merged =
        MergeTables(std::vector{Table("a.csv", {Part("A"), Part("B", 3)}), Table("b.csv", {Part("C")})});
    EXPECT_THAT(merged.Faults, IsEmpty());
    EXPECT_THAT(NamesIn(merged.Table), ElementsAre("A", "B", "C"));
    EXPECT_THAT(TextOf(merged.Table), HasSubstr("upper temperature [°C]\r\n"));
}

TEST(MergeTables, TellsBothPlacesOfEachNumberThatStandsTwice)
{
    auto clash = Part("C", 9);
    clash.Names[2] = "b";
    const auto merged = MergeTables(std::vector{Table("a.csv", {Part("A"), Part("B", 3)}),
                                                Table("b.csv", {clash}), Table("c.csv", {Part("a")})});
    EXPECT_THAT(
        merged.Faults,
        ElementsAre("b.csv: line 9: previous part number EIA: \"b\": the part number stands in a.csv, "
                    "line 3, too",
                    "c.csv: line 2: global part number EIA: \"a\": the part number stands in a.csv, "
                    "line 2, too"));
}

TEST(MergeTables, TakesPartsWhoseFormsAreAlike)
{
    EXPECT_THAT(MergeTables(std::vector{Table("a.csv", {Part("A")})}).Faults, IsEmpty());
}

TEST(TextOfTable, ReadsBackTheSame)
{
    NamedTable table = Table("a.csv", {Part("A"), Part("b \xB5", 3)});
    table.Table.Parts[0].Data[Value::RatedVoltage] = 6.3F;
    const auto text = TextOf(table.Table);
    const auto read = ReadTable(text);
    EXPECT_THAT(read.Errors, IsEmpty());
    EXPECT_EQ(TextOf(read), text);
    EXPECT_EQ(read.Parts[1].Names[0], "b \xB5");
    EXPECT_EQ(read.Parts[0].Data[Value::RatedVoltage], 6.3F);
}
} // namespace
