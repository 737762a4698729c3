#include "tests/cli/CommandRun.h"
#include "tests/partfiles/SmallPair.h"

#include "calc/Capacitance.h"
#include "files/PartLoading.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using testing::HasSubstr;
using testing::StartsWith;

namespace
{
const std::string Measurements = DOCUMENTS "/own-parts.csv";

/// A folder with the table of the sample range.
class DataFit : public testing::Test
{
protected:
    DataFit() { RunData({"export", SAMPLE_DATA, "--output", File("range.csv")}); }

    std::string File(const std::string& name) const { return folder.Path() + '/' + name; }
    bool Has(const std::string& name) const { return std::filesystem::exists(File(name)); }
    void Write(const std::string& name, const std::string& text) { folder.Write(name, text); }

private:
    TemporaryFolder folder;
};

TEST_F(DataFit, TellsAReportAndWritesNothingElse)
{
    const auto run = RunData({"fit", Measurements});
    EXPECT_FALSE(run.HasFailed) << run.Failure;
    EXPECT_THAT(run.Output,
                StartsWith("OWN-10U-25  1206  X5R  10 uF  25 V\ncapacitance         19 points, "));
    EXPECT_EQ(run.Notes, "");
}

TEST_F(DataFit, MakesAPairThatLoadsAndFollowsTheMeasurements)
{
    EXPECT_FALSE(
        RunData({"fit", Measurements, "--table", File("range.csv"), "--output", File("all.csv")}).HasFailed);
    EXPECT_FALSE(RunData({"build", File("all.csv"), "--output", File("own")}).HasFailed);
    EXPECT_EQ(RunData({"check", File("own.idx")}).Output, "1180 parts, 0 errors, 0 warnings\n");
    const auto parts = ReadPartPair(File("own.idx"), File("own.dat"));
    const auto& own = parts.PartData.back();
    EXPECT_EQ(own.PartNum[0], "OWN-10U-25");
    EXPECT_NEAR(CapacitancePointAt(own, 12.5, 25, CodeView::Eia)->PicoFarads / 4.683e6, 1, 0.03);
    EXPECT_EQ(RunData({"fit", Measurements, "--output", File("one.csv")}).Failure, "");
    EXPECT_FALSE(RunData({"build", File("one.csv"), "--output", File("single")}).HasFailed);
}

TEST_F(DataFit, ReplacesAPartOnlyIfTold)
{
    ASSERT_FALSE(
        RunData({"fit", Measurements, "--table", File("range.csv"), "--output", File("all.csv")}).HasFailed);
    const auto again =
        RunData({"fit", Measurements, "--table", File("all.csv"), "--output", File("twice.csv")});
    EXPECT_THAT(again.Failure,
                HasSubstr("all.csv: line 1181: \"OWN-10U-25\": the part number stands in the table"));
    EXPECT_FALSE(Has("twice.csv"));
    EXPECT_FALSE(
        RunData({"fit", Measurements, "--table", File("all.csv"), "--replace", "--output", File("all.csv")})
            .HasFailed);
}

TEST_F(DataFit, KeepsTheLineEndsAndRowsOfTheTable)
{
    const auto before = BytesOf(File("range.csv"));
    ASSERT_FALSE(
        RunData({"fit", Measurements, "--table", File("range.csv"), "--output", File("all.csv")}).HasFailed);
    EXPECT_TRUE(BytesOf(File("all.csv")).starts_with(before));
}

TEST_F(DataFit, TellsEveryFaultAndWritesNothing)
{
    Write("own.csv", "# part: A\nbias,capacitance\nx,1\n1,y\n");
    const auto run = RunData({"fit", File("own.csv"), "--output", File("out.csv")});
    EXPECT_TRUE(run.HasFailed);
    EXPECT_THAT(run.Notes, HasSubstr("own.csv: line 2: size: "));
    EXPECT_THAT(run.Notes, HasSubstr("own.csv: line 3: bias: \"x\" is not a number\n"));
    EXPECT_THAT(run.Notes, HasSubstr("own.csv: line 4: capacitance: \"y\" is not a number\n"));
    EXPECT_FALSE(Has("out.csv"));
}

TEST_F(DataFit, TellsWhatIsMissing)
{
    auto text = BytesOf(Measurements);
    text.erase(text.find("20,25,"), text.find("0,-55,") - text.find("20,25,"));
    Write("own.csv", text);
    const auto run = RunData({"fit", File("own.csv")});
    EXPECT_TRUE(run.HasFailed);
    EXPECT_EQ(run.Notes, File("own.csv") +
                             ": bias: measured up to 17.5 V of 25 V: measure up to 24.25 V, lower the rated "
                             "voltage, or name a part with --like\n");
    const auto like = RunData({"fit", File("own.csv"), "--like", "KTS21JB51E106MA01", "--data", SAMPLE_DATA});
    EXPECT_FALSE(like.HasFailed) << like.Failure << like.Notes;
    EXPECT_THAT(like.Output, HasSubstr("beyond 17.5 V like KTS21JB51E106MA01"));
}

TEST_F(DataFit, RefusesWhatMakesNoSense)
{
    EXPECT_THAT(RunData({"fit", Measurements, "--output", Measurements}).Failure,
                HasSubstr("which this command reads"));
    EXPECT_THAT(RunData({"fit", Measurements, "--output", "-"}).Failure, HasSubstr("name a file"));
    EXPECT_THAT(RunData({"fit", Measurements, "--replace"}).Failure, HasSubstr("--replace wants --table"));
    EXPECT_THAT(RunData({"fit", Measurements, "--like", "NO-SUCH-PART", "--data", SAMPLE_DATA}).Failure,
                HasSubstr("NO-SUCH-PART"));
}

TEST_F(DataFit, TellsTheSameAsJson)
{
    const auto json = nlohmann::json::parse(RunData({"fit", Measurements, "--format", "json"}).Output);
    EXPECT_EQ(json["part"], "OWN-10U-25");
    EXPECT_EQ(json["points"].size(), 31U);
    EXPECT_EQ(json["points"][0]["line"], 8);
    EXPECT_EQ(json["points"][0]["measured"], 9864170.0);
    EXPECT_EQ(json["groups"][2]["name"], "over bias");
    EXPECT_EQ(json["groups"][2]["values"].size(), 6U);
    EXPECT_EQ(json["warnings"].size(), 1U);
}

TEST_F(DataFit, DrawsThePointsOverTheCurves)
{
    ASSERT_FALSE(RunData({"fit", Measurements, "--picture", File("fit.svg")}).HasFailed);
    const auto picture = BytesOf(File("fit.svg"));
    EXPECT_THAT(picture, HasSubstr("300 kHz, 25 \u00B0C"));
    EXPECT_THAT(picture, HasSubstr("DC Bias Voltage"));
    EXPECT_THAT(picture, HasSubstr("-5 %"));
    EXPECT_THAT(RunData({"fit", Measurements, "--picture", File("fit.txt")}).Failure,
                HasSubstr("ends in none of"));
}

TEST_F(DataFit, WritesAllFilesOrNone)
{
    const auto run =
        RunData({"fit", Measurements, "--output", File("one.csv"), "--picture", File("no/fit.svg")});
    EXPECT_TRUE(run.HasFailed);
    EXPECT_FALSE(Has("one.csv"));
    EXPECT_EQ(run.Output, "");
}

TEST_F(DataFit, WritesNoFileOfAReportThatNobodyGot)
{
    const auto run = RunDataIntoFullOutput({"fit", Measurements, "--output", File("one.csv")});
    EXPECT_EQ(run.Failure, "standard output: cannot be written");
    EXPECT_FALSE(Has("one.csv"));
}

TEST_F(DataFit, RefusesOneNameForTwoFiles)
{
    const auto twice =
        RunData({"fit", Measurements, "--output", File("one.svg"), "--picture", File("./one.svg")});
    EXPECT_EQ(twice.Failure, "--output and --picture name one file");
    EXPECT_FALSE(Has("one.svg"));
    EXPECT_THAT(RunData({"fit", "-", "--table", "-"}).Failure, HasSubstr("can be read only once"));
    EXPECT_THAT(RunData({"merge", "-", "-", "--output", File("all.csv")}).Failure,
                HasSubstr("can be read only once"));
}

TEST_F(DataFit, KeepsThePartFilesThatLend)
{
    ASSERT_FALSE(RunData({"build", File("range.csv"), "--output", File("own")}).HasFailed);
    const auto before = BytesOf(File("own.dat"));
    const auto run = RunData({"fit", Measurements, "--like", "KTS21JB51E106MA01", "--data", File(""),
                              "--output", File("own.dat")});
    EXPECT_THAT(run.Failure, HasSubstr("which this command reads"));
    EXPECT_EQ(BytesOf(File("own.dat")), before);
}

TEST_F(DataFit, TablesMergeIntoOne)
{
    ASSERT_FALSE(RunData({"fit", Measurements, "--output", File("one.csv")}).HasFailed);
    const auto run = RunData({"merge", File("range.csv"), File("one.csv"), "--output", File("all.csv")});
    EXPECT_FALSE(run.HasFailed) << run.Failure;
    EXPECT_TRUE(BytesOf(File("all.csv")).starts_with(BytesOf(File("range.csv"))));
    const auto clash = RunData({"merge", File("all.csv"), File("one.csv"), "--output", File("more.csv")});
    EXPECT_TRUE(clash.HasFailed);
    EXPECT_EQ(clash.Notes,
              File("one.csv") +
                  ": line 2: global part number EIA: \"OWN-10U-25\": the part number stands in " +
                  File("all.csv") + ", line 1181, too\n");
    EXPECT_FALSE(Has("more.csv"));
    EXPECT_THAT(RunData({"merge", File("range.csv"), "--output", File("range.csv")}).Failure,
                HasSubstr("which this command reads"));
}
} // namespace
