#include "chart/drawing/ChartPage.h"

#include "calc/ChartKinds.h"
#include "calc/ChartNames.h"
#include "calc/ConditionLines.h"
#include "calc/NumberText.h"
#include "chart/drawing/FittedText.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/PaneText.h"

#include <algorithm>
#include <array>

namespace
{

// All positions are in twips.
constexpr QSizeF layoutSize(11200, 10800);
constexpr double twipsPerPixel = 15;

constexpr double titleTop = 150;
constexpr double captionTop = 500;
/// The chart is enlarged as a whole, so that its texts and lines are in the proportion of a chart window.
constexpr double chartEnlargement = 1.5;
constexpr QRectF chartRect(1300, 1250, 5600 * chartEnlargement, 6750);

constexpr double tableLeft = 200;
constexpr double tableRight = 11000;
constexpr double headingTop = 8450;
constexpr double headingLineHeight = 210;
constexpr double firstRowTop = 8950;
constexpr double rowHeight = 300;
/// Between the texts of neighbouring columns, at least.
constexpr double columnGap = 80;

enum Column
{
    NumberColumn,
    LineColumn,
    PartColumn,
    BiasColumn,
    ResistanceColumn,
    AmbientColumn,
    ParameterColumn,
    FrequencyColumn,
    LargestColumn,
    Columns
};

/// Left ends of the columns, and the right end of the last.
constexpr std::array<double, Columns + 1> columnLeft = {tableLeft, 600,  1480, 3400,  4350,
                                                        5700,      7050, 9150, 10100, tableRight};

/// A heading on one or two lines.
struct Heading
{
    QString Upper;
    QString Lower;
};

std::array<Heading, Columns> Headings(const ChartView& view)
{
    const auto degree = '[' + QString::fromStdString(view.DegreeSign);
    const auto yUnit = QString::fromStdString(GetUnit(view.Chart.YAxisName, view.DegreeSign));
    return {{{{}, QStringLiteral("No.")},
             {{}, QStringLiteral("Line")},
             {{}, QStringLiteral("Halvex Part Number")},
             {QStringLiteral("DC Bias"), QStringLiteral("Voltage[V]")},
             {QStringLiteral("Heat"), "Resistance" + degree + "C/W]"},
             {QStringLiteral("Ambient"), "Temperature" + degree + "C]"},
             {{}, QStringLiteral("Parameter")},
             {QStringLiteral("Frequency"), QStringLiteral("[MHz]")},
             {{}, "Max " + yUnit}}};
}

/// The chart's own lines with their points placed for the page.
std::vector<ChartRecord> PlacedLines(const ChartPage& page)
{
    std::vector<ChartRecord> lines;
    std::ranges::copy_if(page.Lines, std::back_inserter(lines),
                         [&](const ChartRecord& line) { return KeyOf(line) == page.View.Chart; });
    PlaceCurves(page.View, lines);
    return lines;
}

/// "100" kHz is "0.1" MHz: the typed number divided, not the single that stands for it.
QString Megahertz(const std::string& kilohertz)
{
    const auto value = QString::fromStdString(kilohertz).toDouble() / 1000;
    return QString::fromStdString(NumberText(static_cast<float>(value)));
}

std::array<QString, Columns> RowTexts(const ChartPage& page, const ChartRecord& line, int position)
{
    std::array<QString, Columns> texts;
    texts[NumberColumn] = QString::number(position + 1);
    texts[PartColumn] = page.PartNumber(line.PartDataIndex);
    for (const auto& condition : ConditionLines(line))
    {
        const auto value = QString::fromStdString(condition.Value);
        switch (condition.Id)
        {
        case Condition::DCBias:
            texts[BiasColumn] = value;
            break;
        case Condition::HeatResistance:
            texts[ResistanceColumn] = value;
            break;
        case Condition::AmbientTemperature:
            texts[AmbientColumn] = value;
            break;
        case Condition::Frequency:
            texts[FrequencyColumn] = Megahertz(condition.Value);
            break;
        default:
            // A condition without a column of its own is told with its name and unit.
            texts[ParameterColumn] +=
                (texts[ParameterColumn].isEmpty() ? "" : ", ") +
                QString::fromStdString(condition.Name + ' ' + condition.Value + condition.Unit);
        }
    }
    if (ChartKindOf(line.ChartType).TellsLargestValue)
    {
        texts[LargestColumn] = QString::fromStdString(LargestValueText(line.ExtraValue));
    }
    return texts;
}

/// Writes texts by their upper edge.
class TextWriter
{
public:
    TextWriter(QPainter& pagePainter, const QFont& font)
        : painter(pagePainter)
        , metrics(font, pagePainter.device())
    {
        painter.setFont(font);
        painter.setPen(QtColor(frameColor));
    }

