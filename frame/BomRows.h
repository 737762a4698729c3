#pragma once

/// The judged rows of a bill of materials as a table.

#include "board/BomCheck.h"

#include <QAbstractTableModel>

#include <memory>
#include <set>
#include <string>
#include <vector>

/// What the columns of the rows tell.
enum class BomColumn
{
    Verdict,
    References,
    Part,
    Net,
    Reserve,
    Least,
    Rise,
    Reasons,
};

/// The worst row foremost.
class BomRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows this answer, which has no faults, in place of the former one.
    void SetAnswer(std::shared_ptr<const CheckedBom> answer, const BomSettings& judgedBy);
    /// An answer that no longer is that of the files is greyed.
    void SetStale(bool stale);

    const JudgedItem& ItemAt(int row) const { return bom->Judged.Items[static_cast<std::size_t>(row)]; }
    /// The rows of any of these references.
    std::vector<int> RowsOf(const std::set<std::string>& references) const;
    /// The references of a row; its line in the bill where it has none.
    std::vector<std::string> ReferencesOf(int row) const;

    /// These rows below the headings, with tabs between cells: numbers in full, capacitances in pF.
    QString Copied(const std::vector<int>& rows) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString TextAt(const JudgedItem& item, BomColumn column) const;
    QString FullTextAt(const JudgedItem& item, BomColumn column) const;
    QString TipAt(const JudgedItem& item, BomColumn column) const;

    std::shared_ptr<const CheckedBom> bom;
    BomSettings settings;
    bool isStale = false;
};
