/// The figures that the chapters for designers work out, from the formulas and from the part files.

#include "calc/Calculate.h"
#include "calc/ValueAt.h"
#include "files/PartLoading.h"
#include "tests/help/BookText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <numbers>
#include <sstream>

namespace
{

using std::numbers::pi;
using std::numbers::sqrt2;
using std::numbers::sqrt3;

/// Conditions of a line; what is left out is the part's own, or 0.
struct At
{
    float Bias = 0;
    float Kilohertz = 0;
    float Ambient = 25;
};

class WorkedFigures : public testing::TestWithParam<const char*>
{
protected:
    WorkedFigures()
        : book(BookText(GetParam()))
        , table(ReadPartPair(PART_FILES "/halvex.idx", PART_FILES "/halvex.dat"))
    {
    }

    const PartRecord& Part(const char* name) const
    {
        return table.PartData[static_cast<std::size_t>(*table.PartIndex[0].Find(name))];
    }

    /// Value of a chart's line; both axes are those that the form shows first.
    double Value(const char* name, int type, const char* x, const char* y, const At& at, double where) const
    {
        ChartRecord line;
        line.ChartType = static_cast<std::int16_t>(type);
        line.XAxisName = x;
        line.YAxisName = y;
        line.DCBiasVoltage = at.Bias;
        line.Frequency = at.Kilohertz;
        line.HeatResistance = Part(name).Data[Value::HeatResistance];
        line.AmbientTemp = at.Ambient;
        Calculate(Part(name), line, CodeView::Eia);
        return ValueAt(Part(name), line, where, CodeView::Eia).value();
    }

    double Rise(const char* name, const At& at, double current) const
    {
        return Value(name, 0, "Current", "Temperature Rise", at, current);
    }

    double Microfarad(const char* name, float ambient, double bias) const
    {
        return Value(name, 3, "DC Bias Voltage", "Capacitance", {.Ambient = ambient}, bias) / 1e6;
    }

    /// The section tells the value with that many decimals, whatever stands around it.
    void ExpectTold(const char* section, double value, int decimals, const std::string& unit) const
    {
        std::ostringstream text;
        text << std::fixed << std::setprecision(decimals) << value << unit;
        EXPECT_TRUE(PlainText(Section(book, section)).find(text.str()) != std::string::npos)
            << section << ": " << text.str();
    }

