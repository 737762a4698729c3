#include "simulation/SimulationModel.h"

#include "tests/Golden.h"
#include "tests/simulation/ModelParts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace
{
using testing::HasSubstr;
using testing::Not;

std::string TextOf(const PartRecord& part, std::size_t form = 0)
{
    return std::get<std::string>(SimulationModel(part, form));
}

std::vector<std::string> LinesOf(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

/// One part of each law, and one without heating data.
class SimulationModelText : public testing::TestWithParam<const char*>
{
};

TEST_P(SimulationModelText, IsKept)
{
    const auto name = std::string(GetParam());
    const auto text = TextOf(SamplePart(name));
    EXPECT_EQ(GoldenDifference("simulation/golden/" + name + ".lib", text), "");
    EXPECT_EQ(TextOf(SamplePart(name)), text) << "the same part, the same bytes";
}

INSTANTIATE_TEST_SUITE_P(Parts, SimulationModelText,
                         testing::Values("KTU033R71E101KA01", "KTS31NB51A476MA01", "KTS216F51E224ZA01",
                                         "KTU155F51H222ZA01"));

TEST(SimulationModel, BearsTheNumberOnDisplay)
{
    const auto text = TextOf(ProductPart(), 3);
    EXPECT_THAT(text, testing::StartsWith("* A-4  1000 pF  R  10 V  3216\n"));
    EXPECT_THAT(text, HasSubstr("\n.SUBCKT A_4 1 2 PARAMS: "));
    EXPECT_THAT(text, testing::EndsWith("\n.ENDS A_4\n"));
}

TEST(SimulationModel, KeepsStrangeNamesOutOfTheNetlist)
{
    auto part = ProductPart();
    part.PartNum[0] = "A\n.END\n\xC4";
    part.SizeCode[0] = "12\r\nR1 1 2 0";
    const auto text = TextOf(part);
    EXPECT_THAT(text, testing::StartsWith("* A_.END__  1000 pF  X7R  10 V  12__R1 1 2 0\n* Multilayer"));
    EXPECT_TRUE(std::ranges::all_of(text, [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
}

TEST(SimulationModel, LeavesOutALossResistanceThatTheDataDoesNotGive)
{
    EXPECT_THAT(TextOf(ProductPart()), HasSubstr("\nRS 1 A {Q1/FX+Q2+Q3*FX}\n"));
    const auto text = TextOf(With(ProductPart(), Value::HeatResistance, 0));
    EXPECT_THAT(text, Not(HasSubstr("RS 1 A")));
    EXPECT_THAT(text, HasSubstr("\n* Loss: none, the heating data is not above 0 everywhere."));
    EXPECT_THAT(text, HasSubstr("\nC1 1 B {C0}\n"));
}

TEST(SimulationModel, PutsNumbersBelowZeroBehindSignsInBrackets)
{
    auto part = With(With(PeakedPart(), Value::PeakAmplitude, -10), Value::PeakOffset, 20);
    EXPECT_THAT(TextOf(part), HasSubstr("{1+(20+(-10)*(1+"));
}

TEST(SimulationModel, HasNoCaseForAPeakThatStays)
{
    EXPECT_THAT(TextOf(With(PeakedPart(), Value::PeakTemperatureV, 0)), HasSubstr("\n.PARAM R1={0}\n"));
    EXPECT_THAT(
        TextOf(PeakedPart()),
        HasSubstr("\n.PARAM R1={MIN(MAX(2*DC/((-2)+(-1)*SQRT(MAX(4+4*(0)*DC,0))+(-1E-30)),0),VR)}\n"));
}

TEST(SimulationModel, IsRefusedWhereItCannotBeCalculated)
{
    EXPECT_EQ(SimulationModel(With(PeakedPart(), Value::ExponentAbove, -1), 0),
              ModelResult(ModelRefusal::CannotBeCalculated));
    EXPECT_EQ(SimulationModel(With(ProductPart(), Value::BiasV, 0), 0),
              ModelResult(ModelRefusal::NoCapacitanceData));
}

TEST(SimulationModel, ConsistsOfShortLinesThatBreakBeforeAMultiplication)
{
    for (const auto& part : SampleParts().PartData)
    {
        const auto model = SimulationModel(part, 0);
        const auto* const text = std::get_if<std::string>(&model);
        for (const auto& line : LinesOf(text != nullptr ? *text : ""))
        {
            ASSERT_LE(line.size(), 100U) << line;
            ASSERT_TRUE(!line.starts_with('+') || line.starts_with("+ *")) << line;
            ASSERT_EQ(line.find('^'), std::string::npos) << line;
        }
    }
}
} // namespace
