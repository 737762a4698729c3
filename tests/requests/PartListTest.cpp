/// Which parts a list holds, and how it is written.

#include "requests/PartList.h"

#include "requests/PartOrder.h"
#include "requests/RequestError.h"

#include <gtest/gtest.h>

namespace
{
/// A range of three parts with every kind of data, and one without.
struct Range
{
    PartTable Table;

    Range()
    {
        Add({"AB-1", "AB-2", "OLD-1", "OLD-2"}, {"1206", "3216"}, {"X7R", "R"}, 4700000, 25, 3);
        Add({"CD-1", "CD-2", "OLD-3", "OLD-4"}, {"0805", "2012"}, {"X5R", "B"}, 100, 6.3F, 28);
        Add({"EF\"1", "EF,2", "OLD-5", "OLD-6"}, {"0805", "2012"}, {"X7R", "R"}, 100, 25, 3);
        Add({"NO-1", "NO-2", "OLD-7", "OLD-8"}, {"0805", "2012"}, {"X7R", "R"}, 100, 25, 0);
    }

    void Add(std::array<std::string_view, 4> numbers, std::array<std::string_view, 2> size,
             std::array<std::string_view, 2> tcc, float capacitance, float rated, std::size_t dataAt)
    {
        PartRecord part{.PartNum = numbers, .SizeCode = size, .Tcc = tcc};
        part.Data[Value::Capacitance] = capacitance;
        part.Data[Value::RatedVoltage] = rated;
        if (dataAt != 0)
        {
            part.Data[dataAt] = 1;
        }
        Table.PartData.push_back(part);
    }

