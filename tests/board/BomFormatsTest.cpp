/// The sample board in every format, byte for byte.

#include "board/BomFormats.h"
#include "board/BomCsv.h"
#include "board/BomJson.h"
#include "tests/Golden.h"
#include "tests/board/Board.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using testing::HasSubstr;

namespace
{
std::unique_ptr<const CheckedBom> Check(const std::string& bill,
                                        const std::optional<std::string>& conditions = {},
                                        const BomSettings& settings = {})
{
    return CheckBom({.Bill = bill, .Conditions = conditions}, {.Settings = settings, .Waveforms = NoWaveform},
                    Range());
}

nlohmann::json JsonOf(const CheckedBom& bom)
{
    return nlohmann::json::parse(BomJson(bom, {}, {.Bill = "bill.csv"}));
}

class SampleBoard : public testing::TestWithParam<const char*>
{
};
} // namespace

INSTANTIATE_TEST_SUITE_P(Formats, SampleBoard, testing::Values("table", "csv", "json", "html"));

TEST_P(SampleBoard, IsToldAlike)
{
    const BomSettings settings{.IsSuggesting = true};
    const auto checked = Check(BoardFile("board.csv"), BoardFile("rails.csv"), settings);
    const auto& format = FormatNamed(BomFormats(), GetParam());
    ASSERT_EQ(format.Name, GetParam());
    EXPECT_EQ(GoldenDifference("board/boards/verdicts." + std::string(GetParam()),
                               format.Write(*checked, settings, {"board.csv", "rails.csv"})),
              "");
}

TEST(BomCsv, KeepsTheColumnsOfTheBill)
{
    const auto checked =
        Check("Ref;\"Note \"\"x\"\"\";MPN;Bias\nC1;\"a, \"\"b\"\"\nc\";KTS31NB51C226MA01;5V\n");
    const auto csv = BomCsv(*checked, {});
    EXPECT_TRUE(csv.starts_with("Ref,\"Note \"\"x\"\"\",MPN,Bias,verdict,"));
    EXPECT_THAT(csv, HasSubstr("\nC1,\"a, \"\"b\"\"\nc\",KTS31NB51C226MA01,5V,ok,"));
}

TEST(BomCsv, PutsWhatIsNotJudgedLast)
{
    const auto csv = BomCsv(*Check("Ref,MPN,Bias,DNP\nR1,R-10K,,\nC2,KTS31NB51C226MA01,5V,x\n"
                                   "C1,KTS31NB51C226MA01,5V,\n"),
                            {.IsByLine = true});
    const auto place = [&](const std::string& text) { return csv.find(text); };
    EXPECT_LT(place("\nC1,KTS31NB51C226MA01,5V,,ok,"), place("\nR1,R-10K,,,skipped,"));
    EXPECT_LT(place("\nR1,R-10K,,,skipped,"), place("\nC2,KTS31NB51C226MA01,5V,x,not fitted,"));
}

TEST(BomJson, LeavesOutWhatHasNoNumber)
{
    const auto row = JsonOf(*Check("Ref,MPN,Bias,Min Capacitance\nC1,KTS31NB51C226MA01,5V,0\n"))["rows"][0];
    EXPECT_EQ(row["limits"][1]["limit"], "capacitance");
    EXPECT_TRUE(row["limits"][1]["reserve"].is_null());
    EXPECT_TRUE(row["current"].is_null());
}

TEST(BomJson, CountsAQuantityWhereThereAreNoReferences)
{
    const auto answer = JsonOf(*Check("Net,Qty,MPN,Bias\nN,4,KTS31NB51C226MA01,5V\n"));
    EXPECT_EQ(answer["rows"][0]["count"], 4);
    EXPECT_EQ(answer["nets"][0]["nominal"], 4 * 22'000'000);
}

TEST(BomJson, TellsThePiecesOfANetThatIsSorted)
{
    // The second row fails, so that it is told first.
    const auto answer = JsonOf(*Check("Ref,MPN,Net,Bias,Min Capacitance\nC1,KTS31NB51C226MA01,N,5V,\n"
                                      "\"C2,C3\",KTS188R71H104KA01,N,5V,1uF\n"));
    EXPECT_EQ(answer["rows"][0]["references"], (std::vector<std::string>{"C2", "C3"}));
    EXPECT_EQ(answer["nets"][0]["pieces"][0]["part"], "KTS31NB51C226MA01");
    EXPECT_EQ(answer["nets"][0]["pieces"][1]["count"], 2);
}

TEST(BomJson, TellsWhatANetsCurrentDoes)
{
    const auto row = JsonOf(*Check("Ref,MPN,Net,Bias,Ambient,Net Current\n\"C1,C2\",KTS31NB51C226MA01,N,5V,"
                                   "-10..65C,300kHz=4 600kHz=1\n"))["rows"][0];
    EXPECT_GT(row["rise"], 0);
    EXPECT_NEAR(row["body"].get<double>(), 65 + row["rise"].get<double>(), 1);
    EXPECT_GT(row["warmCapacitance"], 0);
    EXPECT_LE(row["warmCapacitance"], row["effectiveCapacitance"]);
    EXPECT_EQ(row["heatingAmbient"]["low"], 20);
}
