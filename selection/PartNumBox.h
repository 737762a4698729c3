#pragma once

/// The part-number box: a list of part numbers of any length, with room to type one.

#include "selection/ChoiceBox.h"

#include <QAbstractListModel>

#include <cstdint>
#include <vector>

/// Part numbers by the index of their part; the texts are made as they come into view.
class PartNumModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows these parts, given in table order, in a part-number form, 0 to 3.
    void SetParts(std::vector<std::int16_t> indices, int partNumForm);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// The row of the entry that equals a text, letter case included; -1 without one.
    int RowOf(const QString& text) const;

private:
    std::vector<std::int16_t> parts;
    int form = 0;
};

/// An editable box that neither completes what is typed nor takes it into its list, and whose list opens
/// at once however long it is.
class PartNumBox : public ChoiceBox
{
    Q_OBJECT

public:
    explicit PartNumBox(QWidget* parent = nullptr);

    /// Fills the list with these parts, given in table order; no entry is selected and the text is empty.
    void SetParts(std::vector<std::int16_t> indices, int partNumForm);
    /// True when a text equals an entry, letter case included.
    bool Holds(const QString& text) const { return entries->RowOf(text) >= 0; }

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void GoToShownEntry();

    PartNumModel* entries;
};
