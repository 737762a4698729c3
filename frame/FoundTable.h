#pragma once

/// The found parts as a table.

#include "find/FoundOrder.h"
#include "find/PartFinder.h"

#include <QAbstractTableModel>

/// The parts that fit a question, in the order that the user sorts them by. It sorts itself and writes only
/// the cells that are asked for, so that tens of thousands of parts follow every keystroke.
class FoundTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows this answer in place of the former one, in the order in force.
    void SetAnswer(FoundParts answer, const FindQuestion& asked);
    /// An answer that no longer is that to the entries is greyed.
    void SetStale(bool stale);
    /// The names on display have changed.
    void NamesChanged();

    const FindQuestion& Question() const { return question; }
    const FoundPart& PartAt(int row) const { return found.Parts[static_cast<std::size_t>(row)]; }
    /// Index into the part table.
    std::int16_t PartIndexAt(int row) const;
    /// What the column tells, or where that occurs.
    static FoundColumn ColumnAt(int column);
    /// True for a column that tells where in the ranges of the question a value occurs.
    static bool IsPlace(int column);
    /// Where a value occurs, "13.2 V, 85 °C"; "-" where it is empty.
    QString PlaceAt(int row, FoundPlace place) const;
    /// True while the question asks for what the column tells.
    bool Applies(int column) const;

    /// These rows below the headings, with tabs between cells: numbers in full, capacitances in pF.
    QString Copied(const std::vector<int>& rows) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// By this column, then by the least board; by the least board alone for column -1.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void TellChanged(Qt::ItemDataRole role);
    void SortParts();
    QString TextAt(int row, int column) const;
    QString NameAt(int row, FoundColumn column) const;

    FoundParts found;
    FindQuestion question;
    std::vector<FoundKey> order = LeastBoard();
    bool isStale = false;
};
