#pragma once

/// A chart with its view told in the plainest way, for tests that do anything in any order.

#include "chart/frmChartView.h"

#include <optional>
#include <vector>

/// Where the cursors stand: what is pinned, in order, and what follows.
struct PlainCursors
{
    std::vector<double> Pinned;
    double Free = 0;

    double Moving() const { return Pinned.size() == 2 ? Pinned.back() : Free; }
    double A() const { return Pinned.empty() ? Free : Pinned.front(); }
    std::optional<double> B() const { return Pinned.empty() ? std::nullopt : std::optional(Moving()); }

    void Follow(double x);
    void MoveTo(double x);
    void Pin(double x);
    void Jump(double x);
    bool Unpin();
};

/// What a view is to show.
struct PlainView
{
    PlainCursors Cursors;
    std::optional<int> Chosen;
    AxisRange Range{};
    bool Dashed = false;
    /// How the values sort the rows: 0 not at all, 1 up, 2 down.
    int Order = 0;
};

/// The range that covers the lines, looked up line by line.
AxisRange WholeRange(const std::vector<ViewedLine>& lines);

/// The X of a line so many points away, counted one by one.
double PointsAway(const ChartRecord& line, double from, int points);

/// What differs between the view and what it is to show; empty where nothing does.
QString DifferenceOf(const frmChartView& view, const PlainView& plain, const std::vector<ChartRecord>& lines);
