#include "ownparts/FitCharts.h"

#include "calc/Calculate.h"
#include "chart/layout/ChartDrawing.h"
#include "ownparts/ReportTexts.h"
#include "ownparts/Sweeps.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr std::int16_t TemperatureRiseChart = 0;
constexpr std::int16_t CapacitanceTemperatureChart = 2;
constexpr std::int16_t CapacitanceDCVoltageChart = 3;
constexpr std::size_t SettingsOfASweep = 3;
constexpr double RoomAround = 1.05;

ChartRecord LineOf(std::int16_t chartType, Quantity x, Quantity y)
{
    ChartRecord line;
    line.ChartType = chartType;
    line.XAxisName = NameOf(x);
    line.YAxisName = NameOf(y);
    return line;
}

/// The next value that five divisions split well.
double RoundedUp(double value)
{
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double step : {1.0, 1.2, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0})
    {
        if (value <= step * power)
        {
            return step * power;
        }
    }
    return 10 * power;
}

/// Gathers the charts of one part.
class Charts
{
public:
    explicit Charts(const FittedPart& fittedPart)
        : fitted(fittedPart)
        , part(fittedPart.Measured)
        , record(RecordOf(fittedPart.Row))
    {
    }

    std::vector<FitChart> All()
    {
        AddOverBias();
        AddOverTemperature();
        AddOverCurrent();
        return std::move(charts);
    }

private:
    void AddOverBias();
    void AddOverTemperature();
    void AddOverCurrent();
    template <class Holds>
    FitSweep CapacitanceSweep(std::string label, const ChartRecord& line, double MeasuredCapacitance::*x,
                              Holds holds) const;
    void AddChart(std::vector<FitSweep> sweeps);

    const FittedPart& fitted;
    const MeasuredPart& part;
    PartRecord record;
    std::vector<FitChart> charts;
};

template <class Holds>
FitSweep Charts::CapacitanceSweep(std::string label, const ChartRecord& line, double MeasuredCapacitance::*x,
                                  Holds holds) const
{
    FitSweep sweep{std::move(label), line, {}};
    Calculate(record, sweep.Line, CodeView::Eia);
    const auto& points = part.Measured.Capacitances;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        if (holds(points[i]))
        {
            sweep.Points.push_back({points[i].*x, fitted.Capacitances[i]});
        }
    }
    return sweep;
}

void Charts::AddOverBias()
{
    const auto& points = part.Measured.Capacitances;
    std::vector<FitSweep> sweeps;
    for (const auto& step : TemperaturesOf(points, [](const auto&) { return true; }))
    {
        const auto holds = [&step](const MeasuredCapacitance& point) { return step.Holds(point.Celsius); };
        if (BiasesOf(points, part.RatedVolts, holds).size() >= SettingsOfASweep)
        {
            auto line = LineOf(CapacitanceDCVoltageChart, Quantity::DCVoltage, Quantity::Capacitance);
            line.AmbientTemp = static_cast<float>(step.Least);
            sweeps.push_back(CapacitanceSweep(Shortened(step.Least) + " \u00B0C", line,
                                              &MeasuredCapacitance::Volts, holds));
        }
    }
    AddChart(std::move(sweeps));
}

void Charts::AddOverTemperature()
{
    const auto& points = part.Measured.Capacitances;
    std::vector<FitSweep> sweeps;
    for (const auto& step : BiasesOf(points, part.RatedVolts, [](const auto&) { return true; }))
    {
        const auto holds = [&step](const MeasuredCapacitance& point) { return step.Holds(point.Volts); };
        if (TemperaturesOf(points, holds).size() >= SettingsOfASweep)
        {
            auto line = LineOf(CapacitanceTemperatureChart, Quantity::Temperature, Quantity::Capacitance);
            line.DCBiasVoltage = static_cast<float>(step.Most);
            sweeps.push_back(
                CapacitanceSweep(Shortened(step.Most) + " V", line, &MeasuredCapacitance::Celsius, holds));
        }
    }
    AddChart(std::move(sweeps));
}

void Charts::AddOverCurrent()
{
    const auto& rises = part.Measured.RisesByCurrent;
    const auto heating = SweepsOf(rises);
    std::vector<FitSweep> sweeps;
    for (const auto& ambient : heating.Ambients)
    {
        for (const auto& frequency : heating.Frequencies)
        {
            constexpr double Kilo = 1000;
            auto line = LineOf(TemperatureRiseChart, Quantity::Current, Quantity::TemperatureRise);
            line.Frequency = static_cast<float>(frequency.Least / Kilo);
            line.AmbientTemp = static_cast<float>(ambient.Least);
            line.HeatResistance = record.Data[Value::HeatResistance];
            FitSweep sweep{Shortened(frequency.Least / Kilo) + " kHz, " + Shortened(ambient.Least) +
                               " \u00B0C",
                           line,
                           {}};
            Calculate(record, sweep.Line, CodeView::Eia);
            for (std::size_t i = 0; i < rises.size(); ++i)
            {
                if (frequency.Holds(rises[i].Hz) && ambient.Holds(rises[i].Celsius))
                {
                    sweep.Points.push_back({rises[i].Load, fitted.RisesByCurrent[i]});
                }
            }
            if (!sweep.Points.empty())
            {
                sweeps.push_back(std::move(sweep));
            }
        }
    }
    AddChart(std::move(sweeps));
}

void Charts::AddChart(std::vector<FitSweep> sweeps)
{
    sweeps.resize(std::min<std::size_t>(sweeps.size(), MaximumLines));
    if (sweeps.empty())
    {
        return;
    }
    double mostX = 0;
    double mostY = 0;
    for (const auto& sweep : sweeps)
    {
        for (const auto& point : sweep.Points)
        {
            mostX = std::max(mostX, point.X);
            mostY = std::max({mostY, point.Point.Measured, point.Point.Fitted});
        }
    }
    FitChart chart{{.Chart = KeyOf(sweeps.front().Line), .Range = {}, .Rescaled = true}, std::move(sweeps)};
    const auto& line = chart.Sweeps.front().Line;
    const bool overCurrent = line.ChartType == TemperatureRiseChart;
    chart.View.Range = {.XMax = overCurrent ? static_cast<float>(RoundedUp(mostX * RoomAround)) : line.XMax,
                        .YMax = static_cast<float>(RoundedUp(mostY * RoomAround)),
                        .XMin = line.XMin,
                        .YMin = 0};
    charts.push_back(std::move(chart));
}
} // namespace

std::vector<FitChart> ChartsOf(const FittedPart& fitted)
{
    return Charts(fitted).All();
}
