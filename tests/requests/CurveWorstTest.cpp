/// Values of curves over ranges of conditions, asked for by name.

#include "files/PartLoading.h"
#include "requests/AxisTexts.h"
#include "requests/CurveFormats.h"
#include "requests/JsonRequest.h"
#include "requests/RequestError.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

CurveRequest OfCapacitance(const std::string& ambient, const std::vector<std::string>& at)
{
    CurveRequest request;
    request.Part = "KTS31NB51C226MA01";
    request.Chart = "capacitance-dc-voltage";
    request.Conditions[Condition::AmbientTemperature] = ambient;
    request.At = at;
    return request;
}

CurveRequest OfRise(const std::string& bias, const std::string& ambient, const std::string& frequency,
                    const std::string& at)
{
    CurveRequest request;
    request.Part = "KTS31NB51C226MA01";
    request.Chart = "temperature-rise";
    request.Conditions[Condition::DCBias] = bias;
    request.Conditions[Condition::AmbientTemperature] = ambient;
    request.Conditions[Condition::Frequency] = frequency;
    request.At = {at};
    return request;
}

float ConditionAt(const CurveExtreme& extreme, std::string_view key)
{
    return std::ranges::find(extreme.At, key, &CurveCondition::Key)->Value;
}

TEST(CurveWorst, TellsTheLeastAndTheMostCapacitance)
{
    const auto curve = CurveOf(OfCapacitance("-20..85C", {"12V"}), Parts(), {});
    ASSERT_TRUE(curve.Worst);
    const WorstPoint& point = curve.Worst->at(0);
    EXPECT_EQ(point.X, ConditionRange(12));
    EXPECT_NEAR(point.Least.Y, 6.276e6, 500);
    EXPECT_EQ(ConditionAt(point.Least, "ambient"), 85);
    EXPECT_NEAR(point.Most.Y, 7.038e6, 500);
    EXPECT_NEAR(ConditionAt(point.Most, "ambient"), 10.14, 0.005);
}

TEST(CurveWorst, OfAPlaceIsTheCurveThere)
{
    const auto worst = CurveOf(OfCapacitance("-20..85C", {"10.8..13.2V"}), Parts(), {}).Worst.value().at(0);
    for (const CurveExtreme& extreme : {worst.Least, worst.Most})
    {
        const auto at = CurveOf(OfCapacitance(std::to_string(ConditionAt(extreme, "ambient")),
                                              {std::to_string(ConditionAt(extreme, "dcBias"))}),
                                Parts(), {})
                            .Points.value()
                            .at(0);
        EXPECT_NEAR(at.Y.value(), extreme.Y, 1e-6 * extreme.Y);
    }
}

TEST(CurveWorst, OfHeatingIsBeatenNowhere)
{
    for (const char* at : {"1A", "0.5..1.5A"})
    {
        const auto worst =
            CurveOf(OfRise("0..10V", "20..80C", "100..900kHz", at), Parts(), {}).Worst.value().at(0);
        for (int i = 0; i < 7 * 7 * 3; ++i)
        {
            const auto ambient = std::to_string(20 + 10 * (i % 7));
            const auto frequency = std::to_string(100 + 800.0 / 6 * (i / 7 % 7));
            const auto x =
                std::to_string(worst.X.Low + (worst.X.High - worst.X.Low) * static_cast<float>(i / 49) / 2);
            const auto y =
                CurveOf(OfRise("5V", ambient, frequency, x), Parts(), {}).Points.value().at(0).Y.value();
            ASSERT_LE(y, worst.Most.Y * (1 + 1e-6F));
            ASSERT_GE(y, worst.Least.Y * (1 - 1e-6F));
        }
    }
}

TEST(CurveWorst, OfEqualEndsIsThePoint)
{
    const auto worst = CurveOf(OfCapacitance("60..60C", {"5..5V"}), Parts(), {}).Worst.value().at(0);
    const auto point = CurveOf(OfCapacitance("60C", {"5V"}), Parts(), {}).Points.value().at(0);
    EXPECT_EQ(worst.Least.Y, point.Y);
    EXPECT_EQ(worst.Most.Y, point.Y);
}

