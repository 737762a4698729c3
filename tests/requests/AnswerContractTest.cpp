/// What scripts rely on in answers: identifiers, codes, units, unused conditions, and values at points.

#include "requests/JsonRequest.h"

#include "files/PartLoading.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
using nlohmann::json;

const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

json Answer(const std::string& line, std::size_t number = 1)
{
    std::string text;
    AxisTexts axes;
    AppendAnswer(text, {line, number}, {}, Parts(), {}, axes);
    return json::parse(text);
}

/// A request of the part that all these tests ask for.
std::string Of(const std::string& members)
{
    return R"({"part":"KTS31NB51E106MA01",)" + members + '}';
}

json Error(const std::string& line)
{
    return Answer(line).at("error");
}

const std::string biasChart = R"("chart":"capacitance-dc-voltage")";

TEST(Answers, EchoTheIdentifierOfCurvesAndErrors)
{
    for (const char* id : {"7", "\"a\"", "null", "[1,{\"b\":false}]"})
    {
        const auto member = R"("id":)" + std::string(id) + ",";
        EXPECT_EQ(Answer(Of(member + biasChart)).at("id"), json::parse(id));
        EXPECT_EQ(Answer(Of(member + R"("chart":"none")")).at("id"), json::parse(id));
        EXPECT_EQ(Answer(Of(member + R"("colour":1)")).at("id"), json::parse(id));
    }
    EXPECT_FALSE(Answer(Of(biasChart)).contains("id"));
}

TEST(Answers, BearTheVersionOfTheirDescription)
{
    EXPECT_EQ(Answer(Of(biasChart)).at("schemaVersion"), 1);
    EXPECT_EQ(Answer("").at("schemaVersion"), 1);
}

TEST(Answers, TellTheUnitsOfConditions)
{
    const auto answer = Answer(Of(R"("chart":"temperature-rise","dcBias":1,"frequency":100)"));
    EXPECT_EQ(
        answer.at("conditionUnits"),
        (json{
            {"dcBias", "V"}, {"frequency", "kHz"}, {"heatResistance", "\u00B0C/W"}, {"ambient", "\u00B0C"}}));
    const auto overFrequency = Answer(Of(
        R"("chart":"temperature-rise","x":"frequency","dcBias":1,"parameter":"voltage","parameterValue":0)"));
    EXPECT_EQ(overFrequency.at("conditionUnits").at("parameterValue"), "Vrms");
}

TEST(Answers, TellConditionsThatWereTypedInVain)
{
    const auto answer = Answer(Of(
        R"("parameterValue":1,"parameter":"current","frequency":100,"dcBias":5,"ambient":30,)" + biasChart));
    EXPECT_EQ(answer.at("unusedConditions"), (json{"dcBias", "frequency", "parameter", "parameterValue"}));
    EXPECT_FALSE(Answer(Of(R"("ambient":30,)" + biasChart)).contains("unusedConditions"));
}

struct BadRequest
{
    const char* name;
    std::string line;
    const char* code;
    const char* key;
    const char* hint;
};

void PrintTo(const BadRequest& row, std::ostream* out)
{
    *out << row.name;
}

class ErrorCodes : public testing::TestWithParam<BadRequest>
{
};

