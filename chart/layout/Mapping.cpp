#include "chart/layout/Mapping.h"

#include "calc/Log10.h"

#include <cmath>

AxisKind XAxisKind(const ChartKey& chart)
{
    const ChartSweep* sweep = FindSweep(chart.ChartType, chart.XAxisName);
    return sweep != nullptr ? sweep->XKind : AxisKind::Linear;
}

AxisKind YAxisKind(const ChartKey& chart)
{
    const ChartSweep* sweep = FindSweep(chart.ChartType, chart.XAxisName);
    return sweep != nullptr ? sweep->YKind : AxisKind::Linear;
}

AxisMapping::AxisMapping(AxisKind axisKind, float rangeMinimum, float rangeMaximum)
    : kind(axisKind)
    , minimum(rangeMinimum)
    , maximum(rangeMaximum)
{
    if (!(maximum > minimum) || (kind == AxisKind::Logarithmic && !(minimum > 0)))
    {
        return;
    }
    const bool logarithmic = kind == AxisKind::Logarithmic;
    origin = logarithmic ? Log10(minimum) : double{minimum};
    factor = 100 / ((logarithmic ? Log10(maximum) : double{maximum}) - origin);
}

double AxisMapping::Position(double value) const
{
    if (!HasExtent() || (kind == AxisKind::Logarithmic && !(value > 0)))
    {
        return 0;
    }
    return ((kind == AxisKind::Logarithmic ? Log10(value) : value) - origin) * factor;
}

double AxisMapping::Value(double position) const
{
    if (!HasExtent())
    {
        return minimum;
    }
    const double scaled = origin + position / factor;
    return kind == AxisKind::Logarithmic ? std::pow(10.0, scaled) : scaled;
}
