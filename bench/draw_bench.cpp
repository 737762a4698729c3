/// Times the drawing of a chart of six lines beside one raw painting of the same lines, grid and texts.

#include "chart/drawing/ChartDrawing.h"
#include "chart/drawing/PainterSurface.h"

#include <QGuiApplication>
#include <QImage>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>

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

/// Notes everything that a chart draws, in painter coordinates, so that it can be painted again at once.
class Notes : public PainterSurface
{
public:
    using PainterSurface::PainterSurface;

    struct NotedLine
    {
        QLineF Line;
        QColor Color;
    };
    struct NotedCurve
    {
        std::vector<QPointF> Points;
        QColor Color;
    };
    struct NotedText
    {
        QPointF Baseline;
        QString Text;
    };
    std::vector<NotedLine> Lines;
    std::vector<NotedCurve> Curves;
    std::vector<NotedText> Texts;
    NotedText UpwardsText;

    void Line(double x1, double y1, double x2, double y2, const QColor& color) override
    {
        Lines.push_back({QLineF(At(x1, y1), At(x2, y2)), color});
    }
    void Polyline(std::span<const QPointF> points, const QColor& color) override
    {
        NotedCurve curve{{}, color};
        for (const auto& point : points)
        {
            curve.Points.push_back(At(point.x(), point.y()));
        }
        Curves.push_back(std::move(curve));
    }
    void Text(double x, double y, const QString& text, const QColor&) override
    {
        Texts.push_back({At(x, y) + QPointF(0, 10), text});
    }
    void TextUpwards(double x, double y, const QString& text, const QColor&) override
    {
        UpwardsText = {At(x, y), text};
    }

private:
    static QPointF At(double x, double y)
    {
        return {(x - chartScale.ScaleLeft) * chartSurfaceWidth / chartScale.ScaleWidth,
                (y - chartScale.ScaleTop) * chartSurfaceHeight / chartScale.ScaleHeight};
    }
};

static void PaintNotes(const Notes& notes, QPainter& painter, const QFont& font)
{
    painter.fillRect(QRectF(0, 0, chartSurfaceWidth, chartSurfaceHeight), Qt::white);
    painter.setFont(font);
    for (const auto& line : notes.Lines)
    {
        painter.setPen(line.Color);
        painter.drawLine(line.Line);
    }
    painter.setPen(Qt::black);
    for (const auto& text : notes.Texts)
    {
        painter.drawText(text.Baseline, text.Text);
    }
    painter.save();
    painter.translate(notes.UpwardsText.Baseline);
    painter.rotate(-90);
    painter.drawText(QPointF(-35, 10), notes.UpwardsText.Text);
    painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& curve : notes.Curves)
    {
        painter.setPen(QPen(curve.Color, 1.3));
        painter.drawPolyline(curve.Points.data(), static_cast<int>(curve.Points.size()));
    }
}

static QImage Picture(int pixelRatio)
{
    QImage picture(374 * pixelRatio, 244 * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(pixelRatio);
    return picture;
}

static double MicrosecondsOf(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

static double Median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
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
        Notes notes(notingPainter, target, chartScale);
        PlaceCurves(view, lines);
        DrawAxes(view, notes);
        DrawCurves(view, lines, notes);
        notingPainter.end();
        const auto font = ChartFont();

        // The two ways take turns, so that a busy machine slows both.
        std::vector<double> placing, drawing, raw;
        for (int round = 0; round < 500; ++round)
        {
            placing.push_back(MicrosecondsOf([&] { PlaceCurves(view, lines); }));
            drawing.push_back(MicrosecondsOf(
                [&]
                {
                    QPainter painter(&picture);
                    PainterSurface surface(painter, target, chartScale);
                    surface.Clear();
                    DrawAxes(view, surface);
                    DrawCurves(view, lines, surface);
                }));
            raw.push_back(MicrosecondsOf(
                [&]
                {
                    QPainter painter(&picture);
                    PaintNotes(notes, painter, font);
                }));
        }
        const auto drawn = Median(drawing);
        const auto painted = Median(raw);
        std::printf("%d00 %%: place %.0f us, draw %.0f us, raw painting %.0f us, ratio %.2f\n", pixelRatio,
                    Median(placing), drawn, painted, drawn / painted);
    }
    return 0;
}
