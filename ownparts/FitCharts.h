#pragma once

/// The charts that show a fit: measured points over the curves of the part.

#include "chart/layout/ChartView.h"
#include "ownparts/FittedPart.h"

#include <string>
#include <vector>

/// A measured point on a chart, X in the unit of the chart's records.
struct ChartPoint
{
    double X = 0;
    FittedPoint Point;
};

/// What was measured at one setting, and the part's curve there.
struct FitSweep
{
    /// "25 °C", "300 kHz".
    std::string Label;
    ChartRecord Line;
    std::vector<ChartPoint> Points;
};

/// One chart with up to six sweeps; the range holds all points.
struct FitChart
{
    ChartView View;
    std::vector<FitSweep> Sweeps;
};

/// Capacitance over bias, capacitance over temperature and rise over current, those of them that were
/// measured. A sweep has three settings at least.
std::vector<FitChart> ChartsOf(const FittedPart& fitted);
