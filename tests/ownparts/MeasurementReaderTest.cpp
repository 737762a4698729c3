/// Files of measurements: what is read, and each fault by its line.

#include "ownparts/MeasurementReader.h"

#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
const std::string Header = "# part: OWN-10U-25\n"
                           "# size: 1206\n"
                           "# characteristic: X5R\n"
                           "# capacitance: 10 uF\n"
                           "# rated voltage: 25 V\n"
                           "# heat resistance: 105 C/W\n";
const std::string Headings =
    "bias [V],temperature [C],capacitance [uF],frequency [kHz],current [Arms],voltage [Vrms],rise [C]\n";

std::string NoSize(const std::string& /*eia*/)
{
    return {};
}

MeasurementFile Read(const std::string& text)
{
    return ReadMeasurements(text, NoSize);
}

std::vector<std::string> FaultsOf(const std::string& text)
{
    std::vector<std::string> faults;
    for (const auto& error : Read(text).Errors)
    {
        faults.push_back(LineOf(error, "own.csv"));
    }
    return faults;
}

void ExpectOneOfEach(const MeasurementFile& file)
{
    ASSERT_THAT(file.Errors, IsEmpty());
    EXPECT_EQ(file.Part.Names[0], "OWN-10U-25");
    EXPECT_EQ(file.Part.Names[3], "OWN-10U-25");
    EXPECT_EQ(file.Part.Names[5], "3216");
    EXPECT_EQ(file.Part.Names[7], "B");
    EXPECT_DOUBLE_EQ(file.Part.NominalPicofarads, 1e7);
    EXPECT_DOUBLE_EQ(file.Part.HeatResistance, 105);
    EXPECT_DOUBLE_EQ(file.Part.UpperC, 85);
    ASSERT_EQ(file.Part.Measured.Capacitances.size(), 1U);
    const auto& point = file.Part.Measured.Capacitances[0];
    EXPECT_EQ(point.Line, 8U);
    EXPECT_DOUBLE_EQ(point.Volts, 12.5);
    EXPECT_DOUBLE_EQ(point.Celsius, 25);
    EXPECT_DOUBLE_EQ(point.Picofarads, 4.683e6);
    ASSERT_EQ(file.Part.Measured.RisesByCurrent.size(), 1U);
    const auto& rise = file.Part.Measured.RisesByCurrent[0];
    EXPECT_EQ(rise.Line, 9U);
    EXPECT_DOUBLE_EQ(rise.Hz, 3e5);
    EXPECT_DOUBLE_EQ(rise.Load, 4.15);
    EXPECT_DOUBLE_EQ(rise.Rise, 10.01);
}

const std::string Rows = "12.5,25,4.683,,,,\n,25,,300,4.15,,10.01\n";

TEST(MeasurementFiles, HoldCapacitancesAndRises)
{
    ExpectOneOfEach(Read(Header + Headings + Rows));
}

std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    {
        text.replace(at, from.size(), to);
    }
    return text;
}

TEST(MeasurementFiles, ComeInTheFormsOfSpreadsheets)
{
    const auto whole = Header + Headings + Rows;
    ExpectOneOfEach(Read(Replaced(whole, "\n", "\r\n")));
    ExpectOneOfEach(Read("\xEF\xBB\xBF" + whole));
    ExpectOneOfEach(Read(Replaced(whole, ",", ";")));
    ExpectOneOfEach(Read(Replaced(Replaced(whole, ",", ";"), ".", ",")));
    ExpectOneOfEach(Read(Replaced(Replaced(whole, ",", "\t"), ".", ",")));
    ExpectOneOfEach(Read(Replaced(Header, "\n", ",,,,\n") + Headings + Rows));
    std::string wide = "\xFF\xFE";
    for (const char c : whole)
    {
        wide += c;
        wide += '\0';
    }
    ExpectOneOfEach(Read(wide));
}

TEST(MeasurementFiles, TakeColumnsInAnyOrderAndUnit)
{
    ExpectOneOfEach(Read(Header + "Rise,current [mA],FREQUENCY [MHz],capacitance [nF],temperature,bias\n"
                                  ",,,4683,,12.5\n10.01,4150,0.3,,25,\n"));
    ExpectOneOfEach(Read(Header + "bias,capacitance,frequency,current,rise\n"
                                  "12500 mV,4.683 uF\n,,0.3 MHz,4.15 Arms,10.01\n"));
}

