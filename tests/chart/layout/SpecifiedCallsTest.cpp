/// What reaches the surface of chart windows, pages and pictures, call for call.

#include "chart/layout/ChartDrawing.h"
#include "tests/Golden.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <initializer_list>
#include <vector>

namespace
{

/// Writes each call as a line of text. A character is 2 units wide, a line of text 6 units high.
class WritingSurface : public ChartSurface
{
public:
    explicit WritingSurface(SurfaceKind surfaceKind)
        : kind(surfaceKind)
    {
    }

    std::string Calls;

    void Line(double x1, double y1, double x2, double y2, const Color& color) override
    {
        Write("line", {x1, y1, x2, y2}, color);
    }
    void SetCurveDashes(int dashes) override { Calls += "dashes " + std::to_string(dashes) + '\n'; }
    void Polyline(std::span<const Point> points, const Color& color) override
    {
        Write("curve of " + std::to_string(points.size()),
              {points.front().X, points.front().Y, points.back().X, points.back().Y}, color);
    }
    void Text(double x, double y, std::string_view text, const Color& color) override
    {
        Write("text " + std::string(text), {x, y}, color);
    }
    void CondensedText(double x, double y, double across, std::string_view text, const Color& color) override
    {
        Write("condensed " + std::string(text), {x, y, across}, color);
    }
    void TextUpwards(double x, double y, std::string_view text, const Color& color) override
    {
        Write("upwards " + std::string(text), {x, y}, color);
    }
    double TextWidth(std::string_view text) const override { return 2.0 * static_cast<double>(text.size()); }
    double TextHeight() const override { return 6; }
    double UpwardsTextWidth() const override { return 4; }
    SurfaceKind Kind() const override { return kind; }
    const UserScale& Scale() const override { return chartScale; }
    Color ButtonTextColor() const override { return {20, 30, 90}; }

private:
    void Write(const std::string& what, std::initializer_list<double> numbers, const Color& color)
    {
        Calls += what;
        for (const double number : numbers)
        {
            std::array<char, 32> text{};
            std::snprintf(text.data(), text.size(), " %.3f", number + 0.0);
            Calls += text.data();
        }
        Calls += " " + std::to_string(color.Red) + ',' + std::to_string(color.Green) + ',' +
                 std::to_string(color.Blue) + '\n';
    }

    SurfaceKind kind;
};

/// Two lines over an X axis, the second of which leaves the range.
std::vector<ChartRecord> TwoLines(const ChartKey& chart, float xFrom, float xTo, float yTo)
{
    std::vector<ChartRecord> lines(2);
    for (int line = 0; line < 2; ++line)
    {
        auto& record = lines[static_cast<std::size_t>(line)];
        record.ChartType = chart.ChartType;
        record.XAxisName = chart.XAxisName;
        record.YAxisName = chart.YAxisName;
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            const float share = static_cast<float>(i) / (CurvePoints - 1);
            record.XData[i] = xFrom + share * (xTo - xFrom);
            record.YData[i] = yTo * (0.25F + share * (line == 0 ? 0.5F : 1.5F));
        }
    }
    return lines;
}

std::string CallsOf(const ChartView& view, SurfaceKind kind)
{
    WritingSurface surface(kind);
    auto lines = TwoLines(view.Chart, view.Range.XMin, view.Range.XMax, view.Range.YMax);
    DrawAxes(view, surface);
    PlaceCurves(view, lines);
    DrawCurves(view, lines, surface);
    return "== " + view.Chart.XAxisName + ", " + view.Chart.YAxisName + '\n' + surface.Calls;
}

TEST(SpecifiedDrawing, MakesTheSameCallsAsEver)
{
    const std::vector<ChartView> views = {
        {{0, "Current", "Temperature Rise"}, {5, 100, 0, 0}},
        {{0, "Frequency", "Temperature Rise"}, {1e6F, 80, 1e4F, 0}},
        {{1, "Frequency", "Current"}, {1e6F, 10, 1e4F, 0.01F}},
        {{2, "Temperature", "Capacitance Change"}, {125, 20, -75, -80}},
        {{3, "DC Bias Voltage", "Capacitance"}, {25, 1000, 0, 0}, true},
        {{3, "DC Bias Voltage", "Capacitance"}, {0, 1000, 0, 0}},
    };
    std::string calls;
    for (const auto kind : {SurfaceKind::Screen, SurfaceKind::MonochromePrinter})
    {
        for (const auto& view : views)
        {
            calls += CallsOf(view, kind);
        }
    }
    EXPECT_EQ(GoldenDifference("chart/layout/golden/specified-calls.txt", calls), "");
}

} // namespace
