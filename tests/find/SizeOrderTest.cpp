#include "find/SizeOrder.h"

#include "find/PartFilter.h"

#include <gtest/gtest.h>

namespace
{
PartTable Sizes()
{
    PartTable table;
    for (const auto& [eia, jis] :
         {std::pair("1206", "3216"), std::pair("0201", "0603"), std::pair("0603", "1608"),
          std::pair("1812", "4532"), std::pair("0612", "1632"), std::pair("ROD", "R10")})
    {
        table.PartData.push_back({.PartNum = {eia, "", "", ""}, .SizeCode = {eia, jis}, .Tcc = {"X7R", "R"}});
    }
    return table;
}

/// The EIA sizes that are as small as the one named, or smaller.
std::string UpTo(std::string_view name, CodeView code)
{
    const auto table = Sizes();
    std::string sizes;
    PartFilter filter{.LargestSize = SizeNamed(table, name, code), .TakesPartsWithoutData = true};
    for (const PartRecord* part : FilterParts(table, filter))
    {
        sizes.append(part->SizeCode[0]).append(" ");
    }
    return sizes;
}

TEST(SizeOrder, ReadsTenthsOfAMillimetreFromTheJisCode)
{
    EXPECT_EQ(SizeOf("3216"), (PartSize{32, 16}));
    EXPECT_EQ(SizeOf("0603"), (PartSize{6, 3}));
    EXPECT_DOUBLE_EQ(SizeOf("3216")->Area(), 5.12);
    EXPECT_EQ(SizeOf("32165"), std::nullopt);
    EXPECT_EQ(SizeOf("321"), std::nullopt);
    EXPECT_EQ(SizeOf("32-6"), std::nullopt);
    EXPECT_EQ(SizeOf(""), std::nullopt);
}

TEST(SizeOrder, LooksANameUpInTheCodeInForceFirst)
{
    // 0603 is 1.6 mm long in EIA, 0.6 mm in JIS code. What has no measures is judged later.
    EXPECT_EQ(UpTo("0603", CodeView::Eia), "0201 0603 ROD ");
    EXPECT_EQ(UpTo("0603", CodeView::Jis), "0201 ROD ");
    EXPECT_EQ(UpTo("1608", CodeView::Eia), "0201 0603 ROD ");
    EXPECT_EQ(UpTo("0201", CodeView::Jis), "0201 ROD ");
}

TEST(SizeOrder, ComparesTheLongerSidesAndTheShorterSides)
{
    EXPECT_EQ(UpTo("1206", CodeView::Eia), "1206 0201 0603 0612 ROD ");
    EXPECT_EQ(UpTo("1632", CodeView::Eia), "1206 0201 0603 0612 ROD ");
    EXPECT_FALSE((PartSize{32, 25}.IsWithin({32, 16})));
    EXPECT_FALSE((PartSize{33, 16}.IsWithin({32, 16})));
}

TEST(SizeOrder, KnowsNoSizeThatNoPartHas)
{
    const auto table = Sizes();
    EXPECT_EQ(SizeNamed(table, "1207", CodeView::Eia), std::nullopt);
    EXPECT_EQ(SizeNamed(table, "ROD", CodeView::Eia), std::nullopt);
    EXPECT_EQ(SizeNamed(table, "", CodeView::Eia), std::nullopt);
}

TEST(SizeOrder, NamesTheSmallestFirst)
{
    const auto table = Sizes();
    EXPECT_EQ(SizeNames(table, CodeView::Eia),
              (std::vector<std::string_view>{"0201", "0603", "0612", "1206", "1812"}));
    EXPECT_EQ(SizeNames(table, CodeView::Jis),
              (std::vector<std::string_view>{"0603", "1608", "1632", "3216", "4532"}));
}
} // namespace
