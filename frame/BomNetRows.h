#pragma once

/// The judged nets of a board as a table.

#include "board/BomCheck.h"

#include <QAbstractTableModel>

#include <memory>

/// In the order of the bill.
class BomNetRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows this answer, which has no faults, in place of the former one.
    void SetAnswer(std::shared_ptr<const CheckedBom> answer);
    /// An answer that no longer is that of the files is greyed.
    void SetStale(bool stale);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    std::shared_ptr<const CheckedBom> bom;
    bool isStale = false;
};
