#include "selection/PartNumBox.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "formkit/Texts.h"

#include <QLineEdit>
#include <QListView>

#include <algorithm>

void PartNumModel::SetParts(std::vector<std::int16_t> indices, int partNumForm)
{
    beginResetModel();
    parts = std::move(indices);
    form = partNumForm;
    endResetModel();
}

int PartNumModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(parts.size());
}

QVariant PartNumModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
    {
        return {};
    }
    return PartNumText(parts[static_cast<std::size_t>(index.row())], form);
}

int PartNumModel::RowOf(const QString& text) const
{
    const auto* part = mdlPublic.Parts.PartIndex[static_cast<std::size_t>(form)].Find(ToAnsi(text));
    if (part == nullptr || PartNumText(*part, form) != text)
    {
        return -1;
    }
    const auto place = std::ranges::lower_bound(parts, *part);
    return place != parts.end() && *place == *part ? static_cast<int>(place - parts.begin()) : -1;
}

PartNumBox::PartNumBox(QWidget* parent)
    : ChoiceBox(parent)
    , entries(new PartNumModel(this))
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    // On Enter and on leaving, a box otherwise picks the entry that its text equals once more.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);

    // A view that measures every entry before it opens takes as long as the list is long; one that lays them
    // out bit by bit does not find the entry to open at.
    auto* list = new QListView(this);
    list->setUniformItemSizes(true);
    setView(list);
    setModel(entries);
    FollowEntries();
}

void PartNumBox::SetParts(std::vector<std::int16_t> indices, int partNumForm)
{
    entries->SetParts(std::move(indices), partNumForm);
    setCurrentIndex(-1);
    clearEditText();
}

/// List, arrow keys and wheel start from the part that is shown, also where it was typed.
void PartNumBox::GoToShownEntry()
{
    const int row = entries->RowOf(currentText());
    if (row >= 0)
    {
        setCurrentIndex(row);
    }
}

void PartNumBox::showPopup()
{
    GoToShownEntry();
    ChoiceBox::showPopup();
}

void PartNumBox::keyPressEvent(QKeyEvent* event)
{
    GoToShownEntry();
    ChoiceBox::keyPressEvent(event);
}

void PartNumBox::wheelEvent(QWheelEvent* event)
{
    GoToShownEntry();
    ChoiceBox::wheelEvent(event);
}
