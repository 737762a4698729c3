/// The window that checks boards: the sample board's verdicts as its files tell them, and what stands around
/// them.

#include "tests/frame/BomDesk.h"

#include <QMenuBar>

class BomWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StandsBesideTheMainWindow();
    void OpensByKey();
    void ShowsTheSampleBoard();
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
    desk.window->resize(600, 400);
    Grab(desk, "small");
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

QTEST_MAIN(BomWindowTest)
#include "BomWindowTest.moc"
