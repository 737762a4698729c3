/// The menus of main window and chart windows: which stand when, and what their commands do.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QStatusBar>
#include <QTest>

class MenusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void MainMenuTreeStandsInOrder();
    void EntriesOfMainMenuBearTheirNames();
    void ChartMenuTreeStandsInOrder();
    void ActiveChartPutsItsMenusInPlace();
    void MainMenusComeBackWithSelectionForm();
    void MainMenusComeBackAfterLastChart();
    void MenusFollowMinimisedChart();
    void MenusStayWhenProgramLosesFocus();
    void AccessKeysOpenTheMenusOnShow();
    void EntriesExplainThemselvesInTheMainStatusBar();
    void OutputIsOfferedWithPlotOnly();
    void OutputOfChartIsOfferedWithPlotOnly();
    void ResetSelectionReturnsToStart();
    void ResetSelectionFromChartMenu();
    void CloseAllWithoutChartsDoesNothing();
    void CloseAllFromMainMenu();
    void CloseAllFromChartsOwnMenu();
    void AboutBoxIsALoadedFormWhileShown_data();
    void AboutBoxIsALoadedFormWhileShown();
    void ExitClosesTheMainWindow();
    void ExitFromChartMenuKeepsStore();
    void MainWindowIsCaptioned();
};

static const QStringList MainTitles = {"&File", "&View", "&Window", "&Help"};
static const QStringList ChartTitles = {"&File", "&View", "&Chart", "&Window", "&Help"};

/// Every entry of the bar with its depth as blanks; separators as a dash.
static QStringList TreeOf(const QList<QAction*>& actions, const QString& depth = {})
{
    QStringList tree;
    for (const QAction* action : actions)
    {
        tree << depth + (action->isSeparator() ? QStringLiteral("-") : action->text());
        if (action->menu() != nullptr)
        {
            tree << TreeOf(action->menu()->actions(), depth + " ");
        }
    }
    return tree;
}

void MenusTest::MainMenuTreeStandsInOrder()
{
    const Desk desk;
    const QStringList expected = {"&File",
                                  " &Reset Selection",
                                  " -",
                                  " &OutPut Data",
                                  "  &Save Data To File...",
                                  "  &Data Print...",
                                  " -",
                                  " E&xit",
                                  "&View",
                                  " &EIA code",
                                  " &JIS code",
                                  " -",
                                  " &Global Part Number",
                                  " &Previous Part Number",
                                  "&Window",
                                  " &Close All Chart Windows",
                                  "&Help",
                                  " &Contents...",
                                  " -",
                                  " &About..."};
    QCOMPARE(TreeOf(desk.main->menuBar()->actions()), expected);
}

void MenusTest::EntriesOfMainMenuBearTheirNames()
{
    const Desk desk;
    QStringList names;
    for (const QAction* title : desk.main->menuBar()->actions())
    {
        names << title->menu()->objectName();
        for (const QAction* entry : title->menu()->actions())
        {
            names << (entry->menu() != nullptr ? entry->menu()->objectName() : entry->objectName());
        }
    }
    const QStringList expected = {"mnuFile",       "mnuResetSelction",
                                  "mnuLine1",      "mnuOutPut",
                                  "mnuLine3",      "mnuExit",
                                  "mnuView",       "mnuViewCode_0",
                                  "mnuViewCode_1", "mnuViewBar1",
                                  "mnuPartNum_0",  "mnuPartNum_1",
                                  "mnuWindow",     "mnuCloseAllChartWindows",
                                  "mnuHelp",       "mnuContents",
                                  "mnuLine5",      "mnuAbout"};
    QCOMPARE(names, expected);
}

void MenusTest::ChartMenuTreeStandsInOrder()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    const QStringList expected = {"&File",
                                  " &Reset Selection",
                                  " -",
                                  " Print Set&up... ",
                                  " &Print...",
                                  " -",
                                  " &OutPut Data",
                                  "  &Save Data To File...",
                                  "  &Print Data...",
                                  " -",
                                  " E&xit",
                                  "&View",
                                  " &EIA code",
                                  " &JIS code",
                                  " -",
                                  " &Global Part Number",
                                  " &Previous Part Number",
                                  "&Chart",
                                  " &Expand/Contract...",
                                  " &Copy to Clipboard",
                                  "&Window",
                                  " &Close All Chart Windows",
                                  "&Help",
                                  " &Contents...",
                                  " -",
                                  " &About..."};
    QCOMPARE(TreeOf(desk.main->menuBar()->actions()), expected);
}

void MenusTest::ActiveChartPutsItsMenusInPlace()
{
    Desk desk;
    QCOMPARE(desk.MenuTitles(), MainTitles);
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    QCOMPARE(desk.Area()->activeSubWindow(), desk.Charts().front());
    QCOMPARE(desk.MenuTitles(), ChartTitles);
}

