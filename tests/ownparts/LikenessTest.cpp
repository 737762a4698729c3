/// What a like part lends, group by group.

#include "calc/Capacitance.h"
#include "calc/PowerModel.h"
#include "ownparts/PartFit.h"
#include "tests/ownparts/SampleMeasurements.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
/// 10 µF 25 V in 1206, and the same in 1210 to be like it.
constexpr const char* Own = "KTS31NB51E106MA01";
constexpr const char* Like = "KTS21JB51E106MA01";
constexpr const char* Peaked = "KTS31NF50J336ZA01";

FittedPart FittedLike(const char* own, const Rig& rig, const char* like)
{
    auto fit = FitPart(MeasuredOn(SamplePart(own), rig), &SamplePart(like));
    EXPECT_THAT(fit.Refusals, IsEmpty());
    return std::move(fit.Fitted);
}

std::vector<std::string> LentGroups(const FittedPart& fitted)
{
    std::vector<std::string> names;
    for (const auto& group : fitted.Groups)
    {
        if (!group.BorrowedFrom.empty())
        {
            names.push_back(group.Name);
        }
    }
    return names;
}

double ErrorAt(const FittedPart& fitted, const char* truth, double share, double celsius)
{
    const auto& part = SamplePart(truth);
    const double volts = share * part.Data[Value::RatedVoltage];
    return std::abs(CapacitancePointAt(RecordOf(fitted.Row), volts, celsius, CodeView::Eia)->PicoFarads /
                        CapacitancePointAt(part, volts, celsius, CodeView::Eia)->PicoFarads -
                    1);
}

TEST(LikePart, LendsBiasBeyondWhatWasMeasured)
{
    const auto fitted = FittedLike(Own, {.TopBias = 0.8, .Ambients = {25, 60}}, Like);
    EXPECT_THAT(LentGroups(fitted), testing::ElementsAre("over bias"));
    EXPECT_LT(ErrorAt(fitted, Own, 1, 25), 0.15);
    EXPECT_LT(ErrorAt(fitted, Own, 0.7, 25), 0.02);
}

TEST(LikePart, LendsTemperaturesOutsideOfWhatWasMeasured)
{
    const auto fitted = FittedLike(Own, {.TemperatureShare = 0.5, .Ambients = {25, 60}}, Like);
    EXPECT_THAT(LentGroups(fitted), testing::ElementsAre("over temperature"));
    EXPECT_LT(ErrorAt(fitted, Own, 0, -55), 0.03);
    EXPECT_LT(ErrorAt(fitted, Own, 0, 85), 0.03);
}

TEST(LikePart, LendsTheTermsOfOneFrequency)
{
    const auto fitted = FittedLike(Own, {.Hertz = {1e5}}, Like);
    EXPECT_THAT(LentGroups(fitted), testing::ElementsAre("terms 1/f, 1, f", "over ambient"));
    EXPECT_LT(std::abs(ResidualsOf(fitted.RisesByCurrent)->Largest), 1e-3);
    const auto heatingAt = [](const PartRecord& part)
    { return PowerModelOf(part, 0, 65, part.Data[Value::HeatResistance]).kI(1e6); };
    EXPECT_NEAR(heatingAt(RecordOf(fitted.Row)) / heatingAt(SamplePart(Own)), 1, 0.5);
}

TEST(LikePart, LendsTheChangeOverAmbient)
{
    const auto fitted = FittedLike(Own, {}, Like);
    EXPECT_THAT(LentGroups(fitted), testing::ElementsAre("over ambient"));
    EXPECT_LT(std::abs(ResidualsOf(fitted.RisesByCurrent)->Largest), 1e-3);
    EXPECT_NE(fitted.Row.Data[Value::CurrentTPerF], 0);
}

TEST(LikePart, LendsWhatBiasDoesToAPeak)
{
    const auto fitted = FittedLike(Peaked, {.Ambients = {25, 60}}, "KTS31NF50J336ZA01");
    EXPECT_THAT(LentGroups(fitted), testing::ElementsAre("over temperature"));
    EXPECT_NEAR(fitted.Row.Data[Value::PeakTemperatureV2] / SamplePart(Peaked).Data[Value::PeakTemperatureV2],
                1, 1e-3);
}

TEST(LikePart, LendsNothingWhereNothingIsMissing)
{
    EXPECT_THAT(LentGroups(FittedLike(Own, {.Ambients = {25, 60}}, Like)), IsEmpty());
}

TEST(LikePart, MustBeOfTheSameCharacteristicAndHaveData)
{
    const auto refusals = [](const char* like)
    { return FitPart(MeasuredOn(SamplePart(Own), {.TopBias = 0.8}), &SamplePart(like)).Refusals; };
    EXPECT_THAT(refusals(Peaked), testing::ElementsAre(HasSubstr("is Y5V, the part X5R")));
    auto empty = SamplePart(Like);
    std::fill_n(empty.Data.begin() + Values::OfCapacitance.First, 25, 0.0F);
    EXPECT_THAT(FitPart(MeasuredOn(SamplePart(Own), {}), &empty).Refusals,
                testing::ElementsAre(HasSubstr("has no data of capacitance")));
}
} // namespace
