/// What the range offers: sizes, ratings, part numbers, and lists that differ between chart types.

#include "partdata/SpecialParts.h"
#include "tests/samplerange/Range.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <tuple>

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::Not;

static constexpr std::array<std::string_view, 3> RangeCharacteristics = {"X7R", "X5R", "Y5V"};
static constexpr std::array<std::string_view, 8> Sizes = {"0201", "0402", "0603", "0805",
                                                          "1206", "1210", "1812", "2220"};

template <class Table> static auto PlaceIn(const Table& table, std::string_view text)
{
    return std::ranges::find(table, text) - table.begin();
}

/// The distinct texts in the order of their first occurrence, as a list shows them.
template <class Text> static std::vector<std::string_view> ListOf(Text text, const auto& parts)
{
    std::vector<std::string_view> list;
    for (const PartRecord* part : parts)
    {
        if (std::ranges::find(list, text(*part)) == list.end())
        {
            list.push_back(text(*part));
        }
    }
    return list;
}

static std::string_view SizeOf(const PartRecord& part)
{
    return part.SizeCode[0];
}

TEST(PartList, HoldsAThousandToFifteenHundredParts)
{
    EXPECT_GE(Range().PartData.size(), 1000U);
    EXPECT_LE(Range().PartData.size(), 1500U);
}

TEST(PartList, OffersEverySizeAndCharacteristicInBothCodes)
{
    std::set<std::pair<std::string_view, std::string_view>> sizes;
    std::set<std::pair<std::string_view, std::string_view>> characteristics;
    for (const PartRecord& part : Range().PartData)
    {
        sizes.emplace(part.SizeCode[0], part.SizeCode[1]);
        characteristics.emplace(part.Tcc[0], part.Tcc[1]);
    }
    using Pair = std::pair<std::string_view, std::string_view>;
    EXPECT_THAT(sizes, ElementsAre(Pair("0201", "0603"), Pair("0402", "1005"), Pair("0603", "1608"),
                                   Pair("0805", "2012"), Pair("1206", "3216"), Pair("1210", "3225"),
                                   Pair("1812", "4532"), Pair("2220", "5750")));
    EXPECT_THAT(characteristics, ElementsAre(Pair("X5R", "B"), Pair("X7R", "R"), Pair("Y5V", "F")));
}

TEST(PartList, IsRatedInE6ValuesAndUsualVoltages)
{
    std::set<float> volts;
    for (const PartRecord& part : Range().PartData)
    {
        EXPECT_EQ(part.Data[Value::Capacitance], part.Data[Value::NominalCapacitance]) << part.PartNum[0];
        volts.insert(part.Data[Value::RatedVoltage]);
        double mantissa = part.Data[Value::Capacitance];
        EXPECT_GE(mantissa, 100) << part.PartNum[0];
        EXPECT_LE(mantissa, 100e6) << part.PartNum[0];
        while (mantissa >= 100)
        {
            mantissa /= 10;
        }
        EXPECT_THAT((std::array{10, 15, 22, 33, 47, 68}), Contains(std::lround(mantissa))) << part.PartNum[0];
        EXPECT_NEAR(mantissa, std::round(mantissa), 1e-9) << part.PartNum[0];
    }
    EXPECT_THAT(volts, ElementsAre(4, 6.3F, 10, 16, 25, 35, 50, 100, 250, 630));
}

TEST(PartList, IsInTheOrderOfItsLists)
{
    const auto place = [](const PartRecord& part)
    {
        return std::tuple(PlaceIn(Sizes, part.SizeCode[0]), PlaceIn(RangeCharacteristics, part.Tcc[0]),
                          part.Data[Value::Capacitance], part.Data[Value::RatedVoltage]);
    };
    const auto& parts = Range().PartData;
    for (std::size_t i = 1; i < parts.size(); ++i)
    {
        EXPECT_LT(place(parts[i - 1]), place(parts[i])) << parts[i].PartNum[0];
    }
}

TEST(PartList, HoldsNoMoreAtAHigherVoltage)
{
    std::map<std::tuple<std::string_view, std::string_view>, std::map<float, float>> highest;
    for (const PartRecord& part : Range().PartData)
    {
        auto& most = highest[{part.SizeCode[0], part.Tcc[0]}][part.Data[Value::RatedVoltage]];
        most = std::max(most, part.Data[Value::Capacitance]);
    }
    for (const auto& [family, byVolts] : highest)
    {
        for (auto next = std::next(byVolts.begin()); next != byVolts.end(); ++next)
        {
            EXPECT_LE(next->second, std::prev(next)->second)
                << std::get<0>(family) << ' ' << std::get<1>(family) << ' ' << next->first;
        }
    }
}

/// The most that parts of a size and voltage hold on the market, and that the range reaches.
struct Limit
{
    const char* Name;
    std::string_view Size;
    std::string_view Tcc;
    float Volts;
    float MostPf;
};

class LimitOfRange : public testing::TestWithParam<Limit>
{
};

TEST_P(LimitOfRange, IsReachedAndNotPassed)
{
    const auto& limit = GetParam();
    float most = 0;
    for (const PartRecord& part : Range().PartData)
    {
        if (part.SizeCode[0] == limit.Size && part.Tcc[0] == limit.Tcc &&
            part.Data[Value::RatedVoltage] == limit.Volts)
        {
            most = std::max(most, part.Data[Value::Capacitance]);
        }
    }
    EXPECT_EQ(most, limit.MostPf);
}