struct Row
{
    const char* Name;
    const char* Ambient;
    const char* At;
    RequestErrorKind Kind;
    const char* Message;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.Name;
}

class RefusedWorst : public testing::TestWithParam<Row>
{
};

TEST_P(RefusedWorst, IsToldWhy)
{
    try
    {
        CurveOf(OfCapacitance(GetParam().Ambient, {GetParam().At}), Parts(), {});
        FAIL() << "is answered";
    }
    catch (const RequestError& error)
    {
        EXPECT_EQ(error.Kind(), GetParam().Kind);
        EXPECT_EQ(error.Message(), GetParam().Message);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, RefusedWorst,
    testing::Values(Row{"from above", "85..-20C", "12V", RequestErrorKind::Condition,
                        "Temperature 85..-20C: the first must not be above the second"},
                    Row{"open end", "20..", "12V", RequestErrorKind::NotANumber,
                        "\"20..\" is not a range: an end is left open"},
                    Row{"upper end", "20..86C", "12V", RequestErrorKind::Condition,
                        "Ambient Temperature is invalid! Please enter a Number from -55 to 85 [C]"},
                    Row{"lower end", "-56..20C", "12V", RequestErrorKind::Condition,
                        "Ambient Temperature is invalid! Please enter a Number from -55 to 85 [C]"},
                    Row{"beyond the curve", "20..85C", "12..17V", RequestErrorKind::Condition,
                        "the curve reaches from 0 to 16 [V] of DC Bias Voltage"}),
    [](const auto& row) { return "Row" + std::to_string(row.index); });

TEST(CurveWorst, WantsSinglePoints)
{
    auto request = OfCapacitance("-20..85C", {"12V"});
    request.At.reset();
    EXPECT_THROW(CurveOf(request, Parts(), {}), RequestError);
    request.At = {"12V"};
    request.Where = {"5uF"};
    EXPECT_THROW(CurveOf(request, Parts(), {}), RequestError);
}

TEST(CurveWorst, IsAskedForAndToldInJson)
{
    std::string text;
    AxisTexts axes;
    EXPECT_TRUE(AppendAnswer(text,
                             {R"({"part":"KTS31NB51C226MA01","chart":"capacitance-dc-voltage",)"
                              R"("ambient":{"low":-20,"high":"85C"},"at":["12V","10.8..13.2V"]})"},
                             {}, Parts(), {}, axes));
    EXPECT_NE(text.find(R"("conditions":{"ambient":{"low":-20,"high":85}})"), std::string::npos) << text;
    EXPECT_NE(text.find(R"("points":[{"x":12,"least":627)"), std::string::npos) << text;
    EXPECT_NE(text.find(R"("leastAt":{"dcBias":12,"ambient":85},"most":703)"), std::string::npos) << text;
    EXPECT_NE(text.find(R"({"x":{"low":10.8,"high":13.2},"least":)"), std::string::npos) << text;
}

TEST(CurveWorst, IsARowOfCsv)
{
    const auto csv = FormatNamed(CurveFormats(), "csv")
                         .Write(CurveOf(OfCapacitance("-20..85C", {"12V"}), Parts(), {}), {});
    EXPECT_NE(csv.find("# Ambient Temperature: -20..85 "), std::string::npos) << csv;
    EXPECT_NE(csv.find("DC Bias Voltage low [V],DC Bias Voltage high [V],least [pF],least at bias [V],"
                       "least at ambient [°C],most [pF],most at bias [V],most at ambient [°C]\n12,12,627"),
              std::string::npos)
        << csv;
}

TEST(CurveWorst, TellsTheUnitsOfPlacesInCsv)
{
    auto request = OfCapacitance("20..65", {"270..330"});
    request.Chart = "loss-resistance";
    const auto csv = FormatNamed(CurveFormats(), "csv").Write(CurveOf(request, Parts(), {}), {});
    EXPECT_NE(csv.find("Frequency low [Hz],Frequency high [Hz],least [mOhm],least at ambient [°C],"
                       "least at frequency [kHz],most [mOhm],"),
              std::string::npos)
        << csv;
}
} // namespace
