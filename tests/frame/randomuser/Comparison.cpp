/// Holds what the main window shows and what the store keeps against the plain model.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/randomuser/PlainNumbers.h"
#include "tests/frame/randomuser/User.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <cmath>

static const QStringList MainTitles = {"&File", "&View", "&Window", "&Help"};
static const QStringList ChartTitles = {"&File", "&View", "&Chart", "&Window", "&Help"};

void User::Compare()
{
    ++comparisons;
    CompareForm();
    CompareHint();
    CompareCharts();
    CompareStore();
    ComparePlaces();
    CompareMenus();
    const QWidget* focus = hands->main->focusWidget();
    found.Check(ChartIsActive() ||
                    (focus != nullptr && hands->Find<frmLibrary>("frmLibrary")->isAncestorOf(focus)),
                "the form in front is out of reach of keys");
    found.Check(IsAtRest(), "a command is still under way");
    found.Check(QApplication::activeModalWidget() == nullptr, "a dialog is left open");
    found.Check(QApplication::activePopupWidget() == nullptr, "a menu or list is left open");
    if (comparisons % 50 == 0)
    {
        CompareFiles();
    }
}

// ---- The selection form ----

static QStringList EntriesOf(const QComboBox* list)
{
    QStringList entries;
    for (int i = 0; i < list->count(); ++i)
    {
        entries << list->itemText(i);
    }
    return entries;
}

/// The entries of all lists, whenever something that decides about them has changed, and now and then.
void User::CompareLists()
{
    const auto& selection = form->Selection;
    const QString state =
        QStringList{form->Shown(0), form->Shown(1), form->Shown(2), form->Shown(3)}.join('|') +
        QStringLiteral("|%1 %2 %3 %4 %5 %6")
            .arg(selection.ChartType)
            .arg(code)
            .arg(numbering)
            .arg(selection.Alone)
            .arg(selection.ByNumber)
            .arg(selection.Parts.size());
    if (std::exchange(comparedLists, state) == state && comparisons % 25 != 0)
    {
        return;
    }
    for (int level = 0; level < 4; ++level)
    {
        const auto* list = hands->Of<QComboBox>(UpperLists[level]);
        const QStringList entries = form->Entries(level);
        found.Same("the list " + UpperLists[level], EntriesOf(list), entries);
        const QString shown = form->Shown(level);
        found.Same(UpperLists[level], list->currentText(), entries.contains(shown) ? shown : QString());
    }
    found.Check(EntriesOf(hands->Of<QComboBox>("cmbPartNum")) == form->PartNumbers(),
                "the list of part numbers differs");
}

void User::CompareForm()
{
    CompareLists();
    found.Same("cmbPartNum", hands->Of<QComboBox>("cmbPartNum")->currentText(), form->PartText);
    found.Same("the X axes", EntriesOf(hands->Of<QComboBox>("cmbXaxis")), form->XAxes());
    found.Same("the Y axes", EntriesOf(hands->Of<QComboBox>("cmbYaxis")), form->YAxes());
    found.Same("cmbXaxis", hands->Of<QComboBox>("cmbXaxis")->currentText(), form->XAxis);
    found.Same("cmbYaxis", hands->Of<QComboBox>("cmbYaxis")->currentText(), form->YAxis);
    for (const QString& box : ConditionBoxes)
    {
        const auto* edit = hands->Of<QLineEdit>(box);
        found.Same(box, edit->text(), form->Boxes[box]);
        found.Same(box + " enabled", edit->isEnabled(), form->IsEnabled(box));
        const QString label = "lbl" + box.mid(3);
        found.Same(label + " enabled", hands->Of(label)->isEnabled(), form->IsEnabled(box));
    }
    for (int i = 0; i < 4; ++i)
    {
        const auto* type = hands->Of<QRadioButton>(QStringLiteral("optChartType_%1").arg(i));
        const auto* parameter = hands->Of<QRadioButton>(QStringLiteral("optParameter_%1").arg(i));
        found.Same(type->objectName(), type->isChecked(), form->Selection.ChartType == i);
        found.Same(parameter->objectName(), parameter->isChecked(), form->Parameter == i);
        found.Same(parameter->objectName() + " enabled", parameter->isEnabled(), form->ParameterEnabled);
    }
    found.Same("lblParameter", hands->Of<QLabel>("lblParameter")->text(), form->ParameterUnit());
    found.Same("fraCondition enabled", hands->Of("fraCondition")->isEnabled(), form->CanPlot);
    found.Same("fraParameter enabled", hands->Of("fraParameter")->isEnabled(), form->ParameterEnabled);
    found.Same("cmdPlot enabled", hands->Of("cmdPlot")->isEnabled(), form->CanPlot);
    const QRect place = hands->Find<frmLibrary>("frmLibrary")->geometry();
    found.Same("the place of the selection form", place,
               QRect(0, 0, 200, hands->Area()->viewport()->height()));
}