    std::string book;
    PartTable table;
};

// ---- The buck converter: 12 V to 3.3 V and 5 A, 500 kHz, 2.2 µH ----

constexpr double Duty = 3.3 / 12;
constexpr double CoilRipple = 3.3 * (1 - Duty) / (2.2e-6 * 500e3);

TEST_P(WorkedFigures, TellTheInputOfABuckConverter)
{
    const char* section = "loads-buck-input";
    ExpectTold(section, Duty, 3, "");
    ExpectTold(section, CoilRipple, 3, " A");
    const double current = std::sqrt(Duty * (1 - Duty) * 25 + Duty * CoilRipple * CoilRipple / 12);
    ExpectTold(section, current, 3, " A");
    const double wanted = 5 * Duty * (1 - Duty) / (500e3 * 0.2) * 1e6;
    ExpectTold(section, wanted, 2, " µF");
    const double left = Microfarad("KTS32XB51E226MA01", 60, 12);
    ExpectTold(section, left, 1, " µF");
    ExpectTold(section, 0.2 * wanted / left, 3, " V");
}

TEST_P(WorkedFigures, TellTheHarmonicsOfPulses)
{
    const char* section = "loads-buck-input";
    const char* part = "KTS32XB51E226MA01";
    const auto harmonic = [](int n) { return sqrt2 * 5 * std::abs(std::sin(pi * n * Duty)) / (pi * n); };
    const double whole = 5 * std::sqrt(Duty * (1 - Duty));
    const double others = std::sqrt(whole * whole - harmonic(1) * harmonic(1) - harmonic(2) * harmonic(2));
    const At half{.Bias = 12, .Kilohertz = 500, .Ambient = 60};
    const At mega{.Bias = 12, .Kilohertz = 1000, .Ambient = 60};
    const double first = Rise(part, half, harmonic(1));
    const double second = Rise(part, mega, harmonic(2));
    const double rest = Rise(part, mega, others);
    ExpectTold(section, harmonic(1), 3, " A");
    ExpectTold(section, first, 3, " °C");
    ExpectTold(section, harmonic(2), 3, " A");
    ExpectTold(section, second, 3, " °C");
    ExpectTold(section, others, 3, " A");
    ExpectTold(section, rest, 3, " °C");
    ExpectTold(section, whole, 3, " A");
    ExpectTold(section, first + second + rest, 3, " °C");
    ExpectTold(section, Rise(part, half, whole), 3, " °C");
    ExpectTold(section, 100 * (1 - (first + second + rest) / Rise(part, half, whole)), 0, " %");
}

TEST_P(WorkedFigures, TellTheFirstLineOfATriangle)
{
    const double first = 4 / (sqrt2 * pi * pi);
    ExpectTold("loads-frequency", 100 * first * 2 * sqrt3, 1, " %");
}

TEST_P(WorkedFigures, TellTheOutputOfABuckConverter)
{
    const char* section = "loads-buck-output";
    ExpectTold(section, CoilRipple / (2 * sqrt3), 3, " A");
    ExpectTold(section, CoilRipple / (8 * 500e3 * 20e-3) * 1e6, 1, " µF");
}

// ---- Snubber and DC link ----

TEST_P(WorkedFigures, TellTheSnubber)
{
    const char* section = "loads-snubber";
    const char* part = "KTS188R71H102KA01";
    const double whole = 24 * std::sqrt(200e3 * 1e-9 / 10);
    ExpectTold(section, whole, 3, " A");
    ExpectTold(section, whole, 4, " A");
    ExpectTold(section, 1 / (2 * pi * 10 * 1e-9) / 1e6, 1, " MHz");
    // A square of 24 V has odd lines alone; below the corner of the RC they drive equal currents.
    const double line = 2 * pi * 200e3 * 1e-9 * 24 * 2 / pi / sqrt2;
    ExpectTold(section, line * 1e3, 1, " mA");
    const double others = std::sqrt(whole * whole - 3 * line * line);
    ExpectTold(section, others, 4, " A");
    const auto rise = [&](float kilohertz, double current)
    { return Rise(part, {.Bias = 12, .Kilohertz = kilohertz, .Ambient = 60}, current); };
    // As it is entered, with the digits of the book.
    ExpectTold(section, rise(200, 0.1073), 1, " °C");
    ExpectTold(section, rise(1000, 0.1073), 1, " °C");
    const double lines = rise(200, line) + rise(600, line) + rise(1000, line);
    ExpectTold(section, lines, 1, " °C");
    ExpectTold(section, rise(1000, others), 1, " °C");
    ExpectTold(section, lines + rise(1000, others), 1, " °C");
    EXPECT_NEAR(rise(200, whole) / rise(1000, whole), 5, 0.05);
    ExpectTold(section, 1e-9 * 24 * 24 * 200e3, 3, " W");
}

TEST_P(WorkedFigures, TellTheDcLink)
{
    const double current = 10 * std::sqrt(2 * 0.8 * (sqrt3 / (4 * pi) + 0.81 * (sqrt3 / pi - 9 * 0.8 / 16)));
    ExpectTold("loads-dc-link", current, 2, " A");
    ExpectTold("loads-dc-link", current / (2 * pi * 40e3 * 1.2) * 1e6, 1, " µF");
}

// ---- Heat resistance ----

TEST_P(WorkedFigures, TellTheHeatResistanceOfEachSize)
{
    std::string row;
    for (const char* part :
         {"KTU155R71H102KA01", "KTS188R71H102KA01", "KTS21JB51E106MA01", "KTS31NB51E106MA01",
          "KTS32XR71E106KA01", "KTS43XR71E106KA01", "KTS55XR71E106KA01"})
    {
        row += "<td>" + std::to_string(static_cast<int>(Part(part).Data[Value::HeatResistance])) + "</td>";
    }
    EXPECT_THAT(Section(book, "heat-meaning"), testing::HasSubstr(row + "</tr>"));
    ExpectTold("heat-meaning", 100 / sqrt2, 0, " %");
}

TEST_P(WorkedFigures, TellWhatMaxIs)
{
    const auto allowed = [&](double hertz)
    { return Value("KTS31NR71E475KA01", 1, "Frequency", "Current", {.Bias = 12}, hertz); };
    ExpectTold("heat-limits", allowed(1e6), 3, " A");
    ExpectTold("heat-limits", allowed(300e3), 2, " A");
    ExpectTold("heat-limits", allowed(10e3), 2, " A");
}

TEST_P(WorkedFigures, TellAMeasuredHeatResistance)
{
    const char* section = "heat-measure";
    const At at{.Bias = 12, .Kilohertz = 300};
    const double power = Rise("KTS31NB51E106MA01", at, 4) / 105;
    ExpectTold(section, power, 4, " W");
    ExpectTold(section, power * 105, 1, " °C");
    ExpectTold(section, 12.4 / power, 0, " °C/W");
    const double rise = Rise("KTS31NB51E106MA01", at, 1.5);
    ExpectTold(section, rise * 140 / 105, 1, "");
    ExpectTold(section, rise, 1, " °C");
}

TEST_P(WorkedFigures, TellTheLimitOfTheMessage)
{
    // The limit of one heat resistance tells that of the other.
    ExpectTold("heat-message", 2.234 * sqrt2, 3, " A");
    const double bears = Value("KTS21JB51E106MA01", 1, "Frequency", "Current", {.Bias = 12}, 300e3);
    EXPECT_NEAR(bears / 2.234, 2, 0.15);
}

// ---- Design rules ----

TEST_P(WorkedFigures, TellTheWorstCase)
{
    const char* section = "rules-margin";
    for (const float ambient : {-20.0F, 25.0F, 85.0F})
    {
        const double typical = Microfarad("KTS31NB51A476MA01", ambient, 3.465F);
        ExpectTold(section, typical, 1, " µF");
        ExpectTold(section, typical * 0.8, 1, " µF");
        ExpectTold(section, typical * 0.8 * 0.9, 1, " µF");
    }
    ExpectTold(section, 27.2 / (0.8 * 0.9), 1, " µF");
}

TEST_P(WorkedFigures, TellWhatPartsInParallelShare)
{
    const char* part = "KTS21JB51E106MA01";
    const double left = Microfarad(part, 25, 12);
    for (const int count : {1, 2, 3, 4})
    {
        std::ostringstream row;
        row << std::fixed << std::setprecision(2) << "<td>" << 4.0 / count << " A</td><td>";
        row << std::setprecision(1) << Rise(part, {.Bias = 12, .Kilohertz = 300}, 4.0 / count)
            << " °C</td><td>";
        row << std::setprecision(2) << left * count << " µF</td><td>";
        row << std::setprecision(3) << 4 / (2 * pi * 300e3 * left * count * 1e-6) << " V</td>";
        EXPECT_THAT(Section(book, "rules-parallel"), testing::HasSubstr(row.str()));
    }
    ExpectTold("rules-parallel", 1.2 * 1.2, 2, "");
}

INSTANTIATE_TEST_SUITE_P(Books, WorkedFigures, testing::Values("tavike.hlp", "tavikj.hlp"),
                         [](const auto& book) { return std::string(book.param).substr(0, 6); });

} // namespace
