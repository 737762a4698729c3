/// The window that checks boards: the sample board's verdicts as its files tell them, and what stands around
/// them.

#include "frame/frmFind.h"
#include "tests/frame/BomDesk.h"
#include "tests/frame/TypePath.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QScrollArea>

class BomWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StandsBesideTheMainWindow();
    void OpensByKey();
    void ShowsTheSampleBoard();
    void HeadingsStandWhereTheirColumnsBegin();
    void ChartTypeIsReadInFullWhereThereIsRoom();
    void EmptyBillOffersNoColumns();
    void DefaultsHoldForAllPartsWithoutTheirOwn();
    void ColumnIsChosenWhereNoHeadingTellsIt();
    void RowOpensTheSearchUnderItsConditions();
    void RowLeadsToReplacements();
    void MenuStandsAtTheRow();
    void CopiesRowsInFull();
    void PlotsTheChosenRowAtItsWorst();
    void ReportIsSavedByTheEndOfItsName_data();
    void ReportIsSavedByTheEndOfItsName();
    void DroppedFileIsOpened();
    void ForeignTextsStayTexts();
    void KeysLeadThroughTheWindow();
    void FitsTheLeastSize();
    void ColumnsAreChosenInTheLeastSize();
    void ControlsHaveNames();
};

void BomWindowTest::StandsBesideTheMainWindow()
{
    BomDesk desk;
    QVERIFY(desk.window != nullptr && desk.window->isVisible() && desk.window->isWindow());
    QCOMPARE(desk.main->OpenForms(), 2);
    QCOMPARE(desk.Line(), QString("Open the bill of materials that a schematic program exported."));
    QVERIFY(!desk.Control<QPushButton>("cmdBomReport")->isEnabled());
    QVERIFY(!desk.Control<QPushButton>("cmdBomPlot")->isEnabled());
    // The same window again.
    desk.Find<QToolButton>("cmdFind")->menu()->actions().front()->trigger();
    QCOMPARE(BomDesk::WindowOf<frmBom>(), desk.window);
    QTest::keyClick(desk.window, Qt::Key_Escape);
    QVERIFY(!desk.window->isVisible());
    desk.Find<QToolButton>("cmdFind")->menu()->actions().front()->trigger();
    QVERIFY(desk.window->isVisible());
    const QPointer<frmBom> window = desk.window;
    desk.main->close();
    QVERIFY(!window->isVisible());
}

void BomWindowTest::OpensByKey()
{
    const Desk desk;
    QVERIFY(BomDesk::WindowOf<frmBom>() == nullptr);
    desk.main->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.main.get()));
    QTest::keyClick(desk.main.get(), Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(BomDesk::WindowOf<frmBom>() != nullptr);
    QVERIFY(BomDesk::WindowOf<frmBom>()->isVisible());
}

void BomWindowTest::ShowsTheSampleBoard()
{
    const BomDesk desk;
    desk.OpenSample();
    Grab(desk, "sample");
    QCOMPARE(desk.Rows(), 12);
    QCOMPARE(desk.Cell("tblBom", 0, "Verdict"), QString("fail"));
    QCOMPARE(desk.Cell("tblBom", 0, "References"), QString("C18"));
    QCOMPARE(desk.Cell("tblBom", 0, "Reserve [%]"), QString("-65.0"));
    const int first = desk.RowOf("C1,C2");
    QCOMPARE(desk.Cell("tblBom", first, "Verdict"), QString("ok"));
    QCOMPARE(desk.Cell("tblBom", first, "Part"), QString("KTS32XR71E106KA01"));
    QCOMPARE(desk.Cell("tblBom", first, "Net"), QString("+12V"));
    // What is left in percent refers to 20 °C in JIS code.
    QCOMPARE(desk.Cell("tblBom", first, "Least"),
             IsJapaneseDesk() ? QString("5.398 µF, 54.1 %") : QString("5.398 µF, 54.0 %"));
    QCOMPARE(desk.Cell("tblBom", first, "Rise [°C]"), QString("0.33 of 20"));
    QCOMPARE(desk.Cell("tblBom", first, "Reasons"), QString("bias 13.2 V of 15 V (60 % of 25 V)"));
    QCOMPARE(desk.Cell("tblBomNets", 0, "Net"), QString("+12V"));
    QCOMPARE(desk.Cell("tblBomNets", 0, "Verdict"), QString("warn"));
    QCOMPARE(desk.Cell("tblBomNets", 0, "Least"), QString("10.87 µF"));
    QCOMPARE(desk.Cell("tblBomNets", 0, "At"), QString("13.2 V, -10 °C"));
}