/// The status bar says what is missing just while something is. What it says of an empty list goes first.
void User::CompareHint()
{
    const QString hint = hands->Find<QLabel>("lblHint")->text();
    if (hint.contains(" is empty: "))
    {
        found.Check(UpperLists.contains(hands->Focus()), "another control has the focus: " + hint);
        return;
    }
    const bool isEntered =
        std::ranges::none_of(ConditionBoxes, [this](const QString& box)
                             { return form->IsEnabled(box) && form->Boxes[box].isEmpty(); });
    found.Same("the hint \"" + hint + "\" is of conditions", hint.startsWith("Plot still needs: "),
               form->CanPlot && !isEntered);
    found.Same("the hint \"" + hint + "\" says nothing", hint.isEmpty(), form->CanPlot && isEntered);
}

// ---- Chart windows ----

void User::CompareCharts()
{
    const auto shown = hands->Charts();
    found.Same("the number of open forms", hands->main->OpenForms(),
               static_cast<int>(charts.Windows.size()) + 2);
    found.Same("the number of charts", shown.size(), charts.Windows.size());
    for (std::size_t i = 0; i < std::min(shown.size(), charts.Windows.size()); ++i)
    {
        const frmGraph* chart = shown[i];
        const PlainWindow& window = charts.Windows[i];
        found.Same("a caption", chart->windowTitle(), window.Caption);
        found.Same(window.Caption + " minimised", chart->isMinimized(), window.Minimised);
        found.Check(chart->isVisible() && !chart->isMaximized(), window.Caption + " is hidden or maximised");
        if (!window.Minimised)
        {
            found.Same("the place of " + window.Caption, chart->geometry(),
                       QRect(window.Left, window.Top, 733, 295));
        }
        const AxisRange& range = chart->Range();
        found.Check(range.XMax == window.Range.XMax && range.XMin == window.Range.XMin &&
                        range.YMax == window.Range.YMax && range.YMin == window.Range.YMin,
                    "the ranges of " + window.Caption + " differ");
        ComparePanes(chart, window);
    }
}

void User::ComparePanes(const frmGraph* chart, const PlainWindow& window)
{
    std::size_t pane = 0;
    const auto text = [&](const char* kind)
    { return chart->findChild<QLabel*>(QStringLiteral("%1_%2").arg(kind).arg(pane))->text(); };
    for (const ChartRecord& line : mdlPublic.Charts.Lines())
    {
        if (CaptionOf(line) == window.Caption && pane < 6)
        {
            const auto part = static_cast<std::size_t>(line.PartDataIndex);
            found.Same("a part in a pane", text("lblStatus"), NumberOf(part, code + 2 * numbering));
            found.Same("conditions in a pane", text("lblPara"), PlainPane(line));
            ++pane;
        }
    }
    for (; pane < 6; ++pane)
    {
        found.Same("an empty pane", text("lblStatus") + text("lblPara"), QString());
    }
    found.Same("the read-out at rest",
               chart->findChild<QLabel*>("sbr1_1")->text() + chart->findChild<QLabel*>("sbr1_2")->text(),
               QString());
}