TEST_P(ErrorCodes, TellWhatIsWrongAndWhere)
{
    const auto error = Answer(GetParam().line, 12).at("error");
    EXPECT_EQ(error.at("code"), GetParam().code) << error;
    EXPECT_EQ(error.value("key", ""), GetParam().key) << error;
    EXPECT_EQ(error.value("hint", ""), GetParam().hint) << error;
    EXPECT_EQ(error.at("number"), 5);
    EXPECT_EQ(error.at("line"), 12);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ErrorCodes,
    testing::Values(
        BadRequest{"no JSON", "{", "syntax", "", ""}, BadRequest{"a number", "5", "syntax", "", ""},
        BadRequest{"blank", "\t ", "blank-line", "", ""},
        BadRequest{"unknown key", Of(R"("dc-bias":1)"), "unknown-key", "dc-bias", "dcBias"},
        BadRequest{"far from all keys", Of(R"("colour":1)"), "unknown-key", "colour", ""},
        BadRequest{"unknown part", R"({"part":"KTS31NB51E106MA0",)" + biasChart + "}", "unknown-part", "part",
                   "KTS31NB51E106MA01"},
        BadRequest{"unknown chart", Of(R"("chart":"allowable-powr")"), "unknown-chart", "chart",
                   "allowable-power"},
        BadRequest{"unknown axis", Of(R"("y":"capacitence",)" + biasChart), "unknown-axis", "y",
                   "Capacitance"},
        BadRequest{"no data", R"({"part":"KTU033R71E101KA01","chart":"temperature-rise"})", "no-data",
                   "chart", ""},
        BadRequest{"no part", "{" + biasChart + "}", "missing-key", "part", ""},
        BadRequest{"no chart", Of(R"("dcBias":1)"), "missing-key", "chart", ""},
        BadRequest{"a condition left out", Of(R"("chart":"temperature-rise","dcBias":1)"), "missing-key",
                   "frequency", ""},
        BadRequest{"unknown code", Of(R"("code":"gis",)" + biasChart), "unknown-value", "code", "jis"},
        BadRequest{"no number", Of(R"("ambient":"warm",)" + biasChart), "not-a-number", "ambient", ""},
        BadRequest{"a wrong type", Of(R"("ambient":true,)" + biasChart), "not-a-number", "ambient", ""},
        BadRequest{"a wrong unit", Of(R"("ambient":"5V",)" + biasChart), "unit", "ambient", ""},
        BadRequest{"out of range", Of(R"("ambient":126,)" + biasChart), "range", "ambient", ""},
        BadRequest{"a point beyond the curve", Of(R"("at":[1,26],)" + biasChart), "range", "at", ""},
        BadRequest{"a value beyond all curves", Of(R"("where":[1,"-1e39"],)" + biasChart), "range", "where",
                   ""},
        BadRequest{"a point in a wrong unit", Of(R"("at":"1A",)" + biasChart), "unit", "at", ""}));

TEST(Answers, TellThePlaceThatCannotBeRead)
{
    EXPECT_EQ(Error(R"({"part":"A",})").at("position"), 13);
    EXPECT_FALSE(Error("[1]").contains("position"));
}

TEST(Answers, ReadALineBehindACharacterZero)
{
    const auto error = Error(Of(biasChart) + std::string("\0 more", 6));
    EXPECT_EQ(error.at("code"), "syntax");
    EXPECT_EQ(error.at("position"), Of(biasChart).size() + 1);
}

TEST(Answers, TellThatANumberIsBeyondAllOthers)
{
    const auto error = Error(Of(R"("ambient":1e400,)" + biasChart));
    EXPECT_EQ(error.at("code"), "syntax");
    EXPECT_EQ(error.at("message"), "the line has a number beyond all that can be held");
}