/// The reasons are longer than the lists are wide.
void BomWindowTest::HeadingsStandWhereTheirColumnsBegin()
{
    const BomDesk desk;
    desk.OpenSample();
    for (const char* table : {"tblBom", "tblBomNets"})
    {
        const auto* model = desk.Control<QTableView>(table)->model();
        const auto alignment = [&](const char* heading) {
            return model->headerData(desk.Column(table, heading), Qt::Horizontal, Qt::TextAlignmentRole)
                .toInt();
        };
        QCOMPARE(alignment("Reasons"), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft));
        QCOMPARE(alignment("Least"), static_cast<int>(Qt::AlignVCenter | Qt::AlignHCenter));
    }
}

void BomWindowTest::ChartTypeIsReadInFullWhereThereIsRoom()
{
    const BomDesk desk;
    const auto* list = desk.Control<QComboBox>("cmbBomChartType");
    Settle();
    QVERIFY2(list->width() > list->fontMetrics().horizontalAdvance(list->currentText()),
             qPrintable(QString::number(list->width())));
}

void BomWindowTest::EmptyBillOffersNoColumns()
{
    const BomDesk desk;
    desk.Write("board.csv", "");
    desk.Key("txtBomFile", desk.File("board.csv"));
    QVERIFY2(desk.Tells("board.csv: there is no heading"), qPrintable(desk.Line()));
    QVERIFY(!desk.Control<QComboBox>("cmbBomColumnPart")->isVisible());
    QVERIFY(!desk.Control<QComboBox>("cmbBomColumnReference")->isVisible());
}

void BomWindowTest::DefaultsHoldForAllPartsWithoutTheirOwn()
{
    const BomDesk desk;
    desk.OpenSample();
    QTest::keyClicks(desk.Control<QLineEdit>("txtBomMinLeft"), "60");
    QVERIFY2(desk.Tells("6 fail, 2 unknown, 0 warn, 4 ok"), qPrintable(desk.Line()));
    desk.Key("txtBomMinLeft", "sixty");
    QVERIFY2(desk.Line().startsWith("Min left: "), qPrintable(desk.Line()));
    QVERIFY(!desk.Control<QLineEdit>("txtBomMinLeft")->styleSheet().isEmpty());
    QVERIFY(!desk.Control<QPushButton>("cmdBomReport")->isEnabled());
    QCOMPARE(desk.Rows(), 12);
    desk.Control<QLineEdit>("txtBomMinLeft")->clear();
    QVERIFY2(desk.Tells("4 fail, 2 unknown, 0 warn, 6 ok"), qPrintable(desk.Line()));
    QVERIFY(desk.Control<QLineEdit>("txtBomMinLeft")->styleSheet().isEmpty());
}

void BomWindowTest::ColumnIsChosenWhereNoHeadingTellsIt()
{
    const BomDesk desk;
    desk.Write("board.csv", "Reference,MPN,Where it works\nC1,KTS21JB51C106MA01,5V\n");
    desk.Key("txtBomFile", desk.File("board.csv"));
    QVERIFY2(desk.Tells("0 fail, 1 unknown"), qPrintable(desk.Line()));
    auto* const list = desk.Control<QComboBox>("cmbBomColumnBias");
    QVERIFY(list->isVisible());
    QCOMPARE(desk.Control<QLabel>("lblBomColumnBias")->text(), QString("Bias: none; choose a column"));
    QVERIFY(!desk.Control<QComboBox>("cmbBomColumnPart")->isVisible());
    Grab(desk, "columns");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_End);
    QVERIFY2(desk.Tells("0 fail, 0 unknown, 0 warn, 1 ok"), qPrintable(desk.Line()));
    QCOMPARE(list->currentText(), QString("Where it works"));
    // The choice is kept for the bill, and can be taken back.
    desk.Key("txtBomFile", desk.File("rails.csv"));
    desk.Key("txtBomFile", desk.File("board.csv"));
    QVERIFY2(desk.Tells("0 fail, 0 unknown, 0 warn, 1 ok"), qPrintable(desk.Line()));
    QTest::keyClick(list, Qt::Key_Home);
    QVERIFY2(desk.Tells("0 fail, 1 unknown"), qPrintable(desk.Line()));
}

