/// What the refusal of a request knows.

#include "requests/RequestError.h"

#include "files/PartLoading.h"
#include "requests/CurveRequest.h"

#include <gtest/gtest.h>

namespace
{
const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

struct Row
{
    const char* name;
    CurveRequest request;
    RequestErrorKind kind;
    const char* key;
    const char* entry;
    const char* message;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

class RefusedRequests : public testing::TestWithParam<Row>
{
};

TEST_P(RefusedRequests, TellKindKeyAndEntry)
{
    const auto& row = GetParam();
    try
    {
        CurveOf(row.request, Parts(), {});
        FAIL() << "not refused";
    }
    catch (const RequestError& error)
    {
        EXPECT_EQ(error.Kind(), row.kind);
        EXPECT_EQ(error.Key(), row.key);
        EXPECT_EQ(error.Entry(), row.entry);
        EXPECT_EQ(error.Message(), row.message);
        EXPECT_EQ(error.Part(), row.request.Part);
        EXPECT_EQ(error.Limit(), std::nullopt);
    }
}

constexpr const char* medium = "KTS31NB51E106MA01";

INSTANTIATE_TEST_SUITE_P(
    Requests, RefusedRequests,
    testing::Values(
        Row{"unknown part",
            {.Part = "A", .Chart = "allowable-power"},
            RequestErrorKind::UnknownPart,
            "part",
            "",
            "there is no part \"A\""},
        Row{"unknown axis",
            {.Part = medium, .Chart = "allowable-power", .X = "Time"},
            RequestErrorKind::UnknownValue,
            "x",
            "",
            "X axis \"Time\" is none of: Frequency"},
        Row{"no data",
            {.Part = "KTU033R71E101KA01", .Chart = "allowable-power"},
            RequestErrorKind::NoData,
            "chart",
            "",
            "has no data for chart allowable-power"},
        Row{"foreign unit",
            {.Part = medium, .Chart = "allowable-power", .Conditions = {{Condition::HeatResistance, "5V"}}},
            RequestErrorKind::Unit,
            "heatResistance",
            "",
            "\"5V\": \"V\" is not the unit of a heat resistance"},
        Row{"refused condition in another unit",
            {.Part = medium, .Chart = "allowable-power", .Conditions = {{Condition::DCBias, "25000mV"}}},
            RequestErrorKind::Condition,
            "dcBias",
            "25000mV",
            "DC Bias Voltage is invalid! Please enter a Number from 0 under 25[V]"},
        Row{"condition that is not given",
            {.Part = medium, .Chart = "temperature-rise", .Conditions = {{Condition::DCBias, "0"}}},
            RequestErrorKind::Condition,
            "frequency",
            "",
            "Frequency is invalid! Please enter a Number from 10 to 1000 [kHz]"}));

TEST(RequestError, KnowsTheLimitOfAParameter)
{
    try
    {
        CurveOf({.Part = medium,
                 .Chart = "temperature-rise",
                 .X = "Frequency",
                 .Conditions = {{Condition::DCBias, "0"}, {Condition::Parameter, "99"}},
                 .Parameter = "effective-power"},
                Parts(), {});
        FAIL() << "not refused";
    }
    catch (const RequestError& error)
    {
        EXPECT_EQ(error.Key(), "parameterValue");
        EXPECT_EQ(error.Entry(), "99");
        // 80 degrees through the part's own 105 °C/W.
        EXPECT_NEAR(error.Limit().value_or(0), 80.0 / 105.0, 1e-12);
    }
}
} // namespace