TEST(Answers, RefuseALineThatIsNestedTooDeep)
{
    const auto nested = [](std::size_t depth)
    { return R"({"id":)" + std::string(depth, '[') + std::string(depth, ']') + "}"; };
    EXPECT_EQ(Error(nested(99)).at("code"), "missing-key");
    const auto error = Error(nested(100));
    EXPECT_EQ(error.at("code"), "syntax");
    EXPECT_EQ(error.at("position"), 106);
    EXPECT_EQ(Error(nested(500'000)).at("position"), 106);
    EXPECT_EQ(Error(R"({"id":")" + std::string(500, '[') + R"(\"["})").at("code"), "missing-key");
}

TEST(Answers, TellThePartOfAnError)
{
    EXPECT_EQ(Error(Of(R"("colour":1)")).at("part"), "KTS31NB51E106MA01");
    EXPECT_FALSE(Error("{").contains("part"));
}

TEST(Answers, TellValuesAtPointsInPlaceOfTheCurve)
{
    const auto curve = Answer(Of(biasChart));
    const auto points = Answer(Of(R"("at":["0V",25],)" + biasChart));
    EXPECT_EQ(points.at("points").at(0), (json{{"x", 0}, {"y", curve.at("y").front()}}));
    EXPECT_EQ(points.at("points").at(1), (json{{"x", 25}, {"y", curve.at("y").back()}}));
    EXPECT_FALSE(points.contains("x"));
    EXPECT_FALSE(points.contains("y"));
}

TEST(Answers, TellStoredFrequenciesThatAreTypedExactly)
{
    const auto request = [](const std::string& at)
    { return Of(R"("chart":"allowable-power","dcBias":0)" + at); };
    const auto curve = Answer(request(""));
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const auto x = curve.at("x").at(i).dump();
        const auto point = Answer(request(R"(,"at":")" + x + "Hz\"")).at("points").at(0);
        EXPECT_EQ(point.at("x").get<float>(), curve.at("x").at(i).get<float>());
        EXPECT_EQ(point.at("y").get<float>(), curve.at("y").at(i).get<float>());
    }
}

TEST(Answers, TakeBareFrequenciesInKilohertz)
{
    const auto answer = Answer(Of(R"("chart":"allowable-power","dcBias":0,"at":300)"));
    EXPECT_EQ(answer.at("points").at(0).at("x"), 300000);
}

TEST(Answers, TellWhereACurveTakesAValue)
{
    const auto answer = Answer(Of(R"("y":"capacitance change","where":["-50%",900],)" + biasChart));
    const auto crossings = answer.at("crossings");
    ASSERT_EQ(crossings.size(), 2U);
    EXPECT_EQ(crossings.at(0).at("y"), -50);
    ASSERT_EQ(crossings.at(0).at("x").size(), 1U);
    EXPECT_EQ(crossings.at(1).at("x"), json::array());
    const auto back = Answer(
        Of(R"("y":"capacitance change","at":)" + crossings.at(0).at("x").at(0).dump() + ',' + biasChart));
    EXPECT_NEAR(back.at("points").at(0).at("y"), -50, 1e-5);
}
/// The range with a part whose loss resistance has no value from 21 to 479 kHz, and one that has none at all.
PartTable PartsWithGaps()
{
    PartTable parts = LoadPartData(SAMPLE_RANGE);
    for (const char* name : {"KTS31NB51E106MA01", "KTS21JB51E106MA01"})
    {
        const bool hasGap = std::string_view(name) == "KTS31NB51E106MA01";
        PartRecord& part = parts.PartData[FindPart(parts, name, 0)];
        part.Data[Value::CurrentPerF] = hasGap ? 2e5F : 0;
        part.Data[Value::Current] = -10;
        part.Data[Value::CurrentF] = hasGap ? 2e-5F : 0;
    }
    return parts;
}

json AnswerOfGaps(const std::string& line)
{
    static const PartTable parts = PartsWithGaps();
    std::string text;
    AxisTexts axes;
    AppendAnswer(text, {line, 1}, {}, parts, {}, axes);
    return json::parse(text);
}

TEST(Answers, HaveNullWhereALossResistanceHasNoValue)
{
    const auto curve = AnswerOfGaps(Of(R"("chart":"loss-resistance","ambient":20)"));
    const auto& y = curve.at("y");
    ASSERT_EQ(y.size(), 200U);
    EXPECT_TRUE(y.front().is_number());
    EXPECT_TRUE(y[100].is_null());
    EXPECT_TRUE(y.back().is_number());
    const auto points = AnswerOfGaps(Of(R"("chart":"loss-resistance","ambient":20,"at":[10,100,"1MHz"])"));
    EXPECT_TRUE(points.at("points")[0].at("y").is_number());
    EXPECT_EQ(points.at("points")[1], (json{{"x", 100000}, {"y", nullptr}}));
    EXPECT_TRUE(points.at("points")[2].at("y").is_number());
}

TEST(Answers, TellThatALossResistanceHasNoValueAtAll)
{
    const auto error =
        AnswerOfGaps(R"({"part":"KTS21JB51E106MA01","chart":"loss-resistance","ambient":20})").at("error");
    EXPECT_EQ(error.at("code"), "no-data");
    EXPECT_EQ(error.at("message"), "has no data for chart loss-resistance");
}
} // namespace
