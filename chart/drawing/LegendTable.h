#pragma once

/// The table of a chart's lines as a picture: a row a line, each with the badge that numbers it in the chart.

#include "chart/drawing/LineMarks.h"

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <vector>

/// A table as it is seen. The column of the badges stands before those named here.
struct LegendTable
{
    struct Column
    {
        QString Heading;
        /// What stands in its place where room is scarce; empty for the same.
        QString Short = {};
        bool RightAligned = false;
    };
    struct Row
    {
        /// Position of the line in its chart, 0 to 5.
        int Line;
        /// One a column.
        std::vector<QString> Texts;
    };
    std::vector<Column> Columns;
    /// In the order in which they stand.
    std::vector<Row> Rows;
};

/// Height of a table of some rows with its heading.
double LegendHeight(std::size_t rows, double textSize);

/// Draws the table from the upper left corner of the place on, on white, as high as `LegendHeight`. Where its
/// texts are wider than the place, headings are shortened, then all texts set smaller and condensed, so that
/// each stands whole.
void DrawLegend(const LegendTable& table, const QRectF& place, const LineMarks& marks, QPainter& painter);

/// Extent of a piece of line with its badge.
QSizeF LegendChipSize(double textSize);

/// A piece of a line with its badge in the middle of a place, on a white ground of its own: it can be told
/// apart on any colour.
void DrawLegendChip(int line, const QRectF& place, const LineMarks& marks, QPainter& painter);
