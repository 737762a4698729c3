/// A curve in each of its formats.

#include "requests/CurveFormats.h"

#include "calc/DataFile.h"
#include "files/PartLoading.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace
{
const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

RequestedCurve BiasCurve()
{
    return CurveOf({.Part = "KTS31NB51E106MA01", .Chart = "capacitance-dc-voltage"}, Parts(), {});
}

std::string Written(std::string_view format, const CurveSettings& settings)
{
    return FormatNamed(CurveFormats(), format).Write(BiasCurve(), settings);
}

TEST(CurveFormats, BeginWithTheDataFile)
{
    const auto curve = BiasCurve();
    const auto file = DataFileText(curve.Line, *curve.Part, CodeView::Eia, "21.11.2026");
    EXPECT_EQ(Written("tvk", {.Date = "21.11.2026"}), file);
    EXPECT_EQ(Written("", {.Date = "21.11.2026"}), file);
}

TEST(CurveFormats, AreOneLineOfJson)
{
    const auto text = Written("json", {});
    EXPECT_EQ(text.find('\n'), text.size() - 1);
    const auto curve = nlohmann::json::parse(text);
    EXPECT_EQ(curve.at("part"), "KTS31NB51E106MA01");
    EXPECT_EQ(curve.at("x").back(), 25);
}

TEST(CurveFormats, TellConditionsHeadingAndAllPointsInCsv)
{
    const auto text = Written("csv", {});
    EXPECT_TRUE(text.starts_with("# part: KTS31NB51E106MA01\n"
                                 "# chart: Capacitance-DC Voltage Characteristics\n"
                                 "# Ambient Temperature: 25 [C]\n"
                                 "DC Bias Voltage [V],Capacitance [pF]\n0,"));
    EXPECT_EQ(std::ranges::count(text, '\n'), 204);
    EXPECT_NE(text.find("\n25,"), std::string::npos);
}

TEST(CurveFormats, KeepAPartNumberInItsCommentOfCsv)
{
    auto curve = BiasCurve();
    PartRecord part = *curve.Part;
    part.PartNum[0] = "A\n1,2\x1B";
    curve.Part = &part;
    const auto text = FormatNamed(CurveFormats(), "csv").Write(curve, {});
    EXPECT_TRUE(text.starts_with("# part: A\\x0A1,2\\x1B\n# chart: "));
    EXPECT_EQ(nlohmann::json::parse(FormatNamed(CurveFormats(), "json").Write(curve, {})).at("part"),
              "A\n1,2\x1B");
}
TEST(CurveFormats, LeaveTheFieldOfAPointWithoutValueEmpty)
{
    auto curve = BiasCurve();
    curve.Points = {{{1e4F, 2.5F}, {1e5F, std::nullopt}}};
    EXPECT_TRUE(FormatNamed(CurveFormats(), "csv").Write(curve, {}).ends_with("\n10000,2.5\n100000,\n"));
}
} // namespace
