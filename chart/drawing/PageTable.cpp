#include "chart/drawing/PageTable.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "calc/NumberText.h"
#include "chart/drawing/FittedText.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/ChartDrawing.h"
#include "chart/layout/PaneText.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace
{

constexpr double headingTop = 8660;
constexpr double firstRowTop = 8950;
constexpr double rowHeight = 300;
constexpr std::array<double, 3> ruleHeights = {headingTop - 60, firstRowTop - 50,
                                               firstRowTop + MaximumLines* rowHeight - 60};
/// Between the texts of neighbouring columns, at least.
constexpr double columnGap = 110;
/// Length of the piece of a line that the table shows.
constexpr double linePiece = 720;
/// Curves are drawn as thick as in the chart above.
constexpr double lineEnlargement = 1.5;

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

using Cells = std::array<QString, Columns>;
using Widths = std::array<double, Columns>;

Cells Headings(const ChartView& view)
{
    const auto degree = '[' + QString::fromStdString(view.DegreeSign);
    const auto yUnit = QString::fromStdString(GetUnit(view.Chart.YAxisName, view.DegreeSign));
    return {QStringLiteral("No."),
            QStringLiteral("Line"),
            QStringLiteral("Halvex Part Number"),
            QStringLiteral("DC Bias Voltage[V]"),
            "Heat Resistance" + degree + "C/W]",
            "Ambient Temperature" + degree + "C]",
            QStringLiteral("Parameter"),
            QStringLiteral("Frequency[MHz]"),
            "Max " + yUnit};
}

/// "100" kHz is "0.1" MHz: the typed number divided, not the single that stands for it.
QString Megahertz(const std::string& kilohertz)
{
    const auto value = QString::fromStdString(kilohertz).toDouble() / 1000;
    return QString::fromStdString(NumberText(static_cast<float>(value)));
}

Cells RowTexts(const ChartRecord& line, const QString& partNum, std::size_t position)
{
    Cells texts;
    texts[NumberColumn] = QString::number(position + 1);
    texts[PartColumn] = partNum;
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

std::vector<Cells> Rows(std::span<const ChartRecord> lines, std::span<const QString> partNums)
{
    std::vector<Cells> rows;
    rows.reserve(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        rows.push_back(RowTexts(lines[i], partNums[i], i));
    }
    return rows;
}

/// The widths of the columns' longest entries; 0 for a column without any.
Widths WidthsOfEntries(const std::vector<Cells>& rows, const QFontMetricsF& metrics)
{
    Widths widths{};
    widths[LineColumn] = linePiece;
    for (const auto& row : rows)
    {
        for (std::size_t i = 0; i < Columns; ++i)
        {
            widths[i] = std::max(widths[i], metrics.horizontalAdvance(row[i]));
        }
    }
    return widths;
}

/// The widths of all columns, which with the gaps between them fill the table.
Widths ColumnWidths(const Cells& headings, const std::vector<Cells>& rows, const QFontMetricsF& metrics)
{
    const auto entries = WidthsOfEntries(rows, metrics);
    Widths widths{};
    std::ranges::transform(headings, entries, widths.begin(),
                           [&](const QString& heading, double entry)
                           { return std::max(metrics.horizontalAdvance(heading), entry); });
    // A piece of a line cannot be condensed: its dashes would not be told apart.
    const double fixed = widths[LineColumn];
    const double needed = std::accumulate(widths.begin(), widths.end(), -fixed);
    const double room = pageTableRight - pageTableLeft - columnGap * (Columns - 1) - fixed;
    const auto filled = static_cast<double>(Columns - std::ranges::count(entries, 0.0));
    for (std::size_t i = 0; i < Columns; ++i)
    {
        const double spare = entries[i] > 0 ? (room - needed) / filled : 0;
        widths[i] = room > needed ? widths[i] + spare : widths[i] * room / needed;
    }
    widths[LineColumn] = std::max(widths[LineColumn], fixed);
    return widths;
}

/// The table on its page.
class TableWriter
{
public:
    TableWriter(const Cells& headings, const std::vector<Cells>& rows, QPainter& pagePainter)
        : painter(pagePainter)
        , metrics(ChartFont(twipsPerPixel), pagePainter.device())
        , widths(ColumnWidths(headings, rows, metrics))
    {
        double left = pageTableLeft;
        for (std::size_t i = 0; i < Columns; ++i)
        {
            lefts[i] = left;
            left += widths[i] + columnGap;
        }
        painter.setFont(ChartFont(twipsPerPixel));
        painter.setPen(QtColor(frameColor));
        WriteRow(headingTop, headings);
        for (std::size_t i = 0; i < rows.size(); ++i)
        {
            WriteRow(TopOf(i), rows[i]);
        }
    }

    void DrawLines(std::size_t count, SurfaceKind kind)
    {
        PainterSurface surface(painter, QRectF(0, 0, 1, 1), {0, 0, 1, 1}, kind,
                               twipsPerPixel * lineEnlargement);
        const double right = lefts[LineColumn] + linePiece;
        for (std::size_t i = 0; i < count; ++i)
        {
            const double middle = TopOf(i) + 100;
            const std::array<Point, 2> piece = {{{lefts[LineColumn], middle}, {right, middle}}};
            const auto look = LookOfCurve(surface, static_cast<int>(i));
            surface.SetCurveDashes(look.Dashes);
            surface.Polyline(piece, look.Color);
        }
        for (const auto y : ruleHeights)
        {
            surface.Line(pageTableLeft, y, pageTableRight, y, frameColor);
        }
    }

private:
    static double TopOf(std::size_t row) { return firstRowTop + rowHeight * static_cast<double>(row); }

    void WriteRow(double top, const Cells& texts)
    {
        for (std::size_t i = 0; i < Columns; ++i)
        {
            FittedText(texts[i], widths[i], metrics).Draw(painter, {lefts[i], top + metrics.ascent()});
        }
    }

    QPainter& painter;
    QFontMetricsF metrics;
    Widths widths;
    Widths lefts{};
};

} // namespace

void DrawPageTable(const ChartView& view, std::span<const ChartRecord> lines,
                   std::span<const QString> partNums, SurfaceKind kind, QPainter& painter)
{
    TableWriter(Headings(view), Rows(lines, partNums), painter).DrawLines(lines.size(), kind);
}
