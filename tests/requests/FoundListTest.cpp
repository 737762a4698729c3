/// How found parts are written, and in which order they are asked for.

#include "requests/FoundList.h"

#include "requests/FourDigits.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <gtest/gtest.h>

namespace
{
TEST(FourDigits, AreAllThatATableTells)
{
    EXPECT_EQ(FourDigits(28.5271F), "28.53");
    EXPECT_EQ(FourDigits(0.212396F), "0.2124");
    EXPECT_EQ(FourDigits(20), "20");
    EXPECT_EQ(FourDigits(0), "0");
    EXPECT_EQ(FourDigits(99999), "100000");
    EXPECT_EQ(FourDigits(-0.000123456F), "-0.0001235");
}

TEST(FourDigits, OfACapacitanceBearAPrefix)
{
    EXPECT_EQ(CapacitanceInFourDigits(6276520), "6.277uF");
    EXPECT_EQ(CapacitanceInFourDigits(22000000), "22uF");
    EXPECT_EQ(CapacitanceInFourDigits(1234567936), "1235uF");
    EXPECT_EQ(CapacitanceInFourDigits(833200), "833.2nF");
    EXPECT_EQ(CapacitanceInFourDigits(1000), "1nF");
    EXPECT_EQ(CapacitanceInFourDigits(999.96F), "1nF");
    EXPECT_EQ(CapacitanceInFourDigits(999960), "1uF");
    EXPECT_EQ(CapacitanceInFourDigits(0.5F), "0.5pF");
    EXPECT_EQ(CapacitanceInFourDigits(0), "0pF");
    EXPECT_EQ(CapacitanceInFourDigits(-4700), "-4.7nF");
    EXPECT_EQ(ValueInUnit(CapacitanceInFourDigits(6276520), Quantity::Capacitance), 6277000);
}

/// A part with a column of each group.
struct Range
{
    PartTable Table;
    std::vector<FoundPart> Found;

    Range()
    {
        Table.PartData.push_back({.PartNum = {"AB-1", "AB-2", "OLD-1", "OLD,2"},
                                  .SizeCode = {"1206", "3216"},
                                  .Tcc = {"X7R", "R"}});
        Table.PartData[0].Data[Value::Capacitance] = 4700000;
        Table.PartData[0].Data[Value::RatedVoltage] = 6.3F;
        FoundPart& found = Found.emplace_back(Table.PartData[0]);
        found.Set(FoundColumn::EffectiveCapacitance, 1234567.4);
        found.Set(FoundColumn::Left, 100 / 3.0);
        found.Set(FoundColumn::LossResistance, 2.5);
        found.Set(FoundColumn::Ripple, 0.1);
        found.Set(FoundColumn::Count, 2);
        found.Set(FoundColumn::Total, 2469134.8);
        found.Set(FoundColumn::Area, 10.24);
    }

