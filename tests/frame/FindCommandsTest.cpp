/// The commands of the window that finds parts: Select, Plot, the chart view, Copy, and its keys.

#include "app/mdlPublic.h"
#include "chart/frmChartView.h"
#include "chart/frmGraph.h"
#include "tests/frame/FindDesk.h"
#include "tests/frame/TypePath.h"

#include <QClipboard>
#include <QMenu>
#include <QRadioButton>
#include <QStatusBar>
#include <QTemporaryDir>

class FindCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SelectFillsTheForm();
    void SelectTakesAnotherChartTypeWithoutData();
    void SelectTellsNoHeatResistanceThatIsNotGiven();
    void EnterSelectsTheFirstPart();
    void PlotsThroughTheForm();
    void PlotsSixRows();
    void FirstRefusalEndsThePlotting();
    void ViewShowsThePlottedRows();
    void CopiesChosenRowsInFull();
    void SavesModelsOfChosenRows();
    void KeyOpensTheMenuAtTheCurrentRow();
    void SelectTakesThePlaceOfTheWorst();
    void KeysLeadThroughTheWindow();
};

// ---- Select and Plot ----

void FindCommandsTest::SelectFillsTheForm()
{
    FindDesk desk;
    desk.AskForABank();
    desk.Enter("txtFindHeatResistance", "50");
    desk.Pick("cmbFindChartType", "Temperature Rise Characteristics");
    desk.ChooseRows(0, 0);
    desk.Click("cmdFindSelect");
    QVERIFY(desk.CanPlot());
    QCOMPARE(desk.Find<QComboBox>("cmbPartNum")->currentText(), desk.Cell(0, "Part number"));
    QCOMPARE(desk.Text("txtDCBiasVol"), QString("12"));
    QCOMPARE(desk.Text("txtFrequency"), QString("500"));
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("70"));
    QCOMPARE(desk.Text("txtHeatResistance"), QString("50"));
    QVERIFY(desk.HasFocus("cmdPlot"));
    QCOMPARE(desk.Charts().size(), std::size_t{0});
}

void FindCommandsTest::SelectTellsNoHeatResistanceThatIsNotGiven()
{
    FindDesk desk;
    desk.AskForABank();
    desk.Pick("cmbFindChartType", "Temperature Rise Characteristics");
    desk.ChooseRows(0, 0);
    desk.Click("cmdFindSelect");
    const QString own = desk.Text("txtHeatResistance");
    QVERIFY(!own.isEmpty());
    desk.Pick("cmbFindChartType", "Capacitance-DC Voltage Characteristics");
    desk.Click("cmdFindSelect");
    // Boxes that the chart does not use stay as they are.
    QCOMPARE(desk.Text("txtDCBiasVol"), QString());
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("70"));
}

void FindCommandsTest::SelectTakesAnotherChartTypeWithoutData()
{
    FindDesk desk;
    const std::int16_t* const index = mdlPublic.Parts.PartIndex[0].Find("KTS31NB51C226MA01");
    QVERIFY(index != nullptr);
    PartRecord& part = mdlPublic.Parts.PartData[static_cast<std::size_t>(*index)];
    for (std::size_t i = Values::OfPower.First; i <= Values::OfPower.Last; ++i)
    {
        part.Data[i] = 0;
    }
    desk.Enter("txtFindPartNum", NumberOnDisplay("KTS31NB51C226MA01"));
    desk.Pick("cmbFindChartType", "Temperature Rise Characteristics");
    desk.Click("cmdFindSelect");
    QVERIFY(desk.CanPlot());
    QVERIFY(desk.Find<QRadioButton>("optChartType_2")->isChecked());
}

void FindCommandsTest::EnterSelectsTheFirstPart()
{
    FindDesk desk;
    desk.AskForABank();
    QTest::keyClick(desk.Control<QLineEdit>("txtFindMinCap"), Qt::Key_Return);
    QVERIFY(desk.CanPlot());
    QCOMPARE(desk.Find<QComboBox>("cmbPartNum")->currentText(), desk.Cell(0, "Part number"));
    desk.ChooseRows(1, 1);
    const QPoint row = desk.Table()->visualRect(desk.Table()->model()->index(2, 0)).center();
    QTest::mouseClick(desk.Table()->viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(desk.Table()->viewport(), Qt::LeftButton, {}, row);
    QCOMPARE(desk.Find<QComboBox>("cmbPartNum")->currentText(), desk.Cell(2, "Part number"));
    QCOMPARE(desk.Charts().size(), std::size_t{0});
}

void FindCommandsTest::PlotsThroughTheForm()
{
    FindDesk desk;
    desk.AskForABank();
    desk.ChooseRows(0, 0);
    desk.Click("cmdFindPlot");
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    QCOMPARE(mdlPublic.Charts.Lines().size(), std::size_t{1});
    QCOMPARE(mdlPublic.Charts.Lines().front().AmbientTemp, 70.0F);
    // The same line once more is the form's to refuse.
    desk.Click("cmdFindPlot");
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{1});
    QCOMPARE(mdlPublic.Charts.Lines().size(), std::size_t{1});
}

