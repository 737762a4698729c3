#pragma once

/// The parts that may stand for a part as a table.

#include "requests/LikeList.h"

#include <QAbstractTableModel>

/// What is found for one part; where no part fits, the nearest, each marked as short.
class LikeTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows this answer in place of the former one, the part that changes least foremost.
    void SetAnswer(const LikeParts& found, CodeView naming);

    const LikePart& LikeAt(int row) const { return shown[static_cast<std::size_t>(row)]; }
    /// Index into the part table.
    std::int16_t PartIndexAt(int row) const;

    /// These rows below the headings, with tabs between cells: numbers in full, capacitances in pF.
    QString Copied(const std::vector<int>& rows) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// By the value of this column, or that whose place it tells; as found for column -1.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    QString TextAt(int row, int column) const;
    QString FullTextAt(int row, int column) const;
    QString NameAt(int row, LikeColumn column) const;

    std::vector<LikePart> found;
    /// In the order that the user sorts by.
    std::vector<LikePart> shown;
    bool areShort = false;
    CodeView view = CodeView::Eia;
};