TEST(MeasurementFiles, TakeAChangeOfTheNominalCapacitance)
{
    const auto file = Read(Header + "bias;capacitance change [%]\n0;-0,5\n25;-74,6\n;;\n");
    ASSERT_THAT(file.Errors, IsEmpty());
    ASSERT_EQ(file.Part.Measured.Capacitances.size(), 2U);
    EXPECT_DOUBLE_EQ(file.Part.Measured.Capacitances[1].Picofarads, 2.54e6);
}

TEST(MeasurementFiles, TakeOptionalLines)
{
    const auto file = ReadMeasurements("# upper temperature: 105\n# Part JIS: J\n# previous part: P\n" +
                                           Replaced(Header, "1206", "odd") + Headings,
                                       [](const std::string& eia) { return eia + "-jis"; });
    ASSERT_THAT(file.Errors, IsEmpty());
    EXPECT_DOUBLE_EQ(file.Part.UpperC, 105);
    EXPECT_EQ(file.Part.Names[1], "J");
    EXPECT_EQ(file.Part.Names[2], "P");
    EXPECT_EQ(file.Part.Names[5], "odd-jis");
}

struct FaultRow
{
    std::string Name;
    std::string Text;
    std::string Fault;
};

class Faults : public testing::TestWithParam<FaultRow>
{
};

TEST_P(Faults, AreToldByTheirLine)
{
    EXPECT_THAT(FaultsOf(GetParam().Text), ElementsAre("own.csv: " + GetParam().Fault));
}

