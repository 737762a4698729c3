/// Requests as JSON, and their answers.

#include "requests/JsonRequest.h"

#include "calc/Calculate.h"
#include "files/PartLoading.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>

namespace
{
using nlohmann::json;

const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

json Answer(const std::string& line, bool expectedCurve = true)
{
    std::string text;
    AxisTexts axes;
    EXPECT_EQ(AppendAnswer(text, {line, 1}, {}, Parts(), {}, axes), expectedCurve) << text;
    EXPECT_EQ(std::ranges::count(text, '\n'), 1);
    EXPECT_TRUE(text.ends_with('\n'));
    return json::parse(text);
}

std::string Message(const std::string& line)
{
    return Answer(line, false).at("error").at("message");
}

TEST(Requests, AreAnsweredWithTheCurveOfTheCalculation)
{
    const auto answer =
        Answer(R"({"part":"kts31nb51e106ma01","chart":"temperature-rise","dcBias":"12V","frequency":300})");
    const auto& part = Parts().PartData[FindPart(Parts(), "KTS31NB51E106MA01", 0)];
    ChartRecord line;
    line.XAxisName = "Current";
    line.YAxisName = "Temperature Rise";
    line.DCBiasVoltage = 12;
    line.Frequency = 300;
    line.HeatResistance = part.Data[Value::HeatResistance];
    line.AmbientTemp = 25;
    ASSERT_FALSE(Calculate(part, line, CodeView::Eia));
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        EXPECT_EQ(std::stof(answer.at("x").at(i).dump()), line.XData[i]);
        EXPECT_EQ(std::stof(answer.at("y").at(i).dump()), line.YData[i]);
    }
    EXPECT_EQ(answer.at("x").size(), 200U);
    EXPECT_EQ(answer.at("xMax").get<float>(), line.XMax);
    EXPECT_EQ(answer.at("yMin").get<float>(), line.YMin);
    EXPECT_EQ(answer.at("part"), "KTS31NB51E106MA01");
    EXPECT_EQ(answer.at("chart"), "temperature-rise");
    EXPECT_EQ(answer.at("xName"), "Current");
    EXPECT_EQ(answer.at("xUnit"), "Arms");
    EXPECT_EQ(answer.at("yUnit"), "\u00B0C");
    EXPECT_EQ(answer.at("conditions"),
              (json{{"dcBias", 12}, {"frequency", 300}, {"heatResistance", 105}, {"ambient", 25}}));
}

TEST(Requests, TellFrequenciesInHertz)
{
    const auto answer = Answer(
        R"({"part":"KTS31NB51E106MA01","chart":"temperature-rise","x":"frequency","dcBias":0,
            "parameter":"Effective Power","parameterValue":"190mW"})");
    EXPECT_EQ(answer.at("xUnit"), "Hz");
    EXPECT_EQ(answer.at("x").front(), 10000);
    EXPECT_EQ(answer.at("x").back(), 1000000);
    EXPECT_EQ(answer.at("conditions").at("parameter"), "effective-power");
    EXPECT_EQ(answer.at("conditions").at("parameterValue").get<float>(), 0.19F);
}

TEST(Requests, ShowWhatTheFormShowsFirst)
{
    const std::string begin = R"({"part":"KTS31NB51E106MA01","chart":"capacitance-dc-voltage","code":")";
    const auto eia = Answer(begin + "eia\"}");
    const auto jis = Answer(begin + "JIS\"}");
    EXPECT_EQ(eia.at("conditions"), (json{{"ambient", 25}}));
    EXPECT_EQ(jis.at("conditions"), (json{{"ambient", 20}}));
    EXPECT_EQ(eia.at("yName"), "Capacitance");
    EXPECT_EQ(eia.at("extraValue"), 0);
}

TEST(Requests, LeaveOutConditionsThatTheChartDoesNotUse)
{
    const auto answer = Answer(
        R"({"part":"KTS31NB51E106MA01","chart":"capacitance-temperature","dcBias":5,"frequency":1e9,"ambient":"-300"})");
    EXPECT_EQ(answer.at("conditions"), (json{{"dcBias", 5}}));
}

TEST(Requests, TakeEveryKeyThatTheyName)
{
    const auto keys = RequestKeys();
    EXPECT_EQ(keys.size(), 14U);
    for (const auto& key : keys)
    {
        const auto value = key == "code" ? "jis" : "1";
        const CurveRequest defaults{.Part = "A", .Chart = "B"};
        EXPECT_NO_THROW(RequestOfJson(json{{key, value}}.dump(), defaults)) << key;
    }
}

