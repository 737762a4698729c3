/// What the random user does with windows and menus.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/randomuser/User.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMenu>
#include <QTest>

#include <array>

PlainWindow* User::AnyWindow()
{
    return charts.Windows.empty()
               ? nullptr
               : &charts.Windows[static_cast<std::size_t>(Lot(static_cast<int>(charts.Windows.size())))];
}

frmGraph* User::Shown(const PlainWindow& window) const
{
    return hands->Chart(window.Caption);
}

QString User::Activate()
{
    const PlainWindow* window = AnyWindow();
    if (window == nullptr || Chance(20))
    {
        // A click on the empty edge of the selection form.
        QTest::mouseClick(hands->Of("frmLibraryContents"), Qt::LeftButton, {}, QPoint(1, 1));
        Settle();
        found.Check(!ChartIsActive(), "the selection form is not in front");
        return "selection form";
    }
    frmGraph* chart = Shown(*window);
    hands->ClickTitle(chart);
    found.Check(hands->Area()->activeSubWindow() == chart, "a clicked chart is not in front");
    return window->Caption;
}

QString User::CloseOne()
{
    const PlainWindow* window = AnyWindow();
    if (window == nullptr)
    {
        return "none";
    }
    const QString caption = window->Caption;
    hands->ClickTitleButton(Shown(*window), QStyle::SC_TitleBarCloseButton);
    charts.Close(caption);
    return caption;
}

QString User::MinimiseOrRestore()
{
    PlainWindow* window = AnyWindow();
    if (window == nullptr)
    {
        return "none";
    }
    frmGraph* chart = Shown(*window);
    const bool doubleClick = Chance(50);
    if (window->Minimised)
    {
        doubleClick ? hands->DoubleClickTitle(chart)
                    : hands->ClickTitleButton(chart, QStyle::SC_TitleBarNormalButton);
    }
    else
    {
        hands->ClickTitleButton(chart, QStyle::SC_TitleBarMinButton);
    }
    window->Minimised = !window->Minimised;
    return (window->Minimised ? "minimised "
            : doubleClick     ? "restored by double click "
                              : "restored ") +
           window->Caption;
}

/// On the title or on the chart itself; neither changes anything.
QString User::DoubleClick()
{
    const PlainWindow* window = AnyWindow();
    if (window == nullptr || window->Minimised)
    {
        return "none";
    }
    frmGraph* chart = Shown(*window);
    if (Chance(50))
    {
        hands->DoubleClickTitle(chart);
        return "title";
    }
    DoubleClickAt(chart->findChild<QWidget*>("picGraph"), QPoint(Lot(373), Lot(243)));
    return "picture";
}

/// Drags a window by its title, as far as there is room.
QString User::Drag()
{
    PlainWindow* window = AnyWindow();
    if (window == nullptr || window->Minimised)
    {
        return "none";
    }
    const QPoint way(Lot(201) - 100, Lot(121) - 60);
    const QRect place(window->Left + way.x(), window->Top + way.y(), 733, 295);
    if (!hands->Area()->viewport()->rect().contains(place))
    {
        return "no room";
    }
    hands->DragTitle(Shown(*window), way);
    window->Left = place.left();
    window->Top = place.top();
    return QStringLiteral("%1 %2").arg(way.x()).arg(way.y());
}

// ---- Menus ----

QString User::SwitchCode()
{
    const int wanted = Lot(2);
    const QString entry = QStringLiteral("mnuViewCode_%1").arg(wanted);
    ChooseEither(entry, entry);
    hands->Ready();
    if (std::exchange(code, wanted) != wanted)
    {
        Expect(charts.Windows.empty() ? QStringList() : QStringList{Information("Close all chart windows")});
        charts.CloseAll();
        form->SwitchCode(wanted);
    }
    return QString::number(wanted);
}

QString User::SwitchNumbering()
{
    const int wanted = Lot(2);
    ChooseEither(QStringLiteral("mnuViewPart_%1").arg(wanted), QStringLiteral("mnuPartNum_%1").arg(wanted));
    if (std::exchange(numbering, wanted) != wanted)
    {
        form->SwitchNumbering(wanted);
    }
    return QString::number(wanted);
}

QString User::Reset()
{
    ChooseEither("mnuFileReset", "mnuResetSelction");
    form->Reset();
    found.Same("the focus", hands->Focus(), QString("optChartType_0"));
    return {};
}

QString User::CloseAll()
{
    ChooseEither("mnuWindowClose", "mnuCloseAllChartWindows");
    charts.CloseAll();
    return {};
}

/// The File menu offers the output with Plot only; the View menu has the marks of what is shown.
QString User::LookIntoMenus()
{
    const bool inChart = ChartIsActive();
    const QMenu* fileMenu = hands->OpenMenu(inChart ? "mnuFileReset" : "mnuResetSelction");
    found.Check(fileMenu != nullptr && fileMenu->isVisible(), "the File menu does not open");
    found.Same("output is offered", hands->Entry("mnuOutPut")->isEnabled(), form->CanPlot);
    hands->CloseMenus();
    const QMenu* viewMenu = hands->OpenMenu("mnuViewCode_0");
    found.Check(viewMenu != nullptr && viewMenu->isVisible(), "the View menu does not open");
    for (int i = 0; i < 2; ++i)
    {
        const QString part = QStringLiteral("%1_%2").arg(inChart ? "mnuViewPart" : "mnuPartNum").arg(i);
        found.Same("the mark of code " + QString::number(i),
                   hands->Entry(QStringLiteral("mnuViewCode_%1").arg(i))->isChecked(), code == i);
        found.Same("the mark of " + part, hands->Entry(part)->isChecked(), numbering == i);
    }
    hands->CloseMenus();
    found.Check(QApplication::activePopupWidget() == nullptr, "a menu stays open");
    return inChart ? "of a chart" : "of the main window";
}

QString User::ResizeMain()
{
    const QSize size = AnyOf(std::array{QSize(1010, 700), QSize(1400, 900), QSize(640, 420)});
    hands->main->resize(size);
    Settle();
    return QStringLiteral("%1 by %2").arg(size.width()).arg(size.height());
}

/// Ends the program and starts it again: nothing is asked, and only the last folder is remembered.
QString User::Restart()
{
    const bool inChart = ChartIsActive();
    Chance(50) ? ChooseEither("mnuFileExit", "mnuExit") : hands->Press(Qt::Key_Q, Qt::ControlModifier);
    found.Check(!hands->main->isVisible(), "the main window does not close");
    Expect({});
    Start();
    return inChart ? "from a chart" : "";
}