std::string Row(const std::string& row)
{
    return Header + Headings + row + '\n';
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Faults,
    testing::Values(
        FaultRow{"above the rated voltage", Row("30,,1,,,,"),
                 "line 8: bias [V]: \"30\": above the rated voltage 25"},
        FaultRow{"below zero volts", Row("-1,,1,,,,"), "line 8: bias [V]: \"-1\": is below 0"},
        FaultRow{"no number", Row("x,,1,,,,"), "line 8: bias [V]: \"x\" is not a number"},
        FaultRow{"wrong unit", Row("3A,,1,,,,"),
                 "line 8: bias [V]: \"3A\": \"A\" is not the unit of a voltage"},
        FaultRow{"out of reach", Row("1,,1e30,,,,"),
                 "line 8: capacitance [uF]: \"1e30\" is too large to have been measured"},
        FaultRow{"both", Row("1,,1,100,1,,5"), "line 8: measures both a capacitance and a rise"},
        FaultRow{"neither", Row("1,,,100,1,,"), "line 8: measures neither a capacitance nor a rise"},
        FaultRow{"no capacitance", Row("1,,0,,,,"), "line 8: capacitance [uF]: \"0\": is not above 0"},
        FaultRow{"no current", Row(",,,100,0,,5"), "line 8: current [Arms]: \"0\": is not above 0"},
        FaultRow{"no voltage", Row(",,,100,,-1,5"), "line 8: voltage [Vrms]: \"-1\": is not above 0"},
        FaultRow{"no rise", Row(",,,100,1,,0"), "line 8: rise [C]: \"0\": is not above 0"},
        FaultRow{"rise too large", Row(",,,100,1,,80.1"), "line 8: rise [C]: \"80.1\": above 80 C"},
        FaultRow{"too cold", Row("1,-56,1,,,,"),
                 "line 8: temperature [C]: \"-56\": is outside -55 to 85 C of X5R"},
        FaultRow{"heating too cold", Row(",19,,100,1,,5"),
                 "line 8: temperature [C]: \"19\": is outside 20 to 85 C of heating"},
        FaultRow{"frequency", Row(",,,1001,1,,5"),
                 "line 8: frequency [kHz]: \"1001\": is outside 10000 to 1000000 Hz"},
        FaultRow{"no frequency", Row(",,,,1,,5"), "line 8: a rise needs a frequency"},
        FaultRow{"current and voltage", Row(",,,100,1,1,5"),
                 "line 8: a rise has either a current or a voltage"},
        FaultRow{"no load", Row(",,,100,,,5"), "line 8: a rise needs a current or a voltage"},
        FaultRow{"frequency of a capacitance", Row("1,,1,100,,,"),
                 "line 8: frequency [kHz]: \"100\": has no place beside a capacitance"},
        FaultRow{"other separator", Row("1;25;1;;;;"),
                 "line 8: its cells stand between semicolons, the headings between commas"},
        FaultRow{"too many cells", Row("1,25,1,,,,,9"), "line 8: 8 cells instead of 7"},
        FaultRow{"open quote", Row("1,\"25"), "line 8: \"25\\x0A\": no closing quote"},
        FaultRow{"header below", Row("# size: 1"), "line 8: \"# size: 1\": stands below the headings"},
        FaultRow{"decimal comma", Header + "bias,capacitance\n\"1,5\",1\n",
                 "line 8: bias: \"1,5\" is not a number"},
        FaultRow{"capacitance beside its change", Header + "bias,capacitance,capacitance change\n",
                 "line 7: a capacitance and a capacitance change stand beside one another: leave one of them "
                 "out"},
        FaultRow{"nothing left", Header + "bias,capacitance change [%]\n1,-100\n",
                 "line 8: capacitance change [%]: \"-100\": leaves no capacitance"},
        FaultRow{"unknown column", Header + "bias,capacitance,esr\n",
                 "line 7: \"esr\": no column of this name is known"},
        FaultRow{"column twice", Header + "bias,capacitance,Bias [mV]\n",
                 "line 7: Bias [mV]: the column stands twice"},
        FaultRow{"unit of a column", Header + "bias [A],capacitance\n",
                 "line 7: \"1 A\": \"A\" is not the unit of a voltage"},
        FaultRow{"too many columns", Header + "bias,capacitance" + std::string(99, ',') + "rise\n",
                 "line 7: 101 columns: a table of measurements has at most 100"},
        FaultRow{"nothing to measure", Header + "bias,temperature\n",
                 "line 7: there is neither a column of capacitance nor one of rise"},
        FaultRow{"no headings", Header, "line 7: the line of headings is missing"},
        FaultRow{"unknown name", "# tolerance: 5\n" + Header + Headings,
                 "line 1: \"tolerance\": no value of this name is known"},
        FaultRow{"name twice", Header + "# part: X\n" + Headings,
                 "line 7: part: \"X\": stands in line 1 already"},
        FaultRow{"missing name", Replaced(Header, "# size: 1206\n", "") + Headings,
                 "line 6: size: a line \"# size: ...\" is missing above the table"},
        FaultRow{
            "missing heat resistance",
            Replaced(Header, "# heat resistance: 105 C/W\n", "") + Headings + ",,,100,1,,5\n",
            "line 6: heat resistance: a line \"# heat resistance: ...\" is missing: a rise needs that of "
            "its rig"},
        FaultRow{"unknown characteristic", Replaced(Header, "X5R", "X8R") + Headings,
                 "line 3: characteristic: \"X8R\": is none of X7R, X5R and Y5V"},
        FaultRow{"unknown size", Replaced(Header, "1206", "1207") + Headings,
                 "line 2: size: \"1207\": its JIS name is not known: add a line \"# size JIS: ...\""},
        FaultRow{"no rated voltage", Replaced(Header, "25 V", "0") + Headings,
                 "line 5: rated voltage: \"0\": is not above 0"},
        FaultRow{"upper temperature", "# upper temperature: 300\n" + Header + Headings,
                 "line 1: upper temperature: \"300\": is not between 20 and 200 C"},
        FaultRow{"empty name", Replaced(Header, "OWN-10U-25", "") + Headings,
                 "line 1: part: \"\": the name is empty"},
        FaultRow{"name outside the code page", Replaced(Header, "OWN", "\u3042") + Headings,
                 "line 1: part: \"\u3042-10U-25\": a character that the index file cannot hold"}),
    RowName<FaultRow>);

TEST(MeasurementFiles, TellAllFaultsInTheOrderOfTheirLines)
{
    EXPECT_THAT(FaultsOf("# nonsense: 1\n" + Header + Headings + "30,,1,,,,\n,,,,,,\nx,,1,,,,\n"),
                ElementsAre(testing::HasSubstr("line 1: "), testing::HasSubstr("line 9: "),
                            testing::HasSubstr("line 11: ")));
}

TEST(MeasurementFiles, HaveAnEnd)
{
    std::string text = Header + "bias,capacitance\n";
    for (std::size_t i = 0; i < MostMeasurementRows; ++i)
    {
        text += "1,1\n";
    }
    EXPECT_THAT(FaultsOf(text), IsEmpty());
    EXPECT_THAT(FaultsOf(text + "1,1\n"), ElementsAre("own.csv: line 100008: more than 100000 rows"));
    const auto faults =
        FaultsOf(Header + "bias,capacitance\n" + Replaced(std::string(2000, 'x'), "x", "x,1\n"));
    EXPECT_EQ(faults.size(), 1001U);
    EXPECT_THAT(faults.back(), testing::HasSubstr("the rest of the file was not read"));
}
} // namespace
