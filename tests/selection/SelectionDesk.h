#pragma once

/// A desk with the selection form on it and hands that work its controls.

#include "selection/frmLibrary.h"
#include "tests/selection/MessageWatch.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>

#include <exception>

/// A main window with the selection form, whose charts are only counted. The part table of the program is
/// exchanged for the given one.
class SelectionDesk : public ChartWindows
{
public:
    explicit SelectionDesk(PartTable range);
    ~SelectionDesk() override;

    // What the main window does for the form.
    void ShowNewChart() override;
    bool ShowSameChart(const ChartKey& chart) override;
    void SwitchCodeView(int index) override;
    void SwitchNumbering(int index);

    // Hands.
    QComboBox* List(const char* name) const { return Find<QComboBox>(name); }
    QLineEdit* Box(const char* name) const { return Find<QLineEdit>(name); }
    QPushButton* PlotButton() const { return Find<QPushButton>("cmdPlot"); }
    QRadioButton* Option(const char* name) const { return Find<QRadioButton>(name); }
    /// Opens a list with the mouse and clicks an entry.
    void Pick(const char* list, const QString& entry) const;
    /// Gives the focus to a list and picks an entry with keys.
    void PickByKeys(const char* list, const QString& entry) const;
    void TypePart(const QString& number) const;
    /// Clicks into a box and types in place of what stands there.
    void Enter(const char* box, const QString& entry) const;
    void Click(const char* control) const;
    void ChooseChartType(int index) const;
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    // Eyes.
    QStringList Entries(const char* list) const;
    QString Text(const char* box) const;
    bool Enabled(const char* control) const { return Find<QWidget>(control)->isEnabled(); }
    QString Focus() const;

    template <class Control> Control* Find(const char* name) const
    {
        auto* control = form->findChild<Control*>(QString::fromLatin1(name));
        Q_ASSERT(control != nullptr);
        return control;
    }

    QMainWindow window;
    frmLibrary* form = nullptr;
    MessageWatch messages;
    /// What is thrown where a chart is to be shown, if anything.
    std::exception_ptr chartFault;
    int newCharts = 0;
    int redrawnCharts = 0;
    int code = 0;
    int numbering = 0;
};