void MenusTest::MainMenusComeBackWithSelectionForm()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    QTest::mouseClick(desk.Find<QLineEdit>("txtDCBiasVol"), Qt::LeftButton);
    Settle();
    QCOMPARE(desk.MenuTitles(), MainTitles);
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    QCOMPARE(desk.MenuTitles(), ChartTitles);
}

void MenusTest::MainMenusComeBackAfterLastChart()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    desk.ClickCloseBox(desk.Charts().back());
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    const bool chartIsActive = desk.Area()->currentSubWindow() == desk.Charts().front();
    QCOMPARE(desk.MenuTitles(), chartIsActive ? ChartTitles : MainTitles);
    desk.ClickCloseBox(desk.Charts().front());
    QCOMPARE(desk.Charts().size(), std::size_t{0});
    QCOMPARE(desk.MenuTitles(), MainTitles);
}

void MenusTest::MenusFollowMinimisedChart()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.Charts().front()->showMinimized();
    Settle();
    const bool chartIsActive = desk.Area()->currentSubWindow() == desk.Charts().front();
    QCOMPARE(desk.MenuTitles(), chartIsActive ? ChartTitles : MainTitles);
    QTest::mouseClick(desk.Find<QLineEdit>("txtDCBiasVol"), Qt::LeftButton);
    Settle();
    QCOMPARE(desk.MenuTitles(), MainTitles);
}

void MenusTest::MenusStayWhenProgramLosesFocus()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    Settle();
    QVERIFY(!desk.main->isActiveWindow());
    QCOMPARE(desk.MenuTitles(), ChartTitles);
    desk.main->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.main.get()));
    Settle();
    QCOMPARE(desk.MenuTitles(), ChartTitles);
    QCOMPARE(desk.Area()->activeSubWindow(), desk.Charts().front());
}

void MenusTest::AccessKeysOpenTheMenusOnShow()
{
    Desk desk;
    QTest::keyClick(desk.main.get(), Qt::Key_W, Qt::AltModifier);
    auto* opened = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(opened != nullptr);
    QCOMPARE(opened->actions().front()->objectName(), QString("mnuCloseAllChartWindows"));
    opened->close();

    // With two charts open, each with menus of the same keys, those of the active one answer.
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    for (frmGraph* chart : desk.Charts())
    {
        // Without a window manager nobody makes the window active again after a menu.
        QApplication::setActiveWindow(desk.main.get());
        desk.Area()->setActiveSubWindow(chart);
        QTest::keyClick(chart, Qt::Key_W, Qt::AltModifier);
        opened = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(opened != nullptr);
        QVERIFY(chart->isAncestorOf(opened->parentWidget()));
        opened->close();
    }
}

void MenusTest::EntriesExplainThemselvesInTheMainStatusBar()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    QMenu* window = desk.OpenMenuOf("mnuWindowClose");
    MoveMouse(window, window->actionGeometry(desk.Entry("mnuWindowClose")).center());
    QCOMPARE(desk.main->statusBar()->currentMessage(), QString("Close every chart window"));
    // The chart's own bar stays free for the read-out.
    QCOMPARE(desk.Charts().front()->findChild<QStatusBar*>("sbr1")->currentMessage(), QString());
    window->close();
}

void MenusTest::OutputIsOfferedWithPlotOnly()
{
    Desk desk;
    QMenu* file = desk.OpenMenuOf("mnuExit");
    QVERIFY(!desk.CanPlot());
    QVERIFY(!desk.Entry("mnuOutPut")->isEnabled());
    file->close();
    desk.TypePart(ListedPart(desk, 0));
    QVERIFY(desk.CanPlot());
    desk.OpenMenuOf("mnuExit");
    QVERIFY(desk.Entry("mnuOutPut")->isEnabled());
    file->close();
    desk.TypePart("none");
    desk.OpenMenuOf("mnuExit");
    QVERIFY(!desk.Entry("mnuOutPut")->isEnabled());
    file->close();
}

void MenusTest::OutputOfChartIsOfferedWithPlotOnly()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    QMenu* file = desk.OpenMenuOf("mnuFileExit");
    QVERIFY(desk.Entry("mnuOutPut")->isEnabled());
    file->close();
    desk.TypePart("none");
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    desk.OpenMenuOf("mnuFileExit");
    QVERIFY(!desk.Entry("mnuOutPut")->isEnabled());
    file->close();
}

