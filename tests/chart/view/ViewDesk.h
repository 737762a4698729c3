#pragma once

/// A chart view on the desk of the main window, and hands that work it.

#include "chart/LineTable.h"
#include "chart/frmChartView.h"
#include "tests/frame/Desk.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>

/// One chart with some lines and its view, which is the active window.
class ViewDesk
{
public:
    /// Which chart is plotted at first.
    enum class Kind
    {
        CapacitanceOverTemperature,
        CapacitanceOverBias,
        RiseOverCurrent,
        RiseOverFrequency,
        AllowablePower,
    };

    explicit ViewDesk(Kind kind = Kind::CapacitanceOverTemperature, int lines = 2);

    /// Plots one more line of the chart, of the part that comes so many-th, 0 to 5.
    void PlotLine(int part);
    /// Opens the view as Ctrl+E does.
    void Open();

    frmChartView* View() const;
    frmGraph* Chart() const { return desk.Charts().front(); }
    ChartCanvas* Canvas() const { return Find<ChartCanvas>("picChartView"); }
    QTableView* Table() const { return Find<QTableView>("tblLines"); }
    LineTable* Model() const { return View()->findChild<LineTable*>(); }
    QLineEdit* Entry() const { return Find<QLineEdit>("txtCursorX"); }
    QString CursorLine() const { return Find<QLabel>("lblCursor")->text(); }
    const ViewScene& Scene() const { return View()->Scene(); }
    const ChartCursors& Cursors() const { return Scene().Cursors; }

    /// Presses a key where the focus is.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void TypeText(const QString& text) const;

    /// The place of a position in plot units, 0 to 100 from the lower left.
    QPoint At(double x, double y) const;
    void MoveTo(const QPoint& place, Qt::MouseButtons pressed = Qt::NoButton,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void Click(const QPoint& place) const;
    void Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void Turn(const QPoint& place, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    template <class T> T* Find(const char* name) const
    {
        return View()->findChild<T*>(QString::fromLatin1(name));
    }

    mutable Desk desk;

private:
    Kind kind;
};

/// Clicks with the right button.
void SendContextMenu(QWidget* widget, const QPoint& place);

/// The menu that has popped up, or null.
QMenu* OpenMenu();

/// The text of an entry without its access key and its keys.
QString PlainTextOf(const QAction* entry);

/// Chooses an entry by its text.
void Choose(QMenu* menu, const QString& text);
