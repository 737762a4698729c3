#include "find/FoundOrder.h"

#include "partdata/PartTable.h"

#include <gtest/gtest.h>

namespace
{
/// Parts whose names tell them apart, in the order of the table.
PartTable Table()
{
    PartTable table;
    const auto add = [&](const char* name, const char* size, const char* tcc, float capacitance)
    {
        table.PartData.push_back({.PartNum = {name, "", "", ""}, .SizeCode = {size, ""}, .Tcc = {tcc, ""}});
        table.PartData.back().Data[Value::Capacitance] = capacitance;
    };
    add("d", "1206", "X7R", 3);
    add("c", "0805", "X5R", 1);
    add("b", "1206", "X5R", 2);
    add("a", "0402", "X7R", 1);
    return table;
}

/// The names in an order, with the given areas; below 0 for none.
std::string Sorted(const std::vector<FoundKey>& keys, const std::vector<double>& areas = {1, 1, 1, 1})
{
    const auto table = Table();
    std::vector<FoundPart> found;
    for (std::size_t i = 0; i < areas.size(); ++i)
    {
        found.emplace_back(table.PartData[i]);
        if (areas[i] >= 0)
        {
            found.back().Set(FoundColumn::Area, areas[i]);
        }
        found.back().Set(FoundColumn::Count, static_cast<double>(areas.size() - i));
    }
    SortFound(found, table, keys, CodeView::Eia);
    std::string names;
    for (const FoundPart& part : found)
    {
        names += part.Part().PartNum[0];
    }
    return names;
}

TEST(FoundOrder, IsLeastBoardThenFewestParts)
{
    EXPECT_EQ(Sorted(LeastBoard(), {2, 1, 1, 2}), "bcad");
}

TEST(FoundOrder, KeepsEqualPartsInTableOrderEitherWay)
{
    EXPECT_EQ(Sorted({{FoundColumn::Area}}), "dcba");
    EXPECT_EQ(Sorted({{FoundColumn::Area, true}}), "dcba");
    EXPECT_EQ(Sorted({{FoundColumn::Capacitance}}), "cabd");
    EXPECT_EQ(Sorted({{FoundColumn::Capacitance, true}}), "dbca");
}

TEST(FoundOrder, PutsEmptyValuesLastEitherWay)
{
    EXPECT_EQ(Sorted({{FoundColumn::Area}}, {-1, 3, -1, 2}), "acdb");
    EXPECT_EQ(Sorted({{FoundColumn::Area, true}}, {-1, 3, -1, 2}), "cadb");
    EXPECT_EQ(Sorted({{FoundColumn::Left, true}}), "dcba");
}

TEST(FoundOrder, TakesNamesByTheirPlaceInTheTable)
{
    EXPECT_EQ(Sorted({{FoundColumn::Part}}), "dcba");
    EXPECT_EQ(Sorted({{FoundColumn::Part, true}}), "abcd");
    EXPECT_EQ(Sorted({{FoundColumn::Size}}), "dbca");
    EXPECT_EQ(Sorted({{FoundColumn::Size, true}}), "acdb");
    EXPECT_EQ(Sorted({{FoundColumn::Characteristic}}), "dacb");
    EXPECT_EQ(Sorted({{FoundColumn::Characteristic}, {FoundColumn::Capacitance}}), "adcb");
}
} // namespace