static void VerifyStartState(const Desk& desk)
{
    QVERIFY(desk.Find<QRadioButton>("optChartType_0")->isChecked());
    QVERIFY(desk.HasFocus("optChartType_0"));
    QVERIFY(!desk.CanPlot());
    QCOMPARE(desk.Find<QComboBox>("cmbPartNum")->currentText(), QString());
    QCOMPARE(desk.Find<QComboBox>("cmbXaxis")->currentText(), QString("Current"));
    QCOMPARE(desk.Find<QComboBox>("cmbYaxis")->currentText(), QString("Temperature Rise"));
    QVERIFY(!desk.Find<QLineEdit>("txtDCBiasVol")->isEnabled());
    QCOMPARE(desk.Text("txtDCBiasVol"), QString());
}

void MenusTest::ResetSelectionReturnsToStart()
{
    Desk desk;
    desk.ClickChartType(3);
    desk.TypePart(ListedPart(desk, 5));
    desk.Type("txtAmbientTemp", "not a number");
    desk.Choose("mnuResetSelction");
    VerifyStartState(desk);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void MenusTest::ResetSelectionFromChartMenu()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.Choose("mnuFileReset");
    VerifyStartState(desk);
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QCOMPARE(desk.MenuTitles(), MainTitles);
}

void MenusTest::CloseAllWithoutChartsDoesNothing()
{
    Desk desk;
    desk.TypePart(ListedPart(desk, 0));
    desk.Choose("mnuCloseAllChartWindows");
    QVERIFY(desk.CanPlot());
    QCOMPARE(desk.Area()->subWindowList().size(), 1);
    QCOMPARE(desk.main->OpenForms(), 2);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

static void OpenThreeCharts(Desk& desk)
{
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    desk.PlotCapacitance(ListedPart(desk, 1), "0");
    desk.PlotRise(0, "25");
}

static void VerifyNoCharts(const Desk& desk)
{
    QCOMPARE(desk.Charts().size(), std::size_t{0});
    QCOMPARE(desk.main->OpenForms(), 2);
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{0});
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
    QCOMPARE(desk.MenuTitles(), MainTitles);
    QVERIFY(desk.Find<frmLibrary>("frmLibrary")->isVisible());
}

void MenusTest::CloseAllFromMainMenu()
{
    Desk desk;
    OpenThreeCharts(desk);
    QCOMPARE(desk.Charts().size(), std::size_t{3});
    desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    QCOMPARE(desk.MenuTitles(), MainTitles);
    desk.Choose("mnuCloseAllChartWindows");
    VerifyNoCharts(desk);
}

void MenusTest::CloseAllFromChartsOwnMenu()
{
    Desk desk;
    OpenThreeCharts(desk);
    QCOMPARE(desk.MenuTitles(), ChartTitles);
    desk.Choose("mnuWindowClose");
    VerifyNoCharts(desk);
    OpenThreeCharts(desk);
    QCOMPARE(desk.Charts().size(), std::size_t{3});
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    desk.Choose("mnuWindowClose");
    VerifyNoCharts(desk);
}

void MenusTest::AboutBoxIsALoadedFormWhileShown_data()
{
    QTest::addColumn<QString>("entry");
    QTest::newRow("from the main menu") << "mnuAbout";
    QTest::newRow("from a chart's menu") << "mnuHelpAbout";
}

void MenusTest::AboutBoxIsALoadedFormWhileShown()
{
    QFETCH(QString, entry);
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    if (entry == "mnuAbout")
    {
        desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    }
    QByteArray shown;
    int forms = 0;
    QTimer look;
    connect(&look, &QTimer::timeout, &look,
            [&]
            {
                if (QWidget* front = QApplication::activeModalWidget())
                {
                    shown = front->metaObject()->className();
                    forms = desk.main->OpenForms();
                    QTest::keyClick(front, Qt::Key_Return);
                }
            });
    look.start(5);
    desk.Choose(entry);
    QCOMPARE(shown, QByteArray("frmAbout"));
    QCOMPARE(forms, 4);
    QCOMPARE(desk.main->OpenForms(), 3);
}

void MenusTest::ExitClosesTheMainWindow()
{
    Desk desk;
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtDCBiasVol", "-5");
    desk.Choose("mnuExit");
    QVERIFY(!desk.main->isVisible());
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void MenusTest::ExitFromChartMenuKeepsStore()
{
    Desk desk;
    OpenThreeCharts(desk);
    desk.Choose("mnuFileExit");
    QVERIFY(!desk.main->isVisible());
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{4});
}

void MenusTest::MainWindowIsCaptioned()
{
    const Desk desk;
    QCOMPARE(desk.main->windowTitle(), QString("Halvex Chip Capacitor Characteristics Data Library"));
    QCOMPARE(desk.Find<frmLibrary>("frmLibrary")->windowTitle(), desk.main->windowTitle());
}

QTEST_MAIN(MenusTest)
#include "MenusTest.moc"
