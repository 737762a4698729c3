/// The figures that the help books tell about parts of the range, worked out anew from the part files.

#include "calc/Calculate.h"
#include "calc/DataFile.h"
#include "chart/layout/PaneText.h"
#include "files/PartLoading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <numbers>
#include <sstream>

namespace
{

constexpr const char* Parts[] = {"KTS31NR71E475KA01", "KTS21JB51E106MA01", "KTS32XF51E106ZA01"};

class BookFigures : public testing::TestWithParam<const char*>
{
protected:
    BookFigures()
        : table(ReadPartPair(PART_FILES "/halvex.idx", PART_FILES "/halvex.dat"))
    {
        std::ifstream file(std::string(BOOKS) + "/" + GetParam(), std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        book = text.str();
    }

    const PartRecord& Part(int index) const
    {
        return table.PartData[static_cast<std::size_t>(*table.PartIndex[0].Find(Parts[index]))];
    }

    /// The Japanese book is written for the JIS view, in which the program then starts.
    static CodeView BookView()
    {
        return std::string(GetParam()) == "tavikj.hlp" ? CodeView::Jis : CodeView::Eia;
    }

    /// A line of part A, B or C at 12 V, with the part's own heat resistance.
    ChartRecord Line(int part, int type, const char* x, const char* y) const
    {
        ChartRecord line;
        line.ChartType = static_cast<std::int16_t>(type);
        line.XAxisName = x;
        line.YAxisName = y;
        line.DCBiasVoltage = 12;
        line.HeatResistance = Part(part).Data[Value::HeatResistance];
        line.AmbientTemp = 25;
        return line;
    }

    void ExpectCells(const std::array<double, 3>& values, int decimals, const char* unit) const
    {
        std::ostringstream row;
        row.setf(std::ios::fixed);
        row.precision(decimals);
        for (const double value : values)
        {
            row << "<td>" << value << ' ' << unit << "</td>";
        }
        EXPECT_THAT(book, testing::HasSubstr(row.str()));
    }

    PartTable table;
    std::string book;
};

/// Y of a curve at an X between its points.
double At(const ChartRecord& line, double x)
{
    std::size_t k = 1;
    while (k < CurvePoints - 1 && line.XData[k] < x)
    {
        ++k;
    }
    const double share = (x - line.XData[k - 1]) / (line.XData[k] - line.XData[k - 1]);
    return line.YData[k - 1] + share * (line.YData[k] - line.YData[k - 1]);
}

TEST_P(BookFigures, TellTheRiseOfOneAndAHalfAmperes)
{
    for (const double kilohertz : {300.0, 100.0, 10.0})
    {
        std::array<double, 3> rises{};
        for (int part = 0; part < 3; ++part)
        {
            ChartRecord line = Line(part, 0, "Current", "Temperature Rise");
            line.Frequency = static_cast<float>(kilohertz);
            ASSERT_FALSE(Calculate(Part(part), line, CodeView::Eia));
            rises[static_cast<std::size_t>(part)] = At(line, 1.5);
        }
        ExpectCells(rises, 1, "°C");
    }
}

TEST_P(BookFigures, TellTheAllowableCurrent)
{
    for (const float ambient : {25.0F, 75.0F})
    {
        std::array<double, 3> currents{};
        for (int part = 0; part < 3; ++part)
        {
            ChartRecord line = Line(part, 1, "Frequency", "Current");
            line.AmbientTemp = ambient;
            ASSERT_FALSE(Calculate(Part(part), line, CodeView::Eia));
            currents[static_cast<std::size_t>(part)] = At(line, 300000);
        }
        ExpectCells(currents, 2, "A");
    }
}

TEST_P(BookFigures, TellWhatIsLeftAtTwelveVolts)
{
    std::array<double, 3> left{};
    std::array<double, 3> change{};
    std::array<double, 3> ripple{};
    for (int part = 0; part < 3; ++part)
    {
        const auto at = static_cast<std::size_t>(part);
        ChartRecord line = Line(part, 3, "DC Bias Voltage", "Capacitance");
        Calculate(Part(part), line, CodeView::Eia);
        left[at] = At(line, 12) / 1e6;
        line.YAxisName = "Capacitance Change";
        Calculate(Part(part), line, BookView());
        change[at] = At(line, 12);
        ripple[at] = 1.5 / (2 * std::numbers::pi * 300e3 * left[at] * 1e-6);
    }
    ExpectCells(left, 2, "µF");
    ExpectCells(change, 1, "%");
    ExpectCells(ripple, 2, "V");
}

TEST_P(BookFigures, TellTheCapacitanceOfAWarmBoard)
{
    std::array<double, 3> warm{};
    for (int part = 0; part < 3; ++part)
    {
        ChartRecord line = Line(part, 2, "Temperature", "Capacitance");
        Calculate(Part(part), line, CodeView::Eia);
        warm[static_cast<std::size_t>(part)] = At(line, 60) / 1e6;
    }
    ExpectCells(warm, 2, "µF");
}

TEST_P(BookFigures, TellTheLinesOfADataFile)
{
    ChartRecord line = Line(0, 0, "Current", "Temperature Rise");
    line.Frequency = 300;
    ASSERT_FALSE(Calculate(Part(0), line, CodeView::Eia));
    const auto dataLine = [&line](std::size_t point)
    { return "\n" + DataXText(line, point) + "            " + DataYText(line, point) + "\n"; };
    EXPECT_THAT(book, testing::HasSubstr(dataLine(0) + dataLine(1).substr(1) + "..." + dataLine(199)));
}

/// A whole entry of the table of panes.
std::string PaneExample(const ChartRecord& line)
{
    return "<code>" + PaneText(line) + "</code>";
}

TEST_P(BookFigures, TellWhatPanesShow)
{
    ChartRecord overLoad = Line(0, 0, "Current", "Temperature Rise");
    overLoad.Frequency = 300;
    EXPECT_THAT(book, testing::HasSubstr(PaneExample(overLoad)));

    ChartRecord overFrequency = Line(0, 0, "Frequency", "Temperature Rise");
    overFrequency.ParameterName = "Current";
    overFrequency.ParameterValue = 1.5F;
    EXPECT_THAT(book, testing::HasSubstr(PaneExample(overFrequency)));

    // The largest load is that of the whole curve, not of one frequency.
    ChartRecord allowable = Line(0, 1, "Frequency", "Current");
    ASSERT_FALSE(Calculate(Part(0), allowable, BookView()));
    EXPECT_THAT(book, testing::HasSubstr(PaneExample(allowable)));

    EXPECT_THAT(book, testing::HasSubstr(PaneExample(Line(0, 2, "Temperature", "Capacitance"))));
    EXPECT_THAT(book, testing::HasSubstr(PaneExample(Line(0, 3, "DC Bias Voltage", "Capacitance"))));
}

INSTANTIATE_TEST_SUITE_P(Books, BookFigures, testing::Values("tavike.hlp", "tavikj.hlp"),
                         [](const auto& book) { return std::string(book.param).substr(0, 6); });

} // namespace
