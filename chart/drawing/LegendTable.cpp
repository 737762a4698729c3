#include "chart/drawing/LegendTable.h"

#include "chart/drawing/FontRuler.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/FittingLayout.h"
#include "partdata/OneLine.h"

#include <algorithm>
#include <numeric>
#include <utility>

/// In text sizes: blank beside the texts of a cell, height of a row, length of a chip's line and the blank
/// around line and badge.
static constexpr double blank = 0.5;
static constexpr double rowHeight = 1.7;
static constexpr double chipLine = 1.9;
static constexpr double chipBlank = 0.2;
/// Texts are condensed to this share of their width, and set smaller where that is not enough.
static constexpr double mostCondensed = 0.8;
static constexpr Color headingGround = {240, 240, 240};
static constexpr Color ruleColor = {178, 178, 178};

namespace
{

class LegendPainter
{
public:
    LegendPainter(LegendTable legendTable, const QRectF& legendPlace, const LineMarks& lineMarks,
                  QPainter& legendPainter)
        : table(std::move(legendTable))
        , place(legendPlace)
        , marks(lineMarks)
        , painter(legendPainter)
        , rowPixels(rowHeight * marks.TextSize)
    {
    }

    void Draw()
    {
        Fit();
        DrawGround();
        DrawHeadings();
        for (std::size_t row = 0; row < table.Rows.size(); ++row)
        {
            DrawRow(row);
        }
    }

private:
    double ChipColumn() const { return LegendChipSize(marks.TextSize).width() + 2 * blank * marks.TextSize; }
    QString HeadingOf(const LegendTable::Column& column) const
    {
        return shortHeadings && !column.Short.isEmpty() ? column.Short : column.Heading;
    }

    static double WidthOf(const FontRuler& ruler, const QString& text)
    {
        return ruler.WidthOf(text.toStdString());
    }

    /// Widths that the texts of a size need.
    void Measure(double textSize)
    {
        const FontRuler ruler(textSize);
        widths.clear();
        for (std::size_t i = 0; i < table.Columns.size(); ++i)
        {
            double width = WidthOf(ruler, HeadingOf(table.Columns[i]));
            for (const auto& row : table.Rows)
            {
                width = std::max(width, WidthOf(ruler, row.Texts.at(i)));
            }
            widths.push_back(width + 2 * blank * textSize);
        }
    }

    double Needed() const { return std::accumulate(widths.begin(), widths.end(), 0.0); }

    /// Chooses headings, text size and how far texts are condensed; what room is left widens the last column.
    void Fit()
    {
        const double room = place.width() - ChipColumn();
        textSize = marks.TextSize;
        Measure(textSize);
        if (Needed() > room)
        {
            shortHeadings = true;
            Measure(textSize);
        }
        while (Needed() * mostCondensed > room && textSize > 1)
        {
            Measure(--textSize);
        }
        across = std::min(1.0, room / Needed());
        for (double& width : widths)
        {
            width *= across;
        }
        if (!widths.empty())
        {
            widths.back() += room - Needed();
        }
    }

    void DrawGround()
    {
        painter.fillRect(
            QRectF(place.topLeft(), QSizeF(place.width(), LegendHeight(table.Rows.size(), marks.TextSize))),
            Qt::white);
        painter.fillRect(QRectF(place.topLeft(), QSizeF(place.width(), rowPixels)), QtColor(headingGround));
        // Lines reach half their width over their ends.
        const double end = marks.Pixel() / 2;
        PainterSurface rules(painter, {0, 0, 1, 1}, {0, 0, 1, 1}, marks.Kind, marks.Pixel());
        for (std::size_t row = 0; row <= table.Rows.size(); ++row)
        {
            const double y = place.top() + static_cast<double>(row + 1) * rowPixels;
            rules.Line(place.left() + end, y, place.right() - end, y, ruleColor);
        }
    }

    /// A text in its cell, as condensed as all are.
    void DrawText(const QString& text, double left, double width, double top, bool rightAligned)
    {
        painter.save();
        painter.setPen(QtColor(frameColor));
        painter.translate(left, top);
        painter.scale(across, 1);
        const double gap = blank * textSize;
        painter.drawText(
            QRectF(gap, 0, width / across - 2 * gap, rowPixels),
            Qt::AlignVCenter | Qt::TextDontClip | (rightAligned ? Qt::AlignRight : Qt::AlignLeft), text);
        painter.restore();
    }

    void DrawHeadings()
    {
        painter.setFont(ChartFont(textSize / chartFontSize));
        double left = place.left();
        DrawText(QStringLiteral("No."), left, ChipColumn(), place.top(), false);
        left += ChipColumn();
        for (std::size_t i = 0; i < table.Columns.size(); ++i)
        {
            DrawText(HeadingOf(table.Columns[i]), left, widths[i], place.top(),
                     table.Columns[i].RightAligned);
            left += widths[i];
        }
    }

    void DrawRow(std::size_t row)
    {
        const double top = place.top() + static_cast<double>(row + 1) * rowPixels;
        DrawLegendChip(table.Rows[row].Line, {place.left(), top, ChipColumn(), rowPixels}, marks, painter);
        painter.setFont(ChartFont(textSize / chartFontSize));
        double left = place.left() + ChipColumn();
        for (std::size_t i = 0; i < table.Columns.size(); ++i)
        {
            DrawText(table.Rows[row].Texts[i], left, widths[i], top, table.Columns[i].RightAligned);
            left += widths[i];
        }
    }

    LegendTable table;
    QRectF place;
    const LineMarks& marks;
    QPainter& painter;
    double rowPixels;
    bool shortHeadings = false;
    double textSize = 0;
    double across = 1;
    std::vector<double> widths;
};

} // namespace

/// A row has room for one line, and a file of a picture for no control characters.
static LegendTable WithoutControls(LegendTable table)
{
    for (auto& row : table.Rows)
    {
        for (QString& text : row.Texts)
        {
            text = QString::fromStdString(WithoutControls(text.toStdString()));
        }
    }
    return table;
}

double LegendHeight(std::size_t rows, double textSize)
{
    return static_cast<double>(rows + 1) * rowHeight * textSize;
}

void DrawLegend(const LegendTable& table, const QRectF& place, const LineMarks& marks, QPainter& painter)
{
    painter.save();
    LegendPainter(WithoutControls(table), place, marks, painter).Draw();
    painter.restore();
}

QSizeF LegendChipSize(double textSize)
{
    return {(chipLine + 2 * badgeRadius + 2 * chipBlank) * textSize,
            (2 * badgeRadius + chipBlank) * textSize};
}

void DrawLegendChip(int line, const QRectF& place, const LineMarks& marks, QPainter& painter)
{
    painter.save();
    QRectF chip({0, 0}, LegendChipSize(marks.TextSize));
    chip.moveCenter(place.center());
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(chip, chip.height() / 4, chip.height() / 4);

    const double radius = badgeRadius * marks.TextSize;
    const QPointF center(chip.right() - chipBlank * marks.TextSize - radius, chip.center().y());
    marks.DrawPiece(line, {chip.left() + chipBlank * marks.TextSize, center.y()},
                    {center.x() - radius, center.y()}, painter);
    marks.DrawBadge(line, center, painter);
    painter.restore();
}
