/// The answers to the six questions that the help books and the README tell, worked out anew from the part
/// files.

#include "files/PartLoading.h"
#include "find/FoundOrder.h"
#include "find/PartFilter.h"
#include "find/PartFinder.h"
#include "find/SizeOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

namespace
{

class FindAnswers : public testing::TestWithParam<const char*>
{
protected:
    FindAnswers()
        : table(ReadPartPair(PART_FILES "/halvex.idx", PART_FILES "/halvex.dat"))
    {
        std::ifstream file(GetParam(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        // Lines break anywhere in it.
        told = std::regex_replace(text, std::regex("\\s+"), " ");
    }

    /// The Japanese book tells all in JIS code.
    static CodeView View()
    {
        return std::string(GetParam()).ends_with("tavikj.hlp") ? CodeView::Jis : CodeView::Eia;
    }

    static std::size_t Form() { return static_cast<std::size_t>(View()); }

    /// What fits, the least board first.
    std::vector<FoundPart> Find(const PartFilter& filter, FindQuestion question,
                                const std::vector<FoundKey>& order = LeastBoard())
    {
        question.At.View = View();
        candidates = FilterParts(table, filter);
        auto found = FindParts(candidates, question);
        SortFound(found.Parts, table, order, View());
        return std::move(found.Parts);
    }

    PartSize UpTo(const char* size) const { return *SizeNamed(table, size, CodeView::Eia); }

    static std::string Name(const FoundPart& part) { return std::string(part.Part().PartNum[Form()]); }

    static std::string Figure(const FoundPart& part, FoundColumn column, int decimals, const char* unit,
                              double share = 1)
    {
        std::array<char, 40> text{};
        std::snprintf(text.data(), text.size(), "%.*f", decimals, *part.ValueOf(column) * share);
        return std::string(text.data()) + unit;
    }

    static const FoundPart& FirstOf(const std::vector<FoundPart>& parts, const char* size, const char* tcc)
    {
        return *std::ranges::find_if(
            parts, [&](const FoundPart& part)
            { return part.Part().SizeCode[0] == size && part.Part().Tcc[0].starts_with(tcc); });
    }

    void ExpectTold(const std::vector<std::string>& figures) const
    {
        for (const std::string& figure : figures)
        {
            EXPECT_THAT(told, testing::HasSubstr(figure));
        }
    }

    PartTable table;
    std::vector<const PartRecord*> candidates;
    std::string told;
};

using enum FoundColumn;

TEST_P(FindAnswers, WhichPartKeepsSixMicrofarads)
{
    const auto found =
        Find({.LargestSize = UpTo("1206")}, {.At = {.BiasVolts = 12, .AmbientC = 85},
                                             .Wanted = {.LeastCapacitance = 6e6F, .NeedsMeasures = true}});
    ASSERT_EQ(found.size(), 1U);
    ExpectTold({Name(found[0]), Figure(found[0], EffectiveCapacitance, 2, " µF", 1e-6),
                Figure(found[0], Left, 1, " %")});
}

TEST_P(FindAnswers, WhichPartRunsCool)
{
    const FindQuestion question = {
        .At = {.BiasVolts = 12, .Kilohertz = 300.0F, .Load = AcLoad{.Value = 1.5F}},
        .Wanted = {.MostRise = 20.0F}};
    const auto found = Find({.Capacitance = ValueRange{1e7F, 1e7F}}, question);
    EXPECT_EQ(found.size(), 25U);
    const auto hottest =
        std::ranges::max_element(found, {}, [](const FoundPart& part) { return *part.ValueOf(Rise); });
    EXPECT_EQ(hottest->Part().SizeCode[0], "0805");
    ExpectTold({"25", std::string(hottest->Part().SizeCode[Form()]), Figure(*hottest, Rise, 2, ""),
                Figure(found[0], Current, 2, ""), Figure(FirstOf(found, "1206", "X5R"), Rise, 2, ""),
                Figure(FirstOf(found, "1206", "X7R"), Rise, 2, "")});
}

TEST_P(FindAnswers, WhatAPartBears)
{
    const auto found =
        Find({.Text = "KTS31NB51E106MA01"}, {.At = {.Kilohertz = 400.0F}, .Wanted = {.MostRise = 20.0F}});
    ASSERT_EQ(found.size(), 1U);
    ExpectTold({Figure(found[0], Current, 3, " Arms"), Figure(found[0], Voltage, 4, " Vrms"),
                Figure(found[0], ApparentPower, 3, " VA"), Figure(found[0], EffectivePower, 4, " W")});
}

TEST_P(FindAnswers, HowManyInParallel)
{
    const auto found = Find(
        {.LargestSize = UpTo("1206")},
        {.At = {.BiasVolts = 12, .AmbientC = 85},
         .Wanted = {.LeastCapacitance = 2.2e7F, .NeedsMeasures = true, .Parallel = Bank{.IsFewest = true}}});
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found[0].ValueOf(Count), 4);
    ExpectTold({Name(found[0]), Figure(found[0], Area, 1, " mm²")});
}

TEST_P(FindAnswers, WhichBankBearsFourAmperes)
{
    const FindQuestion question = {
        .At = {.BiasVolts = 12, .AmbientC = 70, .Kilohertz = 500.0F, .Load = AcLoad{.Value = 4.0F}},
        .Wanted = {.LeastCapacitance = 1e7F, .Parallel = Bank{.IsFewest = true}}};
    const auto found = Find({}, question);
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found[0].ValueOf(Count), 1);
    ExpectTold({Name(found[0]), Figure(found[0], Area, 0, ""), Figure(found[0], Body, 1, " °C"),
                Figure(found[0], Ripple, 3, " Vrms")});
    const FoundPart& four = FirstOf(found, "0805", "");
    EXPECT_EQ(four.ValueOf(Count), 4);
    const FoundPart& two = FirstOf(found, "1206", "");
    EXPECT_EQ(two.ValueOf(Count), 2);
    ExpectTold({Name(four), Figure(four, Area, 1, " mm²"), Name(two), Figure(two, Area, 1, " mm²")});
}

TEST_P(FindAnswers, WhichPartKeepsThreeQuarters)
{
    const auto found = Find({.LargestSize = UpTo("0603")},
                            {.At = {.BiasVolts = 5, .AmbientC = -20},
                             .Wanted = {.LeastCapacitance = 7e5F, .LeastLeft = 75.0F, .NeedsMeasures = true}},
                            {{.Column = EffectiveCapacitance, .Downwards = true}});
    ASSERT_EQ(found.size(), 9U);
    ExpectTold({"9", Name(found[0]), Figure(found[0], EffectiveCapacitance, 2, " µF", 1e-6),
                Figure(found[0], Left, 1, " %")});
}

std::string NameOfText(const testing::TestParamInfo<const char*>& text)
{
    static constexpr std::array<const char*, 3> names = {"English", "Japanese", "Readme"};
    return names.at(text.index);
}

INSTANTIATE_TEST_SUITE_P(Texts, FindAnswers,
                         testing::Values(BOOKS "/tavike.hlp", BOOKS "/tavikj.hlp", README), NameOfText);

} // namespace
