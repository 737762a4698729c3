/// The menus of a chart and of its view, and the commands that lead to the form and to help.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "frame/frmHelp.h"
#include "tests/chart/view/ViewDesk.h"

#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QMenu>
#include <QStatusBar>
#include <QTest>
#include <QTextBlock>

class ViewMenusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PaneMenuOffersConditionsAndPartNumber();
    void ChartMenuNamesAllLines();
    void ItsMenuOffersEveryCommandWithItsKey_data();
    void ItsMenuOffersEveryCommandWithItsKey();
    void ConditionsGoToTheForm();
    void EntriesOfTheFormKeepControlE();
    void HelpOpensAtItsPage();
};

static QStringList Entries(const QMenu* menu)
{
    QStringList entries;
    for (const QAction* entry : menu->actions())
    {
        entries << (entry->isSeparator() ? QStringLiteral("-") : PlainTextOf(entry));
    }
    return entries;
}

void ViewMenusTest::PaneMenuOffersConditionsAndPartNumber()
{
    ViewDesk desk;
    auto* const pane = desk.Chart()->findChild<QGroupBox*>("fraStatus_1");
    SendContextMenu(pane, pane->rect().center());
    QCOMPARE(Entries(OpenMenu()), (QStringList{"Use These Conditions", "Copy Part Number",
                                               "Save Simulation Model...", "-", "Open in Chart View"}));
    Choose(OpenMenu(), "Copy Part Number");
    QCOMPARE(QGuiApplication::clipboard()->text(), NumberOnDisplay("KTS31NB51E106MA01"));
    // A pane without a line belongs to the chart.
    auto* const empty = desk.Chart()->findChild<QGroupBox*>("fraStatus_4");
    SendContextMenu(empty, empty->rect().center());
    QCOMPARE(OpenMenu()->objectName(), "mnuPopupChart");
    OpenMenu()->close();
}

void ViewMenusTest::ChartMenuNamesAllLines()
{
    ViewDesk desk;
    QTest::keyClick(desk.Chart(), Qt::Key_Menu);
    QMenu* const menu = OpenMenu();
    QCOMPARE(Entries(menu), (QStringList{"Open in Chart View", "Use Conditions of", "-", "Expand/Contract...",
                                         "Copy to Clipboard", "Print..."}));
    QCOMPARE(Entries(menu->actions()[1]->menu()),
             (QStringList{"No.1 " + NumberOnDisplay("KTS21JB51E106MA01"),
                          "No.2 " + NumberOnDisplay("KTS31NB51E106MA01")}));
    menu->close();
}

void ViewMenusTest::ItsMenuOffersEveryCommandWithItsKey_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"chart", "row", "entry's label", "Menu key", "Shift+F10 in the table"})
    {
        QTest::newRow(way) << way;
    }
}

void ViewMenusTest::ItsMenuOffersEveryCommandWithItsKey()
{
    QFETCH(QString, way);
    const ViewDesk desk;
    if (way == "chart")
    {
        SendContextMenu(desk.Canvas(), desk.At(50, 50));
    }
    else if (way == "row")
    {
        const QRect row = desk.Table()->visualRect(desk.Table()->model()->index(1, 1));
        SendContextMenu(desk.Table()->viewport(), row.center());
        QCOMPARE(desk.Scene().Chosen, std::optional(1));
    }
    else if (way == "entry's label")
    {
        SendContextMenu(desk.Find<QLabel>("lblCursorX"), QPoint(2, 2));
    }
    else if (way == "Menu key")
    {
        desk.Press(Qt::Key_Menu);
    }
    else
    {
        desk.Table()->setFocus();
        desk.Press(Qt::Key_F10, Qt::ShiftModifier);
    }
    QMenu* const menu = OpenMenu();
    QVERIFY(menu != nullptr);
    int commands = 0;
    for (const QAction* command : menu->actions())
    {
        commands += command->isSeparator() ? 0 : 1;
        QVERIFY2(command->isSeparator() || !command->shortcut().isEmpty(), qPrintable(command->text()));
    }
    QCOMPARE(commands, 18);
    menu->close();
}

void ViewMenusTest::ConditionsGoToTheForm()
{
    ViewDesk desk;
    desk.desk.TypePart(NumberOnDisplay("KTS32XR71E106KA01"));
    desk.desk.Type("txtDCBiasVol", "3");
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_F4);
    QCOMPARE(desk.desk.Text("txtDCBiasVol"), "12");
    QCOMPARE(desk.desk.Find<QStatusBar>("sbrMain")->currentMessage(), "Conditions of No.2 taken: 12 V");
    QVERIFY(desk.desk.HasFocus("cmdPlot"));
    desk.desk.TypePart("none");
    desk.Press(Qt::Key_F4);
    QCOMPARE(desk.desk.Find<QStatusBar>("sbrMain")->currentMessage(), "Choose a part first.");
}

void ViewMenusTest::EntriesOfTheFormKeepControlE()
{
    ViewDesk desk;
    desk.View()->close();
    Settle();
    auto* const box = desk.desk.Find<QLineEdit>("txtDCBiasVol");
    box->setFocus();
    box->setCursorPosition(0);
    QTest::keyClick(box, Qt::Key_E, Qt::ControlModifier);
    Settle();
    QCOMPARE(desk.View(), nullptr);
}

void ViewMenusTest::HelpOpensAtItsPage()
{
    const ViewDesk desk;
    mdlPublic.PathSep = "/";
    desk.Press(Qt::Key_F1);
    QTextBrowser* page = nullptr;
    for (const QWidget* window : QApplication::topLevelWidgets())
    {
        page = page != nullptr ? page : window->findChild<QTextBrowser*>("txtBook");
    }
    QVERIFY(page != nullptr);
    QCOMPARE(page->cursorForPosition(QPoint(20, 8)).block().text().simplified(), "Chart view");
    CloseHelp();
}

QTEST_MAIN(ViewMenusTest)
#include "ViewMenusTest.moc"