// ---- The store ----

/// Every record holds what was asked for, the curve of the plain formulas, and the limits that follow.
void User::CompareStore()
{
    const auto lines = mdlPublic.Charts.Lines();
    found.Check(StoreIsWhole(), "the store is not whole");
    found.Same("the number of lines", lines.size(), charts.Lines.size());
    for (std::size_t i = 0; i < std::min(lines.size(), charts.Lines.size()); ++i)
    {
        const ChartRecord& line = lines[i];
        const PlainLine& told = charts.Lines[i];
        found.Check(IsSame(line, told.Asked), QStringLiteral("line %1 differs in its conditions").arg(i));
        float largest = 0;
        for (const float y : told.Curve.YData)
        {
            largest = std::max(largest, std::abs(y));
        }
        bool same = true;
        for (std::size_t k = 0; k < CurvePoints; ++k)
        {
            same = same && NearlyEqual(line.XData[k], told.Curve.XData[k], 0) &&
                   NearlyEqual(line.YData[k], told.Curve.YData[k], largest);
        }
        found.Check(same, QStringLiteral("the curve of line %1 differs").arg(i));
        const AxisRange limits = PlainLimits(line, View());
        found.Check(line.XMax == limits.XMax && line.XMin == limits.XMin && line.YMax == limits.YMax &&
                        line.YMin == limits.YMin,
                    QStringLiteral("the limits of line %1 differ").arg(i));
        found.Same("the extra value", line.ExtraValue,
                   line.ChartType == 1 ? *std::ranges::max_element(line.YData) : 0.0F);
    }
}

static double PlaceOf(bool logarithmic, float minimum, float maximum, float value)
{
    if (!logarithmic)
    {
        return (double{value} - minimum) / (double{maximum} - minimum) * 100;
    }
    return value > 0 ? std::log(double{value} / minimum) / std::log(double{maximum} / minimum) * 100 : 0;
}

/// The drawn places of one line after the other, in the ranges of its window.
void User::ComparePlaces()
{
    const auto lines = mdlPublic.Charts.Lines();
    if (lines.empty())
    {
        return;
    }
    const ChartRecord& line = lines[comparisons % lines.size()];
    const PlainWindow* window = charts.Window(CaptionOf(line));
    if (window == nullptr)
    {
        return;
    }
    const AxisRange& range = window->Range;
    const bool xLog = line.ChartType == 1 || line.XAxisName == "Frequency";
    for (std::size_t k = 0; k < CurvePoints; ++k)
    {
        const double x = PlaceOf(xLog, range.XMin, range.XMax, line.XData[k]);
        const double y = PlaceOf(line.ChartType == 1, range.YMin, range.YMax, line.YData[k]);
        if (std::abs(line.XPos[k] - x) > 1e-3 + 1e-5 * std::abs(x) ||
            std::abs(line.YPos[k] - y) > 1e-3 + 1e-5 * std::abs(y))
        {
            found.Check(false, QStringLiteral("point %1 of %2 is at %3, %4 instead of %5, %6")
                                   .arg(k)
                                   .arg(window->Caption)
                                   .arg(line.XPos[k])
                                   .arg(line.YPos[k])
                                   .arg(x)
                                   .arg(y));
            return;
        }
    }
}

// ---- Menus ----

void User::CompareMenus()
{
    const bool inChart = ChartIsActive();
    found.Same("the menus", hands->MenuTitles(), inChart ? ChartTitles : MainTitles);
    const QAction* output = hands->Entry("mnuOutPut");
    found.Same("output is offered", output != nullptr && output->isEnabled(), form->CanPlot);
    found.Same("the code on display", int{GetCodeForm()}, code);
    found.Same("the numbering on display", int{GetNumberingOffset()}, 2 * numbering);
    found.Same("the title of the main window", hands->main->windowTitle(),
               QString("Halvex Chip Capacitor Characteristics Data Library"));
}
