#include "chart/layout/ReadOut.h"

#include "calc/NumberText.h"
#include "chart/layout/Mapping.h"

#include <algorithm>
#include <optional>

static AxisMapping XMapping(const ChartView& view)
{
    return {XAxisKind(view.Chart), view.Range.XMin, view.Range.XMax};
}

static AxisMapping YMapping(const ChartView& view)
{
    return {YAxisKind(view.Chart), view.Range.YMin, view.Range.YMax};
}

/// A value of an axis as the read-out shows it.
static std::string ValueText(const std::string& quantity, double value, const std::string& degreeSign)
{
    const double shown = value / double{KindOf(QuantityNamed(quantity)).StoredPerShown};
    return FormatNumber(static_cast<float>(shown), NumberFormat::ReadOut) + GetUnit(quantity, degreeSign);
}

static std::string AxisReadOut(const std::string& quantity, double value, const std::string& degreeSign)
{
    return quantity + ' ' + ValueText(quantity, value, degreeSign);
}

std::string XReadOut(const ChartView& view, double xPosition)
{
    return AxisReadOut(view.Chart.XAxisName, XMapping(view).Value(xPosition), view.DegreeSign);
}

std::string YReadOut(const ChartView& view, double yPosition)
{
    return AxisReadOut(view.Chart.YAxisName, YMapping(view).Value(yPosition), view.DegreeSign);
}

/// The line's Y position at an X position, or nothing beside its points.
static std::optional<double> YPositionAt(const ChartRecord& line, double xPosition)
{
    const auto next = std::ranges::lower_bound(line.XPos, static_cast<float>(xPosition));
    if (next == line.XPos.end() || (next == line.XPos.begin() && *next > static_cast<float>(xPosition)))
    {
        return std::nullopt;
    }
    const auto k = static_cast<std::size_t>(next - line.XPos.begin());
    if (k == 0)
    {
        return line.YPos[0];
    }
    const double share = (xPosition - line.XPos[k - 1]) / (line.XPos[k] - line.XPos[k - 1]);
    return line.YPos[k - 1] + share * (line.YPos[k] - line.YPos[k - 1]);
}

std::string LineReadOut(const ChartView& view, const ChartRecord& line, double xPosition)
{
    const AxisMapping mapping = YMapping(view);
    // A line of zeros has no place on a logarithmic axis.
    const bool drawable = mapping.HasExtent() && XMapping(view).HasExtent() &&
                          (YAxisKind(view.Chart) == AxisKind::Linear || line.YData.back() > 0);
    const auto position = drawable ? YPositionAt(line, xPosition) : std::nullopt;
    return position ? ValueText(view.Chart.YAxisName, mapping.Value(*position), view.DegreeSign) : "-";
}
