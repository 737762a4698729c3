#include "requests/AxisTexts.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

namespace
{

CurveValues EvenAxis(float first, float last)
{
    CurveValues values;
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        values[i] = first + (last - first) * static_cast<float>(i) / static_cast<float>(values.size() - 1);
    }
    return values;
}

/// The values that a text of the axis gives to whoever reads it.
CurveValues ReadBack(const std::string& text)
{
    CurveValues values;
    const auto numbers = nlohmann::json::parse(text);
    EXPECT_EQ(numbers.size(), values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        values[i] = numbers.at(i).get<float>();
    }
    return values;
}

TEST(AxisTexts, WriteAnAxisAsAnArrayOfShortestNumbers)
{
    CurveValues values{};
    values[0] = 0.1F;
    values[1] = -1.17549435e-38F;
    values[2] = 1e6F;
    AxisTexts axes;
    EXPECT_TRUE(axes.Of(values).starts_with("[0.1,-1.1754944e-38,1e+06,0,0,")) << axes.Of(values);
    EXPECT_TRUE(axes.Of(values).ends_with(",0]"));
}

TEST(AxisTexts, HaveNullForAPointWithoutValue)
{
    CurveValues values{};
    values[1] = NoValue;
    values.back() = NoValue;
    std::string text;
    AppendValues(text, values);
    EXPECT_TRUE(text.starts_with("[0,null,0,")) << text;
    EXPECT_TRUE(text.ends_with(",0,null]")) << text;
}

TEST(AxisTexts, TellAxesOfTheSameEndsApart)
{
    const CurveValues even = EvenAxis(10, 1000);
    CurveValues bent = even;
    bent[100] = 77;
    AxisTexts axes;
    EXPECT_EQ(ReadBack(axes.Of(even)), even);
    EXPECT_EQ(ReadBack(axes.Of(bent)), bent);
    EXPECT_EQ(ReadBack(axes.Of(even)), even);
}

TEST(AxisTexts, TellTheTwoZerosApart)
{
    CurveValues positive = EvenAxis(0, 1);
    CurveValues negative = positive;
    negative[1] = -0.0F;
    positive[1] = 0.0F;
    AxisTexts axes;
    EXPECT_TRUE(axes.Of(positive).starts_with("[0,0,"));
    EXPECT_TRUE(axes.Of(negative).starts_with("[0,-0,"));
}

TEST(AxisTexts, StayRightWithMoreAxesThanAreKept)
{
    AxisTexts axes;
    for (int round = 0; round < 2; ++round)
    {
        for (int i = 1; i <= 300; ++i)
        {
            const CurveValues axis = EvenAxis(0, static_cast<float>(i) / 7);
            ASSERT_EQ(ReadBack(axes.Of(axis)), axis) << i;
        }
    }
}

} // namespace