void BomWindowTest::RowOpensTheSearchUnderItsConditions()
{
    const BomDesk desk;
    desk.OpenSample();
    desk.Choose("C9");
    QTest::keyClick(desk.Table(), Qt::Key_Return);
    const auto* find = BomDesk::WindowOf<frmFind>();
    QVERIFY(find != nullptr && find->isVisible());
    const auto entry = [&](const char* box) { return find->findChild<QLineEdit*>(box)->text(); };
    QCOMPARE(entry("txtFindDCBiasVol"), QString("4.75..5.25"));
    QCOMPARE(entry("txtFindAmbientTemp"), QString("-10..65"));
    QCOMPARE(entry("txtFindTolerance"), QString("10"));
    QCOMPARE(entry("txtFindMinCap"), QString("6"));
    QVERIFY(find->findChild<QLabel*>("lblFound")->text().contains(" fit"));
}

void BomWindowTest::RowLeadsToReplacements()
{
    const BomDesk desk;
    desk.OpenSample();
    desk.Choose("C1,C2");
    QTest::keyClick(desk.Table(), Qt::Key_L, Qt::ControlModifier);
    const auto* find = BomDesk::WindowOf<frmFind>();
    QVERIFY(find != nullptr && find->isVisible());
    const QString line = find->findChild<QLabel*>("lblFound")->text();
    QVERIFY2(line.startsWith("Like " + NumberOnDisplay("KTS32XR71E106KA01") + ": "), qPrintable(line));
    QVERIFY2(line.contains("10.8..13.2 V, -10..65 °C"), qPrintable(line));
}

void BomWindowTest::MenuStandsAtTheRow()
{
    const BomDesk desk;
    desk.OpenSample();
    desk.Choose("C16");
    QTest::keyClick(desk.Table(), Qt::Key_F10, Qt::ShiftModifier);
    auto* const menu = desk.window->findChild<QMenu*>("mnuPopupBom");
    QVERIFY(menu != nullptr);
    QStringList offered;
    for (const QAction* action : menu->actions())
    {
        offered << action->text().section('\t', 0, 0).remove('&') + (action->isEnabled() ? "" : " -");
    }
    // The part is not in the range.
    QCOMPARE(offered, QStringList({"Find Replacements -", "Copy", "Open in Find"}));
    menu->close();
}

void BomWindowTest::CopiesRowsInFull()
{
    const BomDesk desk;
    desk.OpenSample();
    desk.Choose("C1,C2");
    QTest::keyClick(desk.Table(), Qt::Key_C, Qt::ControlModifier);
    const auto lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.front(),
             QString("Verdict\tReferences\tPart\tNet\tReserve [%]\tLeast [pF]\tRise [°C]\tReasons"));
    QVERIFY2(lines[1].startsWith("ok\tC1,C2\tKTS32XR71E106KA01\t+12V\t12"), qPrintable(lines[1]));
}

void BomWindowTest::PlotsTheChosenRowAtItsWorst()
{
    BomDesk desk;
    desk.OpenSample();
    desk.Choose("C9");
    QTest::keyClick(desk.Table(), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("65"));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    // What is not in the range cannot be plotted.
    desk.Choose("C16");
    QVERIFY(!desk.Control<QPushButton>("cmdBomPlot")->isEnabled());
}

void BomWindowTest::ReportIsSavedByTheEndOfItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("page") << "report.html" << QByteArray("<!DOCTYPE html>");
    QTest::newRow("table") << "report.csv" << QByteArray("Reference,");
    QTest::newRow("for scripts") << "report.json" << QByteArray("{");
}

void BomWindowTest::ReportIsSavedByTheEndOfItsName()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, begin);
    BomDesk desk;
    desk.OpenSample();
    {
        const WhenShown user({TypePath(desk.File(name))});
        QTest::mouseClick(desk.Control<QPushButton>("cmdBomReport"), Qt::LeftButton);
    }
    QVERIFY2(desk.Bytes(name).startsWith(begin), desk.Bytes(name).left(80));
    QVERIFY(desk.Bytes(name).contains("KTS31NB51C226MA01"));
}

