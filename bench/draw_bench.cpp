/// Times the drawing of a chart of six lines beside one raw painting of the same lines, grid and texts.

#include "bench/NotedChart.h"
#include "bench/Turns.h"
#include "chart/layout/ChartDrawing.h"

#include <QGuiApplication>
#include <QImage>

#include <cmath>
#include <string>

static const ChartKey chart = {1, "Frequency", "Current"};
static constexpr AxisRange range = {1e6F, 10, 1e4F, 0.01F};

/// Six allowable currents that rise with the frequency.
static std::vector<ChartRecord> SixLines()
{
    std::vector<ChartRecord> lines(6);
    for (std::size_t position = 0; position < lines.size(); ++position)
    {
        auto& line = lines[position];
        line.ChartType = chart.ChartType;
        line.XAxisName = chart.XAxisName;
        line.YAxisName = chart.YAxisName;
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            const auto u = static_cast<double>(i) / (CurvePoints - 1);
            const auto share = static_cast<double>(position + 1) / 6;
            line.XData[i] = static_cast<float>(std::pow(10.0, 4 + 2 * u));
            line.YData[i] = static_cast<float>(share * (0.1 + 2 * u + 0.3 * std::sin(9 * u)));
        }
    }
    return lines;
}

static QImage Picture(int pixelRatio)
{
    QImage picture(374 * pixelRatio, 244 * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(pixelRatio);
    return picture;
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    auto lines = SixLines();
    const ChartView view = {chart, range};
    const QRectF target(0, 0, chartSurfaceWidth, chartSurfaceHeight);
    for (const int pixelRatio : {1, 2})
    {
        auto picture = Picture(pixelRatio);
        QPainter notingPainter(&picture);
        NotedChart notes(notingPainter, target, chartScale);
        PlaceCurves(view, lines);
        DrawAxes(view, notes);
        DrawCurves(view, lines, notes);
        notingPainter.end();
        const auto font = ChartFont();

        CompareInTurns(
            "draw-" + std::to_string(pixelRatio) + "00-percent", 500,
            [&](int)
            {
                return MicrosecondsOf(
                    [&]
                    {
                        QPainter painter(&picture);
                        PainterSurface surface(painter, target, chartScale);
                        surface.Clear();
                        DrawAxes(view, surface);
                        DrawCurves(view, lines, surface);
                    });
            },
            [&](int)
            {
                return MicrosecondsOf(
                    [&]
                    {
                        QPainter painter(&picture);
                        PaintNoted(notes, painter, font);
                    });
            });
    }
    return 0;
}