    std::string Text(std::string_view format, const FindQuestion& question, std::size_t numbering = 0) const
    {
        return FormatNamed(FoundListFormats(), format).Write(Found, question, {.NumberingOffset = numbering});
    }
};

const FindQuestion Plain;
const FindQuestion All = {
    .At = {.Kilohertz = 100.0F, .Load = AcLoad{.Kind = Quantity::Current, .Value = 1}, .View = CodeView::Jis},
    .Wanted = {.Parallel = Bank{.Count = 2}}};

TEST(FoundList, IsATableOfTheColumnsThatAreAskedFor)
{
    EXPECT_EQ(Range().Text("table", Plain),
              "PART  SIZE  TCC  CAPACITANCE  RATED[V]  EFFECTIVE  LEFT[%]  AREA[mm2]\n"
              "AB-1  1206  X7R        4.7uF       6.3    1.235uF    33.33      10.24\n");
    EXPECT_EQ(
        Range().Text("table", All, 2),
        "PART   SIZE  TCC  CAPACITANCE  RATED[V]  EFFECTIVE  LEFT[%]  PERMITTED[C]  LOSS[mOhm]  "
        "CURRENT[Arms]  VOLTAGE[Vrms]  APPARENT[VA]  POWER[W]  RISE[C]  BODY[C]  WARM  RIPPLE[Vrms]  COUNT  "
        "  TOTAL  AREA[mm2]\n"
        "OLD,2  3216  R          4.7uF       6.3    1.235uF    33.33             -         2.5  "
        "            -              -             -         -        -        -     -           0.1      2  "
        "2.469uF      10.24\n");
}

TEST(FoundList, HasRippleForACurrentAlone)
{
    auto question = All;
    question.At.Load->Kind = Quantity::RmsVoltage;
    const auto text = Range().Text("table", question);
    EXPECT_NE(text.find("BODY[C]  WARM  COUNT"), std::string::npos) << text;
}

const std::string Headings =
    "part,size,characteristic,capacitance [pF],rated voltage [V],effective capacitance [pF],left [%],"
    "permitted rise [°C],loss resistance [mOhm],current [Arms],voltage [Vrms],apparent power [VA],"
    "effective power [W],rise [°C],body [°C],ripple [Vrms],count,total [pF],area [mm²],most capacitance [pF],"
    "least at bias [V],least at ambient [°C],most at bias [V],most at ambient [°C],rise at ambient [°C],"
    "rise at frequency [kHz],margin [°C],margin at ambient [°C],margin at frequency [kHz],warm capacitance "
    "[pF]\n";

TEST(FoundList, HasAllHeadingsInCsv)
{
    EXPECT_EQ(Range().Text("csv", Plain),
              Headings + "AB-1,1206,X7R,4700000,6.3,1234567.4,33.333332,,,,,,,,,,,,10.24,,,,,,,,,,,\n");
    EXPECT_EQ(
        Range().Text("csv", All, 2),
        Headings +
            "\"OLD,2\",3216,R,4700000,6.3,1234567.4,33.333332,,2.5,,,,,,,0.1,2,2469134.8,10.24,,,,,,,,,,,\n");
}

TEST(FoundList, HasAllKeysInJson)
{
    EXPECT_EQ(
        Range().Text("json", Plain),
        "[\n{\"part\":\"AB-1\",\"size\":\"1206\",\"characteristic\":\"X7R\",\"capacitance\":4700000,"
        "\"ratedVoltage\":6.3,\"effectiveCapacitance\":1234567.4,\"left\":33.333332,"
        "\"permittedRise\":null,\"lossResistance\":null,\"current\":null,\"voltage\":null,"
        "\"apparentPower\":null,\"effectivePower\":null,\"rise\":null,\"body\":null,\"ripple\":null,"
        "\"count\":null,\"total\":null,\"area\":10.24,\"mostCapacitance\":null,\"leastAt\":null,"
        "\"mostAt\":null,\"riseAt\":null,\"margin\":null,\"marginAt\":null,\"warmCapacitance\":null}\n]\n");
}

TEST(FoundList, TellsTheWorstOfRangesWithItsPlaces)
{
    Range range;
    FoundPart& found = range.Found[0];
    found.Set(FoundColumn::MostCapacitance, 2000000);
    found.SetPlace(FoundPlace::Least, {.BiasVolts = 13.2, .AmbientC = 85});
    found.SetPlace(FoundPlace::Most, {.BiasVolts = 10.8, .AmbientC = 10.25});
    found.Set(FoundColumn::Rise, 1.5);
    found.SetPlace(FoundPlace::Rise, {.AmbientC = 85, .Hertz = 270e3});
    FindQuestion question;
    question.At.AmbientC = {-20, 85};
    EXPECT_EQ(
        range.Text("table", question),
        "PART  SIZE  TCC  CAPACITANCE  RATED[V]    LEAST  AT         MOST  AT            LEFT[%]  AREA[mm2]\n"
        "AB-1  1206  X7R        4.7uF       6.3  1.235uF  13.2V 85C   2uF  10.8V 10.25C    33.33      "
        "10.24\n");
    question.At.Kilohertz = {270, 330};
    question.At.Load = AcLoad{.Kind = Quantity::Current, .Value = 1};
    const auto table = range.Text("table", question);
    EXPECT_NE(table.find("RISE[C]  AT          MARGIN[C]  AT  BODY[C]"), std::string::npos) << table;
    EXPECT_NE(table.find("1.5  85C 270kHz          -  -"), std::string::npos) << table;
    const auto json = range.Text("json", question);
    EXPECT_NE(json.find("\"mostCapacitance\":2000000,\"leastAt\":{\"dcBias\":13.2,\"ambient\":85},"
                        "\"mostAt\":{\"dcBias\":10.8,\"ambient\":10.25},"
                        "\"riseAt\":{\"ambient\":85,\"frequency\":270},\"margin\":null,\"marginAt\":null,"
                        "\"warmCapacitance\":null}"),
              std::string::npos)
        << json;
    EXPECT_NE(range.Text("csv", question).find("10.24,2000000,13.2,85,10.8,10.25,85,270,,,,\n"),
              std::string::npos);
}

TEST(FoundList, OfNothingIsHeadingsAndAnEmptyList)
{
    Range range;
    range.Found.clear();
    EXPECT_EQ(range.Text("csv", Plain), Headings);
    EXPECT_EQ(range.Text("json", Plain), "[\n]\n");
}

std::string Keys(std::string_view typed, const FindQuestion& question)
{
    std::string keys;
    for (const FoundKey& key : FoundKeysOf(typed, question))
    {
        keys.append(key.Downwards ? "-" : "+").append(KindOf(key.Column).Key);
    }
    return keys;
}

TEST(FoundKeys, NameAnyColumn)
{
    EXPECT_EQ(Keys("area,-left", Plain), "+area-left");
    for (const FoundColumnKind& column : FoundColumns())
    {
        EXPECT_EQ(Keys(column.Key, All), '+' + std::string(column.Key));
    }
}

TEST(FoundKeys, AreRefusedWhereTheQuestionHasNoSuchColumn)
{
    for (const char* key : {"current", "permitted-rise", "loss-resistance", "rise", "body", "ripple", "count",
                            "total", "area,-count", "colour", ""})
    {
        EXPECT_THROW(FoundKeysOf(key, Plain), RequestError) << key;
    }
    auto question = All;
    question.At.Load->Kind = Quantity::RmsVoltage;
    EXPECT_EQ(Keys("rise", question), "+rise");
    EXPECT_THROW(FoundKeysOf("ripple", question), RequestError);
}
} // namespace