void BomWindowTest::DroppedFileIsOpened()
{
    const BomDesk desk;
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(desk.File("board.csv"))});
    const auto drop = [&](const QWidget* at)
    {
        const QPoint place = at->mapTo(desk.window, at->rect().center());
        QDragEnterEvent enter(place, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(desk.window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event(place, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(desk.window, &event);
    };
    drop(desk.Table());
    QVERIFY2(desk.Tells("0 fail, 10 unknown"), qPrintable(desk.Line()));
    dropped.setUrls({QUrl::fromLocalFile(desk.File("rails.csv"))});
    drop(desk.Control<QLineEdit>("txtBomConditions"));
    QVERIFY2(desk.Tells("4 fail, 2 unknown, 0 warn, 6 ok"), qPrintable(desk.Line()));
}

void BomWindowTest::ForeignTextsStayTexts()
{
    const BomDesk desk;
    desk.Write("board.csv", "Reference,MPN,Net,Bias\nC1,<script>alert(1)</script>,<b>+5V</b>,5V\n");
    desk.Key("txtBomFile", desk.File("board.csv"));
    QVERIFY2(desk.Tells("1 unknown"), qPrintable(desk.Line()));
    QCOMPARE(desk.Cell("tblBom", 0, "Part"), QString("<script>alert(1)</script>"));
    QCOMPARE(desk.Cell("tblBom", 0, "Net"), QString("<b>+5V</b>"));
    QCOMPARE(desk.Control<QLabel>("lblBom")->textFormat(), Qt::PlainText);
}

void BomWindowTest::KeysLeadThroughTheWindow()
{
    const BomDesk desk;
    desk.OpenSample();
    QApplication::setActiveWindow(desk.window);
    desk.Control<QLineEdit>("txtBomFile")->setFocus();
    QStringList order;
    for (int i = 0; i < 13; ++i)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(order, QStringList({"cmdBomOpen", "txtBomConditions", "cmdBomConditions", "txtBomAmbient",
                                 "txtBomTolerance", "txtBomMinLeft", "txtBomMaxBias", "txtBomMaxRise",
                                 "tblBom", "tblBomNets", "cmbBomChartType", "cmdBomReport", "cmdBomPlot"}));
    QTest::keyClick(desk.window, Qt::Key_C, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("txtBomConditions"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("tblBom"));
}

void BomWindowTest::FitsTheLeastSize()
{
    const BomDesk desk;
    desk.OpenSample();
    desk.window->resize(600, 400);
    Grab(desk, "small");
    for (const char* name : {"tblBom", "tblBomNets", "picBom", "cmdBomReport", "cmdBomPlot", "scrBom"})
    {
        const auto* control = desk.Control<QWidget>(name);
        const QRect place(control->mapTo(desk.window, QPoint()), control->size());
        QVERIFY2(desk.window->rect().contains(place), name);
        QVERIFY2(control->height() >= desk.window->fontMetrics().height(), name);
    }
    // What is told is read beside the chart type.
    QVERIFY(desk.Control<QWidget>("scrBom")->width() >= 200);
}

void BomWindowTest::ColumnsAreChosenInTheLeastSize()
{
    const BomDesk desk;
    desk.Write("board.csv", "Where,What\nC1,KTS21JB51C106MA01\n");
    desk.Key("txtBomFile", desk.File("board.csv"));
    QVERIFY2(desk.Tells("board.csv: there is no heading"), qPrintable(desk.Line()));
    desk.window->resize(600, 400);
    Settle();
    Grab(desk, "smallcolumns");
    const QRect seen = desk.Control<QScrollArea>("scrBomEntries")->viewport()->rect();
    for (const char* name : {"cmbBomColumnPart", "cmbBomColumnReference", "cmdBomOpen", "txtBomMaxRise"})
    {
        const auto* control = desk.Control<QWidget>(name);
        const QPoint place = control->mapTo(desk.Control<QScrollArea>("scrBomEntries")->viewport(), QPoint());
        QVERIFY2(control->isVisible() && place.x() + control->width() <= seen.width(), name);
    }
}

void BomWindowTest::ControlsHaveNames()
{
    const BomDesk desk;
    for (QWidget* control : desk.window->findChildren<QWidget*>())
    {
        if (control->isVisible() && control->focusPolicy() != Qt::NoFocus &&
            !control->objectName().startsWith("qt_"))
        {
            const auto* told = QAccessible::queryAccessibleInterface(control);
            QVERIFY2(told != nullptr && !told->text(QAccessible::Name).isEmpty(),
                     qPrintable(control->objectName()));
        }
    }
}

QTEST_MAIN(BomWindowTest)
#include "BomWindowTest.moc"
