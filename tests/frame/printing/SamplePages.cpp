#include "tests/frame/printing/SamplePages.h"
#include "calc/ChartKinds.h"

#include "calc/ChartNames.h"
#include "calc/Curve.h"
#include "frame/DataPage.h"

#include <array>

namespace
{

AxisLimits LimitsOfX(const std::string& name)
{
    if (name == "Frequency")
    {
        return {1e6F, 0, 1e4F, 0};
    }
    if (name == "Temperature")
    {
        return {125, 0, -55, 0};
    }
    return {12, 0, 0, 0};
}

AxisLimits LimitsOfY(const std::string& name)
{
    if (name == "Temperature Rise")
    {
        return {0, 80, 0, 0};
    }
    if (name == "Capacitance")
    {
        return {0, 1.2e7F, 0, 0};
    }
    if (name == "Capacitance Change")
    {
        return {0, 20, 0, -80};
    }
    return {0, 100, 0, 0.1F};
}

float Between(float low, float high, float share)
{
    return low + (high - low) * share;
}

} // namespace

std::vector<ChartKey> AllCharts()
{
    std::vector<ChartKey> charts;
    for (const auto* x : {"Current", "Voltage", "Apparent Power", "Effective Power", "Frequency"})
    {
        charts.push_back({0, x, "Temperature Rise"});
    }
    for (const auto* y : {"Current", "Voltage", "Apparent Power", "Effective Power"})
    {
        charts.push_back({1, "Frequency", y});
    }
    for (const auto* y : {"Capacitance", "Capacitance Change"})
    {
        charts.push_back({2, "Temperature", y});
        charts.push_back({3, "DC Bias Voltage", y});
    }
    return charts;
}

std::vector<ChartRecord> SixLines(const ChartKey& chart)
{
    std::vector<ChartRecord> lines(6);
    const auto xLimits = LimitsOfX(chart.XAxisName);
    const auto yLimits = LimitsOfY(chart.YAxisName);
    for (std::size_t k = 0; k < lines.size(); ++k)
    {
        auto& line = lines[k];
        line.ChartType = chart.ChartType;
        line.XAxisName = chart.XAxisName;
        line.YAxisName = chart.YAxisName;
        line.PartDataIndex = static_cast<std::int32_t>(k);
        line.DCBiasVoltage = 2.5F;
        line.HeatResistance = 46.93F;
        line.Frequency = 123.4F;
        line.AmbientTemp = -55;
        line.ParameterName = NameOf(Parameters.at(k % Parameters.size()));
        line.ParameterValue = 1.2345678e-5F;
        line.ExtraValue = 1234567.9F;
        line.XMin = xLimits.XMin;
        line.XMax = xLimits.XMax;
        line.YMin = yLimits.YMin;
        line.YMax = yLimits.YMax;
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            const auto share = static_cast<float>(i) / 199;
            line.XData[i] = Between(line.XMin, line.XMax, share);
            line.YData[i] = Between(line.YMin, line.YMax, share * (1 - static_cast<float>(k) / 8));
        }
    }
    return lines;
}

QString SamplePartNumber(int part)
{
    return QStringLiteral("KTU155R72A68%1KA01").arg(part);
}

DrawPage ChartPageOf(const std::vector<ChartRecord>& lines, SurfaceKind kind)
{
    return [lines, kind](QPainter& painter, const PageArea& area)
    {
        const auto chart = KeyOf(lines.front());
        const ChartPage page = {
            {chart, DefaultRange(chart, lines)},
            lines,
            QStringLiteral("Halvex Chip Capacitor Characteristics Data Library  11/21/26"),
            SamplePartNumber};
        DrawChartPage(page, area, kind, painter);
    };
}

DrawPage DataPageOf(const ChartRecord& line, CodeView view)
{
    return [line, view](QPainter& painter, const PageArea& area)
    {
        PartRecord part;
        part.PartNum = {"KTU033R71E101KA01", "KTU033R01E101KA01", "HC0201X7R101K025", "HC0603R101K025"};
        DrawDataPage({line, part, view, QStringLiteral("11/21/26")}, area, painter);
    };
}
