/// Names as requests spell them.

#include "requests/Names.h"

#include "requests/RequestError.h"

#include <gtest/gtest.h>

#include <array>

namespace
{
constexpr std::array<std::string_view, 2> powers = {"Effective Power", "Apparent Power"};

TEST(Names, AreSpeltWithHyphensInRequests)
{
    EXPECT_EQ(RequestNameOf("Effective Power"), "effective-power");
    EXPECT_EQ(RequestNameOf("Current"), "current");
}

TEST(Names, AreOfferedAsAChoice)
{
    EXPECT_EQ(ChoiceOf({}), "");
    EXPECT_EQ(ChoiceOf({"png"}), "png");
    EXPECT_EQ(ChoiceOf({"png", "svg"}), "png or svg");
    EXPECT_EQ(ChoiceOf({"png", "svg", "pdf"}), "png, svg or pdf");
    EXPECT_EQ(ChoiceOf({"x", "y", "code"}, "and"), "x, y and code");
}

TEST(Names, MeanTheSameInAnySpelling)
{
    for (const char* name : {"Apparent Power", "apparent-power", "APPARENT power"})
    {
        EXPECT_EQ(IndexOfName(name, powers, "axis", "x"), 1U) << name;
    }
}

TEST(Names, ThatAreUnknownAreToldWithTheKnownOnes)
{
    for (const char* name : {"", "Apparent", "Apparent Powers", "apparent_power"})
    {
        try
        {
            IndexOfName(name, powers, "axis", "x");
            ADD_FAILURE() << name;
        }
        catch (const RequestError& error)
        {
            EXPECT_EQ(error.Kind(), RequestErrorKind::UnknownValue);
            EXPECT_EQ(error.Key(), "x");
            EXPECT_EQ(error.Message(),
                      std::string("axis \"") + name + "\" is none of: Effective Power, Apparent Power");
        }
    }
}
} // namespace
