#pragma once

/// The window that checks boards, beside the real main window with the sample range, on files of its own.

#include "frame/frmBom.h"
#include "tests/frame/Desk.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

/// The window at a desk, with a copy of the sample board in a folder of its own.
struct BomDesk : Desk
{
    BomDesk()
    {
        for (const char* name : {"board.csv", "rails.csv"})
        {
            QFile::copy(TEST_DATA "/board/boards/" + QString(name), File(name));
            QFile::setPermissions(File(name), QFile::ReadOwner | QFile::WriteOwner);
        }
        Find<QToolButton>("cmdFind")->menu()->actions().front()->trigger();
        window = WindowOf<frmBom>();
    }

    template <class T> static T* WindowOf()
    {
        for (QWidget* top : QApplication::topLevelWidgets())
        {
            if (auto* found = qobject_cast<T*>(top))
            {
                return found;
            }
        }
        return nullptr;
    }

    QString File(const QString& name) const { return folder.filePath(name); }
    template <class T> T* Control(const char* name) const { return window->findChild<T*>(name); }
    QTableView* Table() const { return Control<QTableView>("tblBom"); }
    int Rows() const { return Table()->model()->rowCount(); }
    QString Line() const { return Control<QLabel>("lblBom")->text(); }
    bool Tells(const QString& text) const
    {
        return QTest::qWaitFor([&] { return Line().contains(text); }, 20000);
    }

    /// Types a path and leaves the box by Enter.
    void Key(const char* box, const QString& text) const
    {
        auto* const line = Control<QLineEdit>(box);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    }
    /// Opens the sample board, and waits for its verdicts.
    void OpenSample() const
    {
        Key("txtBomConditions", File("rails.csv"));
        Key("txtBomFile", File("board.csv"));
        QVERIFY2(Tells("4 fail, 2 unknown, 0 warn, 6 ok; 2 rows skipped, 1 not fitted"), qPrintable(Line()));
    }

    int Column(const char* table, const QString& heading) const
    {
        const auto* model = Control<QTableView>(table)->model();
        for (int column = 0; column < model->columnCount(); ++column)
        {
            if (model->headerData(column, Qt::Horizontal).toString() == heading)
            {
                return column;
            }
        }
        return -1;
    }
    QString Cell(const char* table, int row, const QString& heading) const
    {
        return Control<QTableView>(table)->model()->index(row, Column(table, heading)).data().toString();
    }
    /// The row of these references; -1 where there is none.
    int RowOf(const QString& references) const
    {
        for (int row = 0; row < Rows(); ++row)
        {
            if (Cell("tblBom", row, "References") == references)
            {
                return row;
            }
        }
        return -1;
    }
    void Choose(const QString& references) const
    {
        QApplication::setActiveWindow(window);
        Table()->setFocus();
        // Whatever keys are held down.
        Table()->selectionModel()->setCurrentIndex(Table()->model()->index(RowOf(references), 0),
                                                   QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
    }
    QString Chosen() const
    {
        const auto rows = Table()->selectionModel()->selectedRows();
        return rows.isEmpty() ? QString() : Cell("tblBom", rows.front().row(), "References");
    }

    /// Writes a file in place, as some programs do.
    void Write(const QString& name, const QByteArray& text) const
    {
        QFile file(File(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// Writes a file beside it and gives it its name, as most editors do.
    void Replace(const QString& name, const QByteArray& text) const
    {
        Write(name + "~", text);
        QFile::remove(File(name));
        QVERIFY(QFile::rename(File(name + "~"), File(name)));
    }
    QByteArray Bytes(const QString& name) const
    {
        QFile file(File(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    frmBom* window = nullptr;
};

/// Keeps a picture of the window in the folder that `BOM_PICTURES` names, for a look at it.
inline void Grab(const BomDesk& desk, const char* name)
{
    const QString folder = qEnvironmentVariable("BOM_PICTURES");
    if (!folder.isEmpty())
    {
        Settle();
        desk.window->grab().save(folder + "/" + name + ".png");
    }
}