    /// First part numbers of what is found.
    std::string Find(const PartFilter& filter) const
    {
        std::string found;
        for (const PartRecord* part : FilterParts(Table, filter))
        {
            found.append(part->PartNum[0].substr(0, 2)).append(" ");
        }
        return found;
    }
};

std::string ListText(const std::vector<const PartRecord*>& parts, std::string_view format, CodeView code,
                     const CurveSettings& settings)
{
    return FormatNamed(PartListFormats(), format).Write(parts, code, settings);
}

TEST(PartList, HoldsEveryPartWithData)
{
    EXPECT_EQ(Range().Find({}), "AB CD EF ");
}

TEST(PartList, IsNarrowedByEachFilter)
{
    const Range range;
    EXPECT_EQ(range.Find({.Text = "old-3"}), "CD ");
    EXPECT_EQ(range.Find({.Text = "ab-2"}), "AB ");
    EXPECT_EQ(range.Find({.ChartType = 0}), "CD ");
    EXPECT_EQ(range.Find({.ChartType = 3}), "AB EF ");
    EXPECT_EQ(range.Find({.SizeCode = "2012"}), "CD EF ");
    EXPECT_EQ(range.Find({.SizeCode = "1206"}), "AB ");
    EXPECT_EQ(range.Find({.Tcc = "x7r"}), "AB EF ");
    EXPECT_EQ(range.Find({.Tcc = "b"}), "CD ");
    EXPECT_EQ(range.Find({.Capacitance = ValueRange{100, 100}}), "CD EF ");
    EXPECT_EQ(range.Find({.RatedVoltage = ValueRange{6.3F, 6.3F}}), "CD ");
    EXPECT_EQ(range.Find({.Tcc = "X7R", .Capacitance = ValueRange{100, 100}}), "EF ");
    EXPECT_EQ(range.Find({.Tcc = "X8R"}), "");
}

TEST(PartList, LooksNamesUpInTheCodeInForceFirst)
{
    Range range;
    range.Add({"GH-1", "GH-2", "OLD-9", "OLD-0"}, {"0402", "1206"}, {"X5R", "X7R"}, 100, 25, 3);
    EXPECT_EQ(range.Find({.SizeCode = "1206"}), "AB ");
    EXPECT_EQ(range.Find({.SizeCode = "1206", .Code = CodeView::Jis}), "GH ");
    EXPECT_EQ(range.Find({.SizeCode = "3216"}), "AB ");
    EXPECT_EQ(range.Find({.SizeCode = "0402", .Code = CodeView::Jis}), "GH ");
    EXPECT_EQ(range.Find({.Tcc = "X7R", .Code = CodeView::Jis}), "GH ");
}

TEST(PartList, TakesRangesOfValues)
{
    const Range range;
    const auto found = [&](const char* typed)
    { return range.Find({.Capacitance = RangeInUnit(typed, Quantity::Capacitance)}); };
    EXPECT_EQ(found("100pF..4.7uF"), "AB CD EF ");
    EXPECT_EQ(found("101.."), "AB ");
    EXPECT_EQ(found("..100"), "CD EF ");
    EXPECT_EQ(found("4.7UF"), "AB ");
    EXPECT_EQ(found("100pF..100"), "CD EF ");
    EXPECT_THROW(found("1..x"), RequestError);
}

TEST(PartList, NamesWhatIsNoRange)
{
    const auto refusal = [](const char* typed) -> std::string
    {
        try
        {
            RangeInUnit(typed, Quantity::Capacitance);
            return "taken";
        }
        catch (const RequestError& error)
        {
            return error.Message();
        }
    };
    EXPECT_EQ(refusal(".."), "\"..\" is neither a number nor a range");
    EXPECT_EQ(refusal("5uF..1uF"), "\"5uF..1uF\" ends below where it begins");
    EXPECT_EQ(refusal("1uF..999nF"), "\"1uF..999nF\" ends below where it begins");
    EXPECT_EQ(refusal("1uF..1000nF"), "taken");
}

std::string Sorted(const Range& range, const char* keys, CodeView code = CodeView::Eia)
{
    auto parts = FilterParts(range.Table, {});
    SortParts(parts, range.Table, SortKeysOf(keys), code, {});
    std::string order;
    for (const PartRecord* part : parts)
    {
        order.append(part->PartNum[0].substr(0, 2)).append(" ");
    }
    return order;
}

TEST(PartList, IsSortedByKeysUpAndDown)
{
    const Range range;
    EXPECT_EQ(Sorted(range, "-part"), "EF CD AB ");
    EXPECT_EQ(Sorted(range, "capacitance"), "CD EF AB ");
    EXPECT_EQ(Sorted(range, "rated-voltage,-part"), "CD EF AB ");
    EXPECT_EQ(Sorted(range, "size"), "AB CD EF ");
    EXPECT_EQ(Sorted(range, "-size"), "CD EF AB ");
    EXPECT_EQ(Sorted(range, "characteristic"), "AB EF CD ");
    EXPECT_EQ(Sorted(range, "-characteristic,-part", CodeView::Jis), "CD EF AB ");
    EXPECT_THROW(SortKeysOf("colour"), RequestError);
    EXPECT_THROW(SortKeysOf("size,"), RequestError);
}

TEST(PartList, IsWrittenInTheNamingAskedFor)
{
    const Range range;
    const auto parts = FilterParts(range.Table, {.Text = "AB"});
    EXPECT_EQ(
        ListText(parts, "table", CodeView::Jis, {.NumberingOffset = 2}),
        "PART   SIZE  TCC  CAPACITANCE[pF]  RATED[V]  CHARTS\n"
        "OLD-2  3216  R            4700000        25  capacitance-temperature capacitance-dc-voltage\n");
}

TEST(PartList, KeepsEveryPartOnItsLineOfTheTable)
{
    Range range;
    range.Add({"GH\n1", "", "", ""}, {"0402", ""}, {"X5R\x1B[2J", ""}, 100, 25, 3);
    const auto parts = FilterParts(range.Table, {.Text = "GH"});
    EXPECT_EQ(ListText(parts, "table", CodeView::Eia, {}),
              "PART     SIZE  TCC         CAPACITANCE[pF]  RATED[V]  CHARTS\n"
              "GH\\x0A1  0402  X5R\\x1B[2J              100        25  capacitance-temperature "
              "capacitance-dc-voltage\n");
    // What is quoted, or written as an escape, is the part's own text.
    EXPECT_NE(ListText(parts, "csv", CodeView::Eia, {}).find("\n\"GH\n1\",0402,X5R\x1B[2J,"),
              std::string::npos);
}

TEST(PartList, QuotesWhatCsvNeedsQuoted)
{
    const Range range;
    const auto parts = FilterParts(range.Table, {.Text = "EF"});
    const std::string heading = "part,size,characteristic,capacitance [pF],rated voltage [V],charts,"
                                "global part number EIA,global part number JIS,previous part number EIA,"
                                "previous part number JIS,size code EIA,size code JIS,characteristic EIA,"
                                "characteristic JIS\n";
    const std::string names = ",\"EF\"\"1\",\"EF,2\",OLD-5,OLD-6,0805,2012,X7R,R\n";
    EXPECT_EQ(ListText(parts, "csv", CodeView::Eia, {}),
              heading + "\"EF\"\"1\",0805,X7R,100,25,capacitance-temperature capacitance-dc-voltage" + names);
    EXPECT_EQ(ListText(parts, "csv", CodeView::Jis, {}),
              heading + "\"EF,2\",2012,R,100,25,capacitance-temperature capacitance-dc-voltage" + names);
}

TEST(PartList, IsAListOfObjectsInJson)
{
    const Range range;
    EXPECT_EQ(ListText(FilterParts(range.Table, {.Text = "EF"}), "json", CodeView::Eia, {}),
              "[\n{\"part\":\"EF\\\"1\",\"size\":\"0805\",\"characteristic\":\"X7R\",\"capacitance\":100,"
              "\"ratedVoltage\":25,\"charts\":[\"capacitance-temperature\",\"capacitance-dc-voltage\"],"
              "\"partNumbers\":[\"EF\\\"1\",\"EF,2\",\"OLD-5\",\"OLD-6\"],\"sizes\":[\"0805\",\"2012\"],"
              "\"characteristics\":[\"X7R\",\"R\"]}\n]\n");
    EXPECT_EQ(ListText({}, "json", CodeView::Eia, {}), "[\n]\n");
}
} // namespace