INSTANTIATE_TEST_SUITE_P(PartList, LimitOfRange,
                         testing::Values(Limit{"X5R0402at6V3", "0402", "X5R", 6.3F, 10e6F},
                                         Limit{"X5R0603at6V3", "0603", "X5R", 6.3F, 22e6F},
                                         Limit{"X5R0805at6V3", "0805", "X5R", 6.3F, 47e6F},
                                         Limit{"X5R1206at6V3", "1206", "X5R", 6.3F, 100e6F},
                                         Limit{"X7R0402at16V", "0402", "X7R", 16, 100e3F},
                                         Limit{"X7R0603at50V", "0603", "X7R", 50, 220e3F},
                                         Limit{"X7R1206at630V", "1206", "X7R", 630, 10e3F},
                                         Limit{"X7R2220at630V", "2220", "X7R", 630, 150e3F}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(PartList, OffersOtherSizesAndPartsForCapacitanceThanForPower)
{
    const auto capacitance = PartsWithCapacitance();
    const auto power = PartsWithPower();
    EXPECT_THAT(ListOf(SizeOf, capacitance), ElementsAreArray(Sizes));
    EXPECT_THAT(ListOf(SizeOf, power), Not(Contains("0201")));
    const std::set<const PartRecord*> withCapacitance(capacitance.begin(), capacitance.end());
    const std::set<const PartRecord*> withPower(power.begin(), power.end());
    EXPECT_GT(std::ranges::count_if(power, [&](auto* part) { return !withCapacitance.contains(part); }), 20);
    EXPECT_GT(std::ranges::count_if(capacitance, [&](auto* part) { return !withPower.contains(part); }), 20);
    for (const PartRecord& part : Range().PartData)
    {
        EXPECT_TRUE(withCapacitance.contains(&part) || withPower.contains(&part)) << part.PartNum[0];
    }
}

struct Special
{
    std::string_view PartNum;
    std::string_view Size;
    float Picofarads;
};

TEST(PartList, HoldsTheNineSpecialParts)
{
    constexpr std::array<Special, 9> specials = {{{"KTU155F51H222ZA01", "0402", 2200},
                                                  {"KTU155F51H332ZA01", "0402", 3300},
                                                  {"KTU155F51H472ZA01", "0402", 4700},
                                                  {"KTU155F51H682ZA01", "0402", 6800},
                                                  {"KTU155F51H103ZA01", "0402", 10000},
                                                  {"KTS188F51H102ZA01", "0603", 1000},
                                                  {"KTS188F51H332ZA01", "0603", 3300},
                                                  {"KTS216F51H102ZA01", "0805", 1000},
                                                  {"KTS32RF51H105ZA01", "1210", 1000000}}};
    for (const auto& special : specials)
    {
        EXPECT_EQ(PartOf(special.Size, "Y5V", special.Picofarads, 50).PartNum[0], special.PartNum);
    }
    EXPECT_EQ(std::ranges::count_if(Range().PartData,
                                    [](const auto& part) { return IsSpecialPart(part.PartNum[0]); }),
              9);
}

TEST(PartNumber, NamesSizeCharacteristicVoltageAndCapacitance)
{
    const std::map<std::string_view, std::string_view> sizeCodes = {
        {"0201", "KTU03"}, {"0402", "KTU15"}, {"0603", "KTS18"}, {"0805", "KTS21"},
        {"1206", "KTS31"}, {"1210", "KTS32"}, {"1812", "KTS43"}, {"2220", "KTS55"}};
    const std::map<std::string_view, std::string_view> characteristics = {
        {"X7R", "R7"}, {"X5R", "B5"}, {"Y5V", "F5"}};
    const std::map<float, std::string_view> volts = {
        {4.0F, "0G"},  {6.3F, "0J"},  {10.0F, "1A"},  {16.0F, "1C"},  {25.0F, "1E"},
        {35.0F, "1V"}, {50.0F, "1H"}, {100.0F, "2A"}, {250.0F, "2E"}, {630.0F, "2J"}};
    for (const PartRecord& part : Range().PartData)
    {
        const auto number = part.PartNum[0];
        ASSERT_EQ(number.size(), 17U) << number;
        EXPECT_EQ(number.substr(0, 5), sizeCodes.at(part.SizeCode[0])) << number;
        EXPECT_EQ(number.substr(6, 2), characteristics.at(part.Tcc[0])) << number;
        EXPECT_EQ(number.substr(8, 2), volts.at(part.Data[Value::RatedVoltage])) << number;
        const double digits = (number[10] - '0') * 10 + (number[11] - '0');
        EXPECT_FLOAT_EQ(static_cast<float>(digits * std::pow(10, number[12] - '0')),
                        part.Data[Value::Capacitance])
            << number;

        std::string jis(number);
        jis[7] = '0';
        EXPECT_EQ(part.PartNum[1], jis);
    }
}

TEST(PartNumber, HasAnOlderForm)
{
    EXPECT_THAT(PartOf("0402", "Y5V", 2200, 50).PartNum,
                ElementsAre("KTU155F51H222ZA01", "KTU155F01H222ZA01", "HC0402Y5V222Z050", "HC1005F222Z050"));
    EXPECT_THAT(PartOf("0603", "X5R", 22e6F, 6.3F).PartNum,
                ElementsAre("KTS188B50J226MA01", "KTS188B00J226MA01", "HC0603X5R226M6R3", "HC1608B226M6R3"));
}

TEST(PartNumber, IsUniqueInEveryForm)
{
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        std::set<std::string> seen;
        for (const PartRecord& part : Range().PartData)
        {
            std::string folded(part.PartNum[form]);
            std::ranges::transform(folded, folded.begin(), [](char c) { return FoldCase(c); });
            EXPECT_TRUE(seen.insert(folded).second) << folded;
        }
    }
}
