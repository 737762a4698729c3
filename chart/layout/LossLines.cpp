#include "chart/layout/LossLines.h"

#include "calc/Calculate.h"
#include "calc/ChartKinds.h"
#include "calc/Sweep.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <cmath>

static const ChartKind& LossKind()
{
    return *std::ranges::find_if(ChartKinds(), [](const ChartKind& kind)
                                 { return kind.YAxes.front() == Quantity::LossResistance; });
}

bool HasLossLines(const ChartKey& chart)
{
    const ChartKind* kind = FindChartKind(chart.ChartType);
    return kind != nullptr && kind->Needs == LossKind().Needs;
}

static void TakeValuesAway(ChartRecord& line)
{
    line.XData = LogFrequencySweep().XData;
    line.YData.fill(NoValue);
}

static bool HasValues(const ViewedLine& line)
{
    return std::ranges::any_of(line.Line.YData, [](float y) { return !std::isnan(y); });
}

static ChartRecord LossLineOf(const ViewedLine& line, CodeView code)
{
    ChartRecord loss;
    loss.ChartType = NumberOf(LossKind());
    loss.XAxisName = NameOf(Quantity::Frequency);
    loss.YAxisName = NameOf(Quantity::LossResistance);
    loss.PartDataIndex = line.Line.PartDataIndex;
    loss.AmbientTemp = line.Line.AmbientTemp;
    try
    {
        Calculate(line.Part, loss, code);
    }
    catch (const RunTimeError&)
    {
        TakeValuesAway(loss);
    }
    return loss;
}

/// Lines without values have the limits of one that has some, so that they widen no axis.
static void ShareLimits(std::vector<ViewedLine>& lines)
{
    const auto first = std::ranges::find_if(lines, HasValues);
    for (ViewedLine& line : lines)
    {
        if (first != lines.end() && !HasValues(line))
        {
            line.Line.XMax = first->Line.XMax;
            line.Line.XMin = first->Line.XMin;
            line.Line.YMax = first->Line.YMax;
            line.Line.YMin = first->Line.YMin;
        }
    }
}

std::vector<ViewedLine> LossLinesOf(std::vector<ViewedLine> lines, CodeView code)
{
    for (ViewedLine& line : lines)
    {
        line.Line = LossLineOf(line, code);
    }
    ShareLimits(lines);
    return lines;
}
