#include "tests/frame/randomuser/PlainCharts.h"

#include "app/mdlPublic.h"
#include "tests/frame/randomuser/PlainNumbers.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

static const QStringList TypeNames = {"Temperature Rise Characteristics", "Allowable power",
                                      "Capacitance-Temperature Characteristics",
                                      "Capacitance-DC Voltage Characteristics"};

bool IsSame(const ChartRecord& a, const ChartRecord& b)
{
    return a.ChartType == b.ChartType && a.XAxisName == b.XAxisName && a.YAxisName == b.YAxisName &&
           a.PartDataIndex == b.PartDataIndex && a.DCBiasVoltage == b.DCBiasVoltage &&
           a.HeatResistance == b.HeatResistance && a.Frequency == b.Frequency &&
           a.AmbientTemp == b.AmbientTemp && a.ParameterName == b.ParameterName &&
           a.ParameterValue == b.ParameterValue;
}

QString CaptionOf(const ChartRecord& line)
{
    return TypeNames.at(line.ChartType) + "(" + QString::fromStdString(line.XAxisName) + "," +
           QString::fromStdString(line.YAxisName) + ")";
}

QString PlainUnit(const std::string& quantity, const QString& degreeSign)
{
    static const std::vector<std::pair<std::string, const char*>> units = {
        {"Current", "[Arms]"},      {"Voltage", "[Vrms]"},        {"Apparent Power", "[VA]"},
        {"Effective Power", "[W]"}, {"Frequency", "[kHz]"},       {"DC Bias Voltage", "[V]"},
        {"Capacitance", "[pF]"},    {"Capacitance Change", "[%]"}};
    for (const auto& [name, unit] : units)
    {
        if (name == quantity)
        {
            return unit;
        }
    }
    return "[" + degreeSign + "C]";
}

// ---- Default limits ----

static float LogOf(float value)
{
    return static_cast<float>(std::floor(std::log(double{value}) / std::log(10.0)));
}

static AxisRange PowerLimits(const ChartRecord& line, float least, float most)
{
    AxisRange limits{.XMax = 1e6F, .YMax = 0, .XMin = 1e4F, .YMin = 0};
    const auto nextTen = static_cast<float>(std::floor(double{most} / 10) * 10 + 10);
    if (line.ChartType == 1)
    {
        limits.YMax = least > 0 ? std::pow(10.0F, LogOf(most) + 1) : 1;
        limits.YMin = least > 0 ? std::pow(10.0F, LogOf(least)) : 0.1F;
    }
    else if (line.XAxisName == "Frequency")
    {
        limits.YMax = most >= 80 ? 80 : nextTen;
    }
    else
    {
        limits.XMax = std::floor(*std::ranges::max_element(line.XData)) + 1;
        limits.XMin = 0;
        limits.YMax = most < 75 ? nextTen : 100;
    }
    return limits;
}

/// The step of a capacitance limit: the power of ten in it, or ten percent.
static double StepOf(const ChartRecord& line, double limit)
{
    return line.YAxisName == "Capacitance Change"
               ? 10
               : std::pow(10.0, std::floor(std::log(std::abs(limit)) / std::log(10.0)));
}

static AxisRange CapacitanceLimits(const ChartRecord& line, float least, float most)
{
    const double up = StepOf(line, most);
    const double down = StepOf(line, least);
    const PartRecord& part = mdlPublic.Parts.PartData[static_cast<std::size_t>(line.PartDataIndex)];
    AxisRange limits{.XMax = part.Data[2], .YMax = 0, .XMin = 0, .YMin = 0};
    limits.YMax =
        static_cast<float>(most >= 0 ? std::floor(most / up) * up + up : std::trunc(most / up) * up);
    limits.YMin = static_cast<float>(std::floor(least / down) * down);
    return limits;
}

AxisRange PlainLimits(const ChartRecord& line, CodeView view)
{
    const auto [least, most] = std::ranges::minmax(line.YData);
    if (line.ChartType <= 1)
    {
        return PowerLimits(line, least, most);
    }
    AxisRange limits = CapacitanceLimits(line, least, most);
    if (line.ChartType == 2)
    {
        // -55..125, -55..85, -30..85 and -25..85 are shown in round ranges.
        const float coldest = line.XData[0];
        limits.XMax = line.XData[199] > 100 ? 125 : 100;
        limits.XMin = coldest < -50 ? -75 : view == CodeView::Jis ? -25 : -50;
    }
    return limits;
}

