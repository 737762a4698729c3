#pragma once

/// The real main window with the sample part range, as a user works with it: typing, clicking, answering
/// boxes.

#include "calc/ChartRecord.h"
#include "frame/frmMain.h"

#include <QMessageBox>
#include <QTimer>

#include <memory>
#include <utility>

class frmGraph;
class QMdiArea;

/// What a message box said.
struct Said
{
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
};

/// One working place: state fresh as after a start, the window shown, every message box noted and answered by
/// its default button, if no other is chosen.
class Desk
{
public:
    /// Starts with the sample range, or with the part files of another folder.
    explicit Desk(const std::string& partFolder = SAMPLE_RANGE, int helpLanguage = 2);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    // The selection form.
    void ClickChartType(int index);
    void PickXAxis(const QString& name);
    void PickYAxis(const QString& name);
    void ClickParameter(int index);
    void TypePart(const QString& partNum);
    void Type(const QString& box, const QString& text);
    void ClickPlot();
    bool CanPlot() const;
    QString Text(const QString& box) const;

    /// Chooses chart type 2, a part and a DC bias, and plots: the quickest line.
    void PlotCapacitance(const QString& partNum, const QString& biasVolts,
                         const QString& yAxis = QStringLiteral("Capacitance"));
    /// The same for chart type 0 and the part in a row of its own part-number list.
    void PlotRise(int row, const QString& ambient, const QString& xAxis = QStringLiteral("Current"));

    // Chart windows.
    /// The open chart windows in the order of opening.
    std::vector<frmGraph*> Charts() const;
    frmGraph* Chart(const QString& caption) const;
    void ClickCloseBox(frmGraph* chart);

    // Menus, through the menu bar as it stands.
    QStringList MenuTitles() const;
    QAction* Entry(const QString& name) const;
    /// Opens the menu that holds the entry, as a click does, and leaves it open.
    QMenu* OpenMenuOf(const QString& name);
    /// Clicks an entry in its opened menu.
    void Choose(const QString& name);

    /// Saves the current selection by key under a full path; a name that the dialog does not take, or an
    /// empty one, is given up by Escape. Returns what the dialog offered: its folder and name.
    std::pair<QString, QString> SaveAs(const QString& path);

    /// Message boxes that have this button are answered by it from now on.
    void AnswerBy(QMessageBox::StandardButton button) { answer = button; }

    /// Message boxes are left to the test from now on.
    void StopAnswering() { answering.stop(); }

    /// The boxes shown since the last call.
    std::vector<Said> TakeBoxes();
    /// The text of the only box shown since the last call; names the count when it was not one.
    QString TakeText();

    QMdiArea* Area() const;
    /// The control that keyboard input goes to while the main window is the active one.
    bool HasFocus(const QString& control) const;
    template <class T> T* Find(const QString& name) const { return main->findChild<T*>(name); }

    std::unique_ptr<frmMain> main;

private:
    void AnswerBox();

    QTimer answering;
    std::vector<Said> boxes;
    QMessageBox::StandardButton answer = QMessageBox::NoButton;
};

/// A part's number in the number form and code on display, given its present number in the EIA code; a number
/// that no part has is left as it is.
QString NumberOnDisplay(const QString& partNum);

/// True where `DESK_CODE` is "jis": the desk then starts as with the Japanese help book, in the JIS code
/// view, whatever language it is asked for.
bool IsJapaneseDesk();

/// A palette of a text on a ground, as dark and high-contrast desktops have. All desks of a test program take
/// the one that `DESK_PALETTE` names, "dark" or "contrast".
QPalette PaletteOf(const QColor& ground, const QColor& text);

/// Lets every pending event happen, destruction of closed windows included.
void Settle();

/// Moves the mouse to a place of a widget, with these buttons held down.
void MoveMouse(QWidget* widget, const QPoint& to, Qt::MouseButtons pressed = Qt::NoButton);

/// Numbers of parts of the sample range, in the form on display, counted along the part-number list.
QString ListedPart(const Desk& desk, int row);

/// True when store and index agree: `CurrentChart` lines, or one empty record.
bool StoreIsWhole();

/// True when no command is under way any more: lists answer, the pointer is the normal one.
bool IsAtRest();
