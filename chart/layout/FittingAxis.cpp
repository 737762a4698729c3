#include "chart/layout/FittingAxis.h"

#include "calc/EngineeringText.h"
#include "chart/layout/FittingDecades.h"
#include "chart/layout/FittingSteps.h"

#include <algorithm>
#include <cmath>

/// Distances in text sizes: of X labels, of Y labels, between X labels, of lines between ticks.
static constexpr double xTickDistance = 4.5;
static constexpr double yTickDistance = 2.4;
static constexpr double xLabelGap = 1;
static constexpr double minorDistance = 1.5;

/// Ticks of a logarithmic axis. Below a decade even steps tell more, unless they crowd at the upper end
/// alone.
static FittingTicks LogarithmicTicks(const FittingScale& scale)
{
    auto decades = TicksAtDecades(scale);
    if (scale.Decades() >= 1 - FittingScale::Tolerance)
    {
        return decades;
    }
    if (auto steps = TicksAtSteps(scale, StepSizes::Fifths); steps.Ticks.size() > decades.Ticks.size())
    {
        return steps;
    }
    return decades;
}

static FittingTicks TicksOf(const FittingScale& scale, StepSizes sizes)
{
    return scale.Kind == AxisKind::Logarithmic ? LogarithmicTicks(scale) : TicksAtSteps(scale, sizes);
}

FittingAxis FitXAxis(const ChartView& view, double width, const TextRuler& ruler)
{
    const auto quantity = QuantityNamed(view.Chart.XAxisName);
    const auto kind = XAxisKind(view.Chart);
    const auto title = view.Chart.XAxisName + ' ' + UnitOf(quantity, view.DegreeSign);
    if (!AxisMapping(kind, view.Range.XMin, view.Range.XMax).HasExtent())
    {
        return {{}, title};
    }
    const auto unit = double{KindOf(quantity).StoredPerShown};
    const double size = ruler.TextSize();
    const FittingScale scale = {.Kind = kind,
                                .Low = view.Range.XMin / unit,
                                .High = view.Range.XMax / unit,
                                .Length = width,
                                .TickDistance = xTickDistance * size,
                                .MinorDistance = minorDistance * size,
                                .Ruler = &ruler,
                                .LabelGap = xLabelGap * size};
    const bool inQuarters = quantity == Quantity::Temperature;
    return {TicksOf(scale, inQuarters ? StepSizes::Quarters : StepSizes::Fifths), title};
}

FittingAxis FitYAxis(const ChartView& view, double height, const TextRuler& ruler)
{
    const auto quantity = QuantityNamed(view.Chart.YAxisName);
    const auto kind = YAxisKind(view.Chart);
    const auto& range = view.Range;
    const double larger = std::max(std::abs(range.YMin), std::abs(range.YMax));
    const auto form = FormOf(quantity, larger, view.DegreeSign);
    const auto title = view.Chart.YAxisName + " [" + form.Unit + ']';
    if (!AxisMapping(kind, range.YMin, range.YMax).HasExtent())
    {
        return {{}, title};
    }
    const double factor = std::pow(10.0, form.Shift);
    const FittingScale scale = {.Kind = kind,
                                .Low = range.YMin * factor,
                                .High = range.YMax * factor,
                                .Length = height,
                                .TickDistance = yTickDistance * ruler.TextSize(),
                                .MinorDistance = minorDistance * ruler.TextSize()};
    return {TicksOf(scale, StepSizes::Fifths), title};
}
