#include "chart/LineTable.h"

#include <algorithm>
#include <numeric>

static QString Text(const std::string& text)
{
    return QString::fromStdString(text);
}

bool LineTable::HasColumnsOf(const CursorTable& other) const
{
    return table.Rows.size() == other.Rows.size() &&
           std::ranges::equal(table.Headings, other.Headings, {}, &CursorHeading::Column,
                              &CursorHeading::Column);
}

void LineTable::SetTable(CursorTable newTable)
{
    const bool sameColumns = HasColumnsOf(newTable);
    if (!sameColumns)
    {
        beginResetModel();
    }
    table = std::move(newTable);
    const auto formerOrder = order;
    Sort();
    if (!sameColumns)
    {
        endResetModel();
        return;
    }
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    if (order != formerOrder)
    {
        Q_EMIT RowsMoved();
    }
}

void LineTable::SetShortHeadings(bool brief)
{
    if (brief != shortHeadings)
    {
        shortHeadings = brief;
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
}

// ---- Order ----

/// What has no value stands last, whichever way is up.
static bool ComesBefore(const CursorCell& a, const CursorCell& b, bool texts, Qt::SortOrder sortOrder)
{
    if (texts)
    {
        return sortOrder == Qt::AscendingOrder ? a.Text < b.Text : b.Text < a.Text;
    }
    if (!a.Number || !b.Number)
    {
        return a.Number.has_value() && !b.Number;
    }
    return sortOrder == Qt::AscendingOrder ? *a.Number < *b.Number : *b.Number < *a.Number;
}

void LineTable::Sort()
{
    order.resize(table.Rows.size());
    std::iota(order.begin(), order.end(), 0);
    if (!sortedBy || table.Find(0, *sortedBy) == nullptr)
    {
        return;
    }
    const bool texts = IsText(*sortedBy);
    const auto cell = [&](int line) -> const CursorCell&
    { return *table.Find(static_cast<std::size_t>(line), *sortedBy); };
    std::ranges::stable_sort(order,
                             [&](int a, int b) { return ComesBefore(cell(a), cell(b), texts, sortOrder); });
}

void LineTable::SortNextWay(int column)
{
    const CursorColumn by = ColumnAt(column);
    if (sortedBy != by)
    {
        sortedBy = by;
        sortOrder = Qt::AscendingOrder;
    }
    else if (sortOrder == Qt::AscendingOrder)
    {
        sortOrder = Qt::DescendingOrder;
    }
    else
    {
        sortedBy.reset();
    }
    Sort();
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    Q_EMIT RowsMoved();
}

int LineTable::LineOf(int row) const
{
    return row >= 0 && row < rowCount() ? order[static_cast<std::size_t>(row)] : -1;
}

int LineTable::RowOf(int line) const
{
    const auto row = std::ranges::find(order, line);
    return row == order.end() ? -1 : static_cast<int>(row - order.begin());
}

CursorColumn LineTable::ColumnAt(int column) const
{
    return table.Headings.at(static_cast<std::size_t>(column)).Column;
}

// ---- What is shown ----

const CursorCell& LineTable::CellAt(int row, int column) const
{
    return table.Rows.at(static_cast<std::size_t>(LineOf(row))).at(static_cast<std::size_t>(column));
}

int LineTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(table.Rows.size());
}

int LineTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(table.Headings.size());
}

QVariant LineTable::data(const QModelIndex& index, int role) const
{
    const CursorCell& cell = CellAt(index.row(), index.column());
    const CursorColumn column = ColumnAt(index.column());
    switch (role)
    {
    case Qt::DisplayRole:
        return Text(cell.Text);
    case Qt::AccessibleTextRole:
        return column == CursorColumn::Number ? QStringLiteral("No.") + Text(cell.Text) : Text(cell.Text);
    case Qt::ToolTipRole:
        return Text(cell.PlainWithUnit.empty() ? cell.Text : cell.PlainWithUnit);
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | (IsText(column) ? Qt::AlignLeft : Qt::AlignRight));
    default:
        return {};
    }
}

QVariant LineTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    {
        return {};
    }
    const CursorHeading& heading = table.Headings.at(static_cast<std::size_t>(section));
    return Text(shortHeadings ? heading.Short : heading.Text);
}

// ---- Copying ----

/// A part number is a text of the part files, which may hold what would end a cell.
static QString CellText(const std::string& text)
{
    QString cell = Text(text);
    for (QChar& letter : cell)
    {
        letter = letter.category() == QChar::Other_Control ? QChar(u' ') : letter;
    }
    return cell;
}

QString LineTable::Copied(const std::vector<int>& rows) const
{
    QStringList lines;
    QStringList cells;
    for (const CursorHeading& heading : table.Headings)
    {
        cells << Text(heading.Copied);
    }
    lines << cells.join(u'\t');
    for (const int row : rows)
    {
        cells.clear();
        for (int column = 0; column < columnCount(); ++column)
        {
            cells << CellText(CellAt(row, column).Plain);
        }
        lines << cells.join(u'\t');
    }
    return lines.join(u'\n') + u'\n';
}

QString LineTable::CopiedWhole() const
{
    std::vector<int> rows(static_cast<std::size_t>(rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    return Copied(rows);
}