    void Write(double left, double top, const QString& text, double right)
    {
        FittedText(text, right - left, metrics).Draw(painter, {left, top + metrics.ascent()});
    }

    void WriteCell(Column column, double top, const QString& text)
    {
        Write(columnLeft[column], top, text, columnLeft[column + 1] - columnGap);
    }

private:
    QPainter& painter;
    QFontMetricsF metrics;
};

void DrawChart(const ChartPage& page, std::span<const ChartRecord> lines, SurfaceKind kind, QPainter& painter)
{
    PainterSurface surface(painter, chartRect, chartScale, kind, twipsPerPixel * chartEnlargement);
    DrawAxes(page.View, surface);
    DrawCurves(page.View, lines, surface);
}

/// The pieces of the lines in the table, and its rules.
void DrawTableLines(std::size_t lines, SurfaceKind kind, QPainter& painter)
{
    const QRectF layout({0, 0}, layoutSize);
    PainterSurface surface(painter, layout, {0, 0, layout.width(), layout.height()}, kind,
                           twipsPerPixel * chartEnlargement);
    for (std::size_t i = 0; i < lines; ++i)
    {
        const auto middle = firstRowTop + rowHeight * static_cast<double>(i) + 100;
        const std::array<Point, 2> piece = {
            {{columnLeft[LineColumn], middle}, {columnLeft[LineColumn + 1] - 2 * columnGap, middle}}};
        const auto look = LookOfCurve(surface, static_cast<int>(i));
        surface.SetCurveDashes(look.Dashes);
        surface.Polyline(piece, look.Color);
    }
    for (const auto y : {headingTop - 40, firstRowTop - 50, firstRowTop + MaximumLines * rowHeight - 60})
    {
        surface.Line(tableLeft, y, tableRight, y, frameColor);
    }
}

void DrawTableTexts(const ChartPage& page, std::span<const ChartRecord> lines, QPainter& painter)
{
    TextWriter writer(painter, ChartFont(twipsPerPixel));
    const auto headings = Headings(page.View);
    for (int i = 0; i < Columns; ++i)
    {
        const auto column = static_cast<Column>(i);
        const auto& heading = headings[static_cast<std::size_t>(i)];
        writer.WriteCell(column, headingTop, heading.Upper);
        writer.WriteCell(column, headingTop + headingLineHeight, heading.Lower);
    }
    for (std::size_t row = 0; row < lines.size(); ++row)
    {
        const auto texts = RowTexts(page, lines[row], static_cast<int>(row));
        for (int i = 0; i < Columns; ++i)
        {
            writer.WriteCell(static_cast<Column>(i), firstRowTop + rowHeight * static_cast<double>(row),
                             texts[static_cast<std::size_t>(i)]);
        }
    }
}

} // namespace

void DrawChartPage(const ChartPage& page, const PageArea& area, SurfaceKind kind, QPainter& painter)
{
    const auto lines = PlacedLines(page);
    const TwipsScope twips(painter, area);
    const auto room = twips.Extent();
    const auto fit = std::min({1.0, room.width() / layoutSize.width(), room.height() / layoutSize.height()});
    painter.scale(fit, fit);

    TextWriter(painter, ChartFont(twipsPerPixel * 1.25)).Write(tableLeft, titleTop, page.Title, tableRight);
    TextWriter(painter, ChartFont(twipsPerPixel * 1.5))
        .Write(tableLeft, captionTop, QString::fromStdString(ChartCaption(page.View.Chart)), tableRight);
    DrawChart(page, lines, kind, painter);
    DrawTableLines(lines.size(), kind, painter);
    DrawTableTexts(page, lines, painter);
}
