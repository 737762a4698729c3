#include "chart/layout/FittingLayout.h"

#include "chart/layout/FittingAxis.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

/// Distances in text sizes: around the chart, of labels from the axes, of the title from the Y labels, and
/// the height of cursor tags.
static constexpr double edge = 0.3;
static constexpr double xLabelDistance = 0.55;
static constexpr double yLabelDistance = 0.45;
static constexpr double titleDistance = 0.5;
static constexpr double tagRow = 1.7;
/// Right of the plot, in badge radii: a badge beyond the end of a line, and a little more.
static constexpr double badgeColumn = 2.9;

namespace
{

class FittingLayouter
{
public:
    FittingLayouter(const ChartView& chartView, double roomWidth, double roomHeight,
                    const TextRuler& textRuler)
        : view(chartView)
        , width(roomWidth)
        , height(roomHeight)
        , ruler(textRuler)
        , size(textRuler.TextSize())
    {
    }

    FittingLayout LayOut()
    {
        const double noteRow = NoteOf(view).empty() ? 0 : ruler.LineHeight();
        layout.Plot.Top = edge * size + noteRow + tagRow * size;
        const double below = (xLabelDistance + edge) * size + 2 * ruler.LineHeight();
        layout.Plot.Height = std::max(1.0, height - layout.Plot.Top - below);
        const auto yAxis = FitYAxis(view, layout.Plot.Height, ruler);

        layout.Plot.Left =
            edge * size + ruler.LineHeight() + (titleDistance + yLabelDistance) * size + WidestOf(yAxis);
        layout.Plot.Width = std::max(1.0, width - layout.Plot.Left - badgeColumn * badgeRadius * size);
        const auto xAxis = FitXAxis(view, layout.Plot.Width, ruler);

        layout.Scale = ScaleOf(layout.Plot);
        AddLines(xAxis, yAxis);
        AddLabels(xAxis, yAxis);
        AddTitles(xAxis, yAxis);
        return std::move(layout);
    }

private:
    double WidestOf(const FittingAxis& axis) const
    {
        double widest = 0;
        for (const auto& tick : axis.Ticks)
        {
            widest = std::max(widest, ruler.WidthOf(tick.Text));
        }
        return widest;
    }

    UserScale ScaleOf(const Box& plot) const
    {
        const double perX = 100 / plot.Width;
        const double perY = 100 / plot.Height;
        return {-plot.Left * perX, 100 + plot.Top * perY, width * perX, -height * perY};
    }

    /// User coordinates of a place in pixels.
    double UserX(double x) const { return layout.Scale.ScaleLeft + x * layout.Scale.ScaleWidth / width; }
    double UserY(double y) const { return layout.Scale.ScaleTop + y * layout.Scale.ScaleHeight / height; }

    /// Light lines first, so that dark ones stay whole where they cross.
    void AddLines(const FittingAxis& xAxis, const FittingAxis& yAxis)
    {
        auto& lines = layout.Axes.Lines;
        std::ranges::transform(xAxis.Grid, std::back_inserter(lines),
                               [](const auto& line) {
                                   return ChartAxes::Line{true, line};
                               });
        std::ranges::transform(yAxis.Grid, std::back_inserter(lines),
                               [](const auto& line) {
                                   return ChartAxes::Line{false, line};
                               });
        std::ranges::stable_sort(lines, std::ranges::greater(),
                                 [](const auto& line) { return line.Grid.Color.Red; });
    }

    void AddText(double left, double top, const std::string& text, bool upwards = false)
    {
        layout.Axes.Texts.push_back({{UserX(left), UserY(top), text}, upwards});
    }

    void AddLabels(const FittingAxis& xAxis, const FittingAxis& yAxis)
    {
        const auto& plot = layout.Plot;
        const double bottom = plot.Top + plot.Height;
        for (const auto& [at, text] : xAxis.Ticks)
        {
            const double textWidth = ruler.WidthOf(text);
            const double left = plot.Left + at / 100 * plot.Width - textWidth / 2;
            AddText(std::min(left, width - textWidth), bottom + xLabelDistance * size, text);
        }
        for (const auto& [at, text] : yAxis.Ticks)
        {
            AddText(plot.Left - yLabelDistance * size - ruler.WidthOf(text),
                    bottom - at / 100 * plot.Height - ruler.LineHeight() / 2, text);
        }
    }

    /// The unit alone where a title is longer than the chart is high.
    std::string UpwardsTitle(const std::string& title) const
    {
        return ruler.WidthOf(title) <= height ? title : title.substr(title.rfind('['));
    }

    void AddTitles(const FittingAxis& xAxis, const FittingAxis& yAxis)
    {
        const auto& plot = layout.Plot;
        const double middle = plot.Left + plot.Width / 2;
        AddText(middle - ruler.WidthOf(xAxis.Title) / 2, height - edge * size - ruler.LineHeight(),
                xAxis.Title);
        const auto yTitle = UpwardsTitle(yAxis.Title);
        const double half = ruler.WidthOf(yTitle) / 2;
        AddText(edge * size, std::clamp(plot.Top + plot.Height / 2, half, std::max(half, height - half)),
                yTitle, true);
        if (const auto note = NoteOf(view); !note.empty())
        {
            AddText(plot.Left, edge * size, note);
        }
    }

    const ChartView& view;
    double width;
    double height;
    const TextRuler& ruler;
    double size;
    FittingLayout layout{};
};

} // namespace

FittingLayout LayOutFitting(const ChartView& view, double width, double height, const TextRuler& ruler)
{
    return FittingLayouter(view, width, height, ruler).LayOut();
}