// ---- Panes ----

QString PlainPane(const ChartRecord& line)
{
    const QString degree = QStringLiteral("\u00B0");
    const QString bias = PlainText(line.DCBiasVoltage) + "[V]";
    const QString heat = PlainText(line.HeatResistance) + "[" + degree + "C/W]";
    const QString ambient = PlainText(line.AmbientTemp) + "[" + degree + "C]";
    switch (line.ChartType)
    {
    case 0:
        return line.XAxisName == "Frequency"
                   ? "(" + bias + "," + heat + "," + ambient + "," + PlainText(line.ParameterValue) +
                         PlainUnit(line.ParameterName, degree) + ")"
                   : "(" + bias + "," + heat + "," + PlainText(line.Frequency) + "[kHz]," + ambient + ")";
    case 1:
        return "(" + PlainPaneValue(line.ExtraValue) + PlainUnit(line.YAxisName, degree) + "," + bias + "," +
               heat + "," + ambient + ")";
    case 2:
        return "(" + bias + " )";
    default:
        return "(" + PlainText(line.AmbientTemp) + "[ " + degree + "C] )";
    }
}

// ---- Windows ----

int PlainCharts::LinesOf(const QString& caption) const
{
    return static_cast<int>(std::ranges::count_if(Lines, [&](const PlainLine& line)
                                                  { return CaptionOf(line.Asked) == caption; }));
}

bool PlainCharts::Holds(const ChartRecord& asked) const
{
    return std::ranges::any_of(Lines, [&](const PlainLine& line) { return IsSame(line.Asked, asked); });
}

PlainWindow* PlainCharts::Window(const QString& caption)
{
    const auto at = std::ranges::find(Windows, caption, &PlainWindow::Caption);
    return at != Windows.end() ? &*at : nullptr;
}

void PlainCharts::Plot(const PlainLine& line, const AxisRange& shown)
{
    const QString caption = CaptionOf(line.Asked);
    Lines.push_back(line);
    if (Window(caption) == nullptr)
    {
        Windows.push_back({.Caption = caption});
    }
    PlainWindow& window = *Window(caption);
    window.Minimised = false;
    window.Range = shown;
    window.Left = ChartLeft;
    // 300 twips for each window beside the first, and 50.
    window.Top = (static_cast<int>(Windows.size() - 1) * 300 + 50) / 15;
}

void PlainCharts::Close(const QString& caption)
{
    std::erase_if(Lines, [&](const PlainLine& line) { return CaptionOf(line.Asked) == caption; });
    std::erase_if(Windows, [&](const PlainWindow& window) { return window.Caption == caption; });
}

void PlainCharts::CloseAll()
{
    Lines.clear();
    Windows.clear();
}

AxisRange Union(const AxisRange& a, const AxisRange& b)
{
    return {.XMax = std::max(a.XMax, b.XMax),
            .YMax = std::max(a.YMax, b.YMax),
            .XMin = std::min(a.XMin, b.XMin),
            .YMin = std::min(a.YMin, b.YMin)};
}

// ---- What the range dialog permits ----

static PlainPermitted OneSpanFurther(const std::string& quantity, float minimum, float maximum)
{
    // In decimals, as a user reckons with the numbers shown.
    const double low = PlainText(minimum).toDouble();
    const double high = PlainText(maximum).toDouble();
    const double span = high > low ? high - low : 1;
    const bool negative = quantity == "Temperature" || quantity == "Capacitance Change";
    return {.Lowest = static_cast<float>(negative ? low - span : std::max(0.0, low - span)),
            .Highest = static_cast<float>(high + span)};
}

PlainPermitted PlainPermittedX(const ChartRecord& line, const AxisRange& defaults)
{
    return line.XAxisName == "Frequency" ? PlainPermitted{.Lowest = 10, .Highest = 1000}
                                         : OneSpanFurther(line.XAxisName, defaults.XMin, defaults.XMax);
}

PlainPermitted PlainPermittedY(const ChartRecord& line, const AxisRange& defaults)
{
    if (line.ChartType == 1)
    {
        return {.Lowest = static_cast<float>(PlainText(defaults.YMin).toDouble() / 10),
                .Highest = static_cast<float>(PlainText(defaults.YMax).toDouble() * 10)};
    }
    return OneSpanFurther(line.YAxisName, defaults.YMin, defaults.YMax);
}