void FindCommandsTest::PlotsSixRows()
{
    FindDesk desk;
    desk.AskForABank();
    desk.ChooseRows(0, 8);
    QTest::keyClick(desk.Table(), Qt::Key_Return, Qt::ControlModifier);
    Settle();
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    QCOMPARE(mdlPublic.Charts.Lines().size(), std::size_t{6});
    QVERIFY(StoreIsWhole());
    const QString told = "The first 6 of 9 chosen parts are plotted: a chart has room for 6 lines.";
    QCOMPARE(desk.Line(), told);
    QCOMPARE(desk.Find<QStatusBar>("sbrMain")->currentMessage(), told);
    // As many as there is room for need no word.
    desk.main->mnuCloseAllChartWindows_Click();
    desk.Enter("txtFindMinCap", "9");
    desk.ChooseRows(0, 5);
    desk.Find<QStatusBar>("sbrMain")->clearMessage();
    QTest::keyClick(desk.Table(), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(mdlPublic.Charts.Lines().size(), std::size_t{6});
    QVERIFY(desk.Line().contains("parts fit"));
    QCOMPARE(desk.Find<QStatusBar>("sbrMain")->currentMessage(), QString());
    // Ctrl+E shows the first six as well.
    desk.ChooseRows(0, 6);
    QTest::keyClick(desk.Table(), Qt::Key_E, Qt::ControlModifier);
    QVERIFY(desk.Line().startsWith("The first 6 of 7 chosen parts"));
}

void FindCommandsTest::FirstRefusalEndsThePlotting()
{
    FindDesk desk;
    desk.Pick("cmbFindChartType", "Temperature Rise Characteristics");
    desk.Enter("txtFindPartNum", "NB51C");
    desk.ChooseRows(0, 2);
    // No frequency: the form asks for it.
    desk.Click("cmdFindPlot");
    QVERIFY(desk.TakeText().contains("Frequency is invalid!"));
    QCOMPARE(desk.Charts().size(), std::size_t{0});
    QVERIFY(desk.HasFocus("txtFrequency"));
}

void FindCommandsTest::ViewShowsThePlottedRows()
{
    FindDesk desk;
    desk.AskForABank();
    desk.ChooseRows(0, 0);
    desk.Click("cmdFindPlot");
    desk.ChooseRows(0, 2);
    QTest::keyClick(desk.Table(), Qt::Key_E, Qt::ControlModifier);
    Settle();
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.Lines().size(), std::size_t{3});
    const auto tops = QApplication::topLevelWidgets();
    QVERIFY(std::ranges::any_of(tops, [](QWidget* top)
                                { return qobject_cast<frmChartView*>(top) != nullptr && top->isVisible(); }));
}

// ---- Taking away, keys ----

void FindCommandsTest::CopiesChosenRowsInFull()
{
    const FindDesk desk;
    desk.Enter("txtFindPartNum", NumberOnDisplay("KTS31NB51C226MA01"));
    desk.Enter("txtFindDCBiasVol", "12");
    desk.Enter("txtFindAmbientTemp", "85");
    desk.ChooseRows(0, 0);
    desk.Table()->setFocus();
    QTest::keyClick(desk.Table(), Qt::Key_C, Qt::ControlModifier);
    const auto lines = QGuiApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.at(0),
             QString("Part number\tSize\tTCC\tNominal [pF]\tRated [V]\tEffective [pF]\tLeft [%]\t"
                     "Area [mm²]"));
    const auto cells = lines.at(1).split('\t');
    const QString present = NumberOnDisplay("KTS31NB51C226MA01");
    QCOMPARE(cells.mid(0, 5), IsJapaneseDesk() ? QStringList({present, "3216", "B", "22000000", "16"})
                                               : QStringList({present, "1206", "X5R", "22000000", "16"}));
    QCOMPARE(desk.Cell(0, "Effective"), QString("6.276 µF"));
    QVERIFY2(std::abs(cells.at(5).toDouble() - 6.276e6) <= 500, qPrintable(cells.at(5)));
    QVERIFY(cells.at(6).size() > 5);
    QCOMPARE(cells.at(7), QString("5.12"));
}

/// The command of the menu over the rows.
static QAction* SaveModelEntry(const FindDesk& desk)
{
    Q_EMIT desk.Table()->customContextMenuRequested(QPoint(5, 5));
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (QAction* entry : menu->actions())
    {
        if (entry->text().remove('&') == "Save Simulation Model...")
        {
            menu->close();
            return entry;
        }
    }
    return nullptr;
}

