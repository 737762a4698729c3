#include "chart/layout/ChartSheet.h"

#include "chart/layout/ChartDrawing.h"
#include "chart/layout/PaneText.h"
#include "partdata/OneLine.h"

static constexpr Box chartPlace = {0, 4, chartSurfaceWidth, chartSurfaceHeight};
static constexpr Color paneFrameColor = {184, 184, 184};

/// Pane 0 to 5, one below the other beside the chart.
static Box PaneFrame(int index)
{
    return {377, index * 620 / 15.0 + 7.5, 333, 33};
}

/// The frame of a pane with its caption in the upper edge.
static void DrawPane(int index, SheetSurface& sheet)
{
    const auto frame = PaneFrame(index);
    const auto caption = "No." + std::to_string(index + 1);
    const Box place = {frame.Left + 6, frame.Top - 7, 40, 14};
    sheet.Frame(frame, paneFrameColor);
    sheet.Fill({place.Left - 2, place.Top, sheet.TextWidth(caption) + 4, place.Height}, sheetColor);
    sheet.Text(place, caption, GetPaneColor(index));
}

/// Part number and conditions of a line in its pane.
static void FillPane(int index, const std::string& partNum, const std::string& conditions,
                     SheetSurface& sheet)
{
    const auto frame = PaneFrame(index);
    const auto color = GetPaneColor(index);
    // A pane has room for one line, and a file of a picture for no control characters.
    sheet.Text({frame.Left + 8, frame.Top + 9, 140, 17}, WithoutControls(partNum), color);
    sheet.Text({frame.Left + 152, frame.Top + 9, 177, 17}, conditions, color);
}

void DrawChartSheet(const ChartView& view, std::span<const ChartRecord> lines,
                    std::span<const std::string> partNums, SheetSurface& sheet)
{
    sheet.Fill({0, 0, sheetWidth, sheetHeight}, sheetColor);
    auto& chart = sheet.Chart(chartPlace, chartScale);
    DrawAxes(view, chart);
    DrawCurves(view, lines, chart);

    for (int index = 0; index < MaximumLines; ++index)
    {
        DrawPane(index, sheet);
    }
    int position = 0;
    for (const ChartRecord& line : lines)
    {
        if (BelongsTo(line, view.Chart))
        {
            FillPane(position, partNums[static_cast<std::size_t>(position)], PaneText(line, view.DegreeSign),
                     sheet);
            ++position;
        }
    }
}
