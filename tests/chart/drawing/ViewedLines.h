#pragma once

/// Lines of charts that fit their room, for tests of what is drawn.

#include "chart/layout/ChartDrawing.h"
#include "chart/layout/ViewedCurve.h"

#include <cmath>
#include <vector>

/// A chart of lines that fall from different capacitances over the DC bias.
inline ChartView FallingView()
{
    return {{3, "DC Bias Voltage", "Capacitance"}, {25, 2e7F, 0, 0}};
}

/// Lines of that chart, from 0 to 25 V.
inline std::vector<ViewedLine> FallingLines(int count, const std::string& partNumber = "KTS31NB51E106MA01")
{
    std::vector<ViewedLine> lines;
    for (int line = 0; line < count; ++line)
    {
        ViewedLine viewed;
        viewed.Line.ChartType = 3;
        viewed.Line.XAxisName = "DC Bias Voltage";
        viewed.Line.YAxisName = "Capacitance";
        viewed.PartNumber = partNumber;
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            const double x = 25.0 * static_cast<double>(i) / (CurvePoints - 1);
            viewed.Line.XData[i] = static_cast<float>(x);
            viewed.Line.YData[i] = static_cast<float>(1e7 * std::exp(-x / (10 + 5 * line)));
        }
        viewed.Line.XMax = 25;
        viewed.Line.YMax = 2e7F;
        lines.push_back(viewed);
    }
    return lines;
}