void FindCommandsTest::SavesModelsOfChosenRows()
{
    const FindDesk desk;
    desk.Enter("txtFindPartNum", "KTS31N");
    QVERIFY(desk.Rows() > 2);
    QVERIFY(!SaveModelEntry(desk)->isEnabled());
    desk.ChooseRows(0, 1);
    const QTemporaryDir folder;
    {
        const WhenShown user({TypePath(folder.filePath("found.lib"))});
        SaveModelEntry(desk)->trigger();
    }
    QCOMPARE(desk.Line(), "Model saved to " + folder.filePath("found.lib"));
    QFile file(folder.filePath("found.lib"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto text = QString::fromUtf8(file.readAll());
    for (const int row : {0, 1})
    {
        QVERIFY2(text.contains("\n.SUBCKT " + desk.Cell(row, "Part number") + " 1 2 "),
                 qPrintable(text.left(200)));
    }
    QCOMPARE(text.count("\n.SUBCKT "), 2);
}

void FindCommandsTest::KeyOpensTheMenuAtTheCurrentRow()
{
    const FindDesk desk;
    desk.Enter("txtFindPartNum", "KTS31N");
    desk.ChooseRows(1, 1);
    desk.Table()->setFocus();
    desk.Table()->setCurrentIndex(desk.Table()->model()->index(1, 0));
    const QWidget* const rows = desk.Table()->viewport();
    const QRect row = desk.Table()->visualRect(desk.Table()->model()->index(1, 0));
    QTest::keyClick(desk.Table(), Qt::Key_F10, Qt::ShiftModifier);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->objectName(), QString("mnuPopupFound"));
    QCOMPARE(menu->y(), rows->mapToGlobal(row.center()).y());
    menu->close();
}

void FindCommandsTest::SelectTakesThePlaceOfTheWorst()
{
    FindDesk desk;
    desk.Enter("txtFindPartNum", NumberOnDisplay("KTS31NB51C226MA01"));
    desk.Enter("txtFindDCBiasVol", "10.8..13.2");
    desk.Enter("txtFindAmbientTemp", "20..65C");
    desk.Enter("txtFindFrequency", "270..330");
    desk.Enter("txtFindCurrent", "1");
    desk.Enter("txtFindTolerance", "10");
    desk.Click("cmdFindSelect");
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("65"));
    const auto* const bar = desk.Find<QStatusBar>("sbrMain");
    QCOMPARE(bar->currentMessage(), QString("Conditions of the least capacitance taken: 13.2 V, 65 °C"));
    desk.Pick("cmbFindChartType", "Temperature Rise Characteristics");
    desk.Click("cmdFindSelect");
    QCOMPARE(desk.Text("txtDCBiasVol"), QString("13.2"));
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("20"));
    QCOMPARE(desk.Text("txtFrequency"), QString("270"));
    QCOMPARE(bar->currentMessage(), QString("Conditions of the largest rise taken: 20 °C, 270 kHz"));
}

void FindCommandsTest::KeysLeadThroughTheWindow()
{
    FindDesk desk;
    desk.window->activateWindow();
    auto* const first = desk.Control<QLineEdit>("txtFindPartNum");
    QVERIFY(QTest::qWaitForWindowActive(desk.window));
    QVERIFY(first->hasFocus());
    QStringList order;
    do
    {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && order.size() < 40);
    QCOMPARE(order, QStringList({"txtFindPartNum",
                                 "cmbFindMaxSize",
                                 "cmbFindTcc",
                                 "cmbFindRatedVol",
                                 "txtFindCap",
                                 "txtFindDCBiasVol",
                                 "txtFindAmbientTemp",
                                 "txtFindFrequency",
                                 "txtFindCurrent",
                                 "cmdFindWaveform",
                                 "txtFindHeatResistance",
                                 "txtFindTolerance",
                                 "txtFindMinCap",
                                 "txtFindMinLeft",
                                 "txtFindMaxRise",
                                 "chkFindParallel",
                                 "tblFound",
                                 "cmbFindChartType",
                                 "cmdFindSelect",
                                 "cmdFindPlot"}));
    QTest::keyClick(first, Qt::Key_Down);
    QVERIFY(desk.Table()->hasFocus());
    QCOMPARE(desk.ChosenParts().size(), 1);
    for (const QLabel* label : desk.window->findChildren<QLabel*>())
    {
        const bool isAnswer = QStringList({"lblFound", "lblFindOrigin"}).contains(label->objectName());
        QVERIFY(isAnswer || label->buddy() != nullptr);
    }
    QTest::keyClick(desk.Table(), Qt::Key_Escape);
    QVERIFY(!desk.window->isVisible());
}

QTEST_MAIN(FindCommandsTest)
#include "FindCommandsTest.moc"
