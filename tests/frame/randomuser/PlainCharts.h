#pragma once

/// What chart windows and store are to hold, told plainly: lines, windows, ranges and panes.

#include "chart/layout/ChartView.h"
#include "tests/calc/PlainCurves.h"

#include <QString>

#include <vector>

/// A plotted line: what was asked for, and its curve.
struct PlainLine
{
    ChartRecord Asked;
    PlainCurve Curve;
};

/// True when a line is of the same chart, part and conditions.
bool IsSame(const ChartRecord& a, const ChartRecord& b);

/// "Allowable power(Frequency,Current)"
QString CaptionOf(const ChartRecord& line);

/// An open chart window.
struct PlainWindow
{
    QString Caption;
    int Left = 0;
    int Top = 0;
    bool Minimised = false;
    /// The ranges in force.
    AxisRange Range{};
};

/// The default limits that a line's points ask for.
AxisRange PlainLimits(const ChartRecord& line, CodeView view);

/// Conditions in a pane, for a line of the store.
QString PlainPane(const ChartRecord& line);

/// The unit of an axis quantity.
QString PlainUnit(const std::string& quantity, const QString& degreeSign);

/// Left edge of a chart window that nobody has dragged: 3000 twips.
inline constexpr int ChartLeft = 200;

struct PlainCharts
{
    std::vector<PlainLine> Lines;
    /// In the order of opening.
    std::vector<PlainWindow> Windows;

    int LinesOf(const QString& caption) const;
    bool Holds(const ChartRecord& asked) const;
    PlainWindow* Window(const QString& caption);

    /// Adds a line; `shown` is the union of the default limits of its chart's lines.
    void Plot(const PlainLine& line, const AxisRange& shown);
    void Close(const QString& caption);
    void CloseAll();
};

/// The least range that covers two.
AxisRange Union(const AxisRange& a, const AxisRange& b);

/// The values that a range of a chart may have, as the dialog's message names them; frequencies in kHz.
struct PlainPermitted
{
    float Lowest;
    float Highest;
};

PlainPermitted PlainPermittedX(const ChartRecord& line, const AxisRange& defaults);
PlainPermitted PlainPermittedY(const ChartRecord& line, const AxisRange& defaults);
