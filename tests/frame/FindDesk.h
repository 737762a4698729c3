#pragma once

/// The window that finds parts, beside the real main window with the sample range.

#include "frame/frmFind.h"
#include "tests/frame/Desk.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QToolButton>

/// The window at a desk.
struct FindDesk : Desk
{
    explicit FindDesk(const std::string& partFolder = SAMPLE_RANGE)
        : Desk(partFolder)
    {
        Find<QToolButton>("cmdFind")->click();
        window = WindowOf();
    }

    static frmFind* WindowOf()
    {
        for (QWidget* top : QApplication::topLevelWidgets())
        {
            if (auto* found = qobject_cast<frmFind*>(top))
            {
                return found;
            }
        }
        return nullptr;
    }

    template <class T> T* Control(const char* name) const { return window->findChild<T*>(name); }
    void Enter(const char* box, const QString& text) const { Control<QLineEdit>(box)->setText(text); }
    void Pick(const char* box, const QString& text) const { Control<QComboBox>(box)->setCurrentText(text); }
    QTableView* Table() const { return Control<QTableView>("tblFound"); }
    int Rows() const { return Table()->model()->rowCount(); }
    QString Line() const { return Control<QLabel>("lblFound")->text(); }
    int Column(const QString& heading) const
    {
        for (int column = 0; column < Table()->model()->columnCount(); ++column)
        {
            if (Table()->model()->headerData(column, Qt::Horizontal).toString() == heading)
            {
                return column;
            }
        }
        return -1;
    }
    QString Cell(int row, const QString& heading) const
    {
        return Table()->model()->index(row, Column(heading)).data().toString();
    }
    /// By the mouse or by keys the window has come to the front before.
    void ChooseRows(int first, int last) const
    {
        QApplication::setActiveWindow(window);
        const auto* model = Table()->model();
        Table()->selectionModel()->select(
            QItemSelection(model->index(first, 0), model->index(last, model->columnCount() - 1)),
            QItemSelectionModel::ClearAndSelect);
    }
    QStringList ChosenParts() const
    {
        QStringList parts;
        for (const QModelIndex& index : Table()->selectionModel()->selectedRows())
        {
            parts << index.data().toString();
        }
        return parts;
    }
    void Click(const char* button) const
    {
        QTest::mouseClick(Control<QPushButton>(button), Qt::LeftButton);
        Settle();
    }

    /// "10 µF at 12 V, 70 °C, 4 Arms of 500 kHz, several in parallel".
    void AskForABank() const
    {
        Enter("txtFindDCBiasVol", "12");
        Enter("txtFindAmbientTemp", "70");
        Enter("txtFindFrequency", "500");
        Enter("txtFindCurrent", "4");
        Enter("txtFindMinCap", "10");
        Control<QCheckBox>("chkFindParallel")->setChecked(true);
    }

    frmFind* window = nullptr;
};

/// Keeps a picture of the window in the folder that `FIND_PICTURES` names, for a look at it.
inline void Grab(const FindDesk& desk, const char* name)
{
    const QString folder = qEnvironmentVariable("FIND_PICTURES");
    if (!folder.isEmpty())
    {
        Settle();
        desk.window->grab().save(folder + "/" + name + ".png");
    }
}
