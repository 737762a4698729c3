#pragma once

/// The lines of a chart view as a table.

#include "chart/layout/CursorTable.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

/// True for a column of texts, which is sorted by them.
constexpr bool IsText(CursorColumn column)
{
    return column == CursorColumn::Part || column == CursorColumn::Conditions;
}

/// The table of a chart view at its cursors, in the order that the user sorts it by.
class LineTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows these texts in place of the former ones. Where the columns stay, rows and columns stay as they
    /// are, and only what they hold is told to have changed.
    void SetTable(CursorTable newTable);
    const CursorTable& Table() const { return table; }
    /// Headings are set short where room is scarce.
    void SetShortHeadings(bool brief);

    /// The column after a click on its heading: upwards, downwards, back to the order of the numbers.
    void SortNextWay(int column);
    /// What the rows are sorted by; nothing while they are in the order of the numbers.
    std::optional<CursorColumn> SortedBy() const { return sortedBy; }
    Qt::SortOrder SortOrder() const { return sortOrder; }

    /// Position of a row's line in the chart, 0 to 5; -1 for no row.
    int LineOf(int row) const;
    /// The row of a line; -1 for no line.
    int RowOf(int line) const;
    CursorColumn ColumnAt(int column) const;

    /// These rows in the order shown, below the headings, with tabs between cells: plain numbers in the unit
    /// of the axis.
    QString Copied(const std::vector<int>& rows) const;
    QString CopiedWhole() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// The lines stand in other rows than before.
    void RowsMoved();

private:
    const CursorCell& CellAt(int row, int column) const;
    bool HasColumnsOf(const CursorTable& other) const;
    void Sort();

    CursorTable table;
    /// The line in each row.
    std::vector<int> order;
    std::optional<CursorColumn> sortedBy;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
    bool shortHeadings = false;
};