TEST(Requests, FindAPartByAnyOfItsNumbers)
{
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        for (std::size_t i = 0; i < Parts().PartData.size(); i += 97)
        {
            EXPECT_EQ(FindPart(Parts(), Parts().PartData[i].PartNum[form], form), i);
        }
    }
}

TEST(Requests, AreRefusedWithTheFormsWordsOnOneLine)
{
    EXPECT_EQ(
        Message(R"({"part":"KTS31NB51E106MA01","chart":"temperature-rise","dcBias":26,"frequency":300})"),
        "DC Bias Voltage is invalid! Please enter a Number from 0 to 25[V]");
    EXPECT_EQ(Message(R"({"part":"KTS31NB51E106MA01","chart":"temperature-rise","dcBias":26})"),
              "DC Bias Voltage is invalid! Please enter a Number from 0 to 25[V]");
    EXPECT_EQ(Message(R"({"part":"KTS31NB51E106MA01","chart":"allowable-power","dcBias":25})"),
              "DC Bias Voltage is invalid! Please enter a Number from 0 under 25[V]");
}

TEST(Requests, TellTheLimitOfARefusedParameter)
{
    const auto begin = std::string(
        R"({"part":"KTS31NB51E106MA01","chart":"temperature-rise","x":"Frequency","dcBias":0,"parameter":"effective-power","parameterValue":)");
    const auto error = Answer(begin + "99}", false).at("error");
    // 80 degrees through the part's own 105 °C/W.
    EXPECT_NEAR(error.at("limit"), 80.0 / 105.0, 1e-12);
    EXPECT_EQ(error.at("message"), "Parameter is invalid! Please enter a Number from 0 to 0.7619");
    Answer(begin + "0.7619}");
}

struct BadLine
{
    const char* name;
    const char* line;
    const char* message;
};

void PrintTo(const BadLine& row, std::ostream* out)
{
    *out << row.name;
}

class BadLines : public testing::TestWithParam<BadLine>
{
};

TEST_P(BadLines, TellWhatIsWrong)
{
    EXPECT_EQ(Message(GetParam().line), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadLines,
    testing::Values(
        BadLine{"no JSON", "part", "the line is not a JSON object"},
        BadLine{"cut JSON", R"({"part":"KTS31)", "the line is not a JSON object"},
        BadLine{"a list", "[1]", "the line is not a JSON object"},
        BadLine{"no part", R"({"chart":"allowable-power"})", "\"part\" is missing"},
        BadLine{"no chart", R"({"part":"A"})", "\"chart\" is missing"},
        BadLine{"unknown key", R"({"part":"A","bias":1})", "no request has a key \"bias\""},
        BadLine{"a list as value", R"({"part":["A"]})", "\"part\" is neither a text nor a number"},
        BadLine{"unknown part", R"({"part":"A","chart":"allowable-power"})", "there is no part \"A\""},
        BadLine{"unknown chart", R"({"part":"A","chart":"power"})",
                "chart \"power\" is none of: temperature-rise, allowable-power, capacitance-temperature, "
                "capacitance-dc-voltage, loss-resistance"},
        BadLine{"foreign axis", R"({"part":"A","chart":"allowable-power","y":"Capacitance"})",
                "Y axis \"Capacitance\" is none of: Current, Voltage, Apparent Power, Effective Power"},
        BadLine{"unknown code", R"({"part":"A","code":"din"})", "code \"din\" is none of: eia, jis"},
        BadLine{"text of no encoding", "{\"part\":\"\xFF\"}", "the line is not a JSON object"},
        BadLine{"foreign unit", R"({"part":"KTS31NB51E106MA01","chart":"allowable-power","dcBias":"5A"})",
                "\"dcBias\" \"5A\": \"A\" is not the unit of a voltage"},
        BadLine{
            "foreign unit of the parameter",
            R"({"part":"KTS31NB51E106MA01","chart":"temperature-rise","x":"Frequency","parameterValue":"5kHz"})",
            "\"parameterValue\" \"5kHz\": \"kHz\" is not the unit of a current"},
        BadLine{"no data",
                R"({"part":"KTU033R71E101KA01","chart":"temperature-rise","dcBias":0,"frequency":300})",
                "has no data for chart temperature-rise"}));
} // namespace
