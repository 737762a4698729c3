#include "chart/layout/ChartWords.h"

#include "chart/layout/PaneText.h"
#include "chart/layout/ReadOut.h"

#include <array>

/// Where a line's values are told, in parts of the axis.
static constexpr std::array<double, 5> ToldPositions = {0, 25, 50, 75, 100};

std::string AxesInWords(const ChartView& view)
{
    return "X axis: " + XReadOut(view, 0) + " to " + XReadOut(view, 100) + ". Y axis: " + YReadOut(view, 0) +
           " to " + YReadOut(view, 100) + '.';
}

std::string LineInWords(const ChartView& view, const ChartRecord& line, std::size_t number,
                        const std::string& partNum)
{
    std::string values;
    for (const double position : ToldPositions)
    {
        const std::string value = LineReadOut(view, line, position);
        if (value != "-")
        {
            values += (values.empty() ? " " : "; ") + XReadOut(view, position) + ": " + value;
        }
    }
    return "No." + std::to_string(number) + ": " + partNum + ' ' + PaneText(line, view.DegreeSign) + '.' +
           values + (values.empty() ? "" : ".");
}
