/// What a screen reader is told of a chart view.

#include "tests/chart/view/ViewDesk.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

class ViewReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheChartTellsAxesLinesAndValues();
    void TheCursorIsAValueThatCanBeSet();
    void ChangesAreToldFourTimesASecondAtMost();
    void TheTableTellsRowsHeadingsAndCells();
    void EveryControlHasAName();
};

void ViewReaderTest::TheChartTellsAxesLinesAndValues()
{
    const ViewDesk desk;
    auto* const chart = QAccessible::queryAccessibleInterface(desk.Canvas());
    QCOMPARE(chart->role(), QAccessible::Chart);
    QCOMPARE(chart->text(QAccessible::Name), desk.View()->windowTitle());
    const QString told = chart->text(QAccessible::Description);
    QVERIFY2(told.startsWith(QStringLiteral("Temperature from \u221275 \u00B0C to 100 \u00B0C")),
             qPrintable(told));
    QVERIFY(told.contains("Capacitance from "));
    QVERIFY(told.contains("2 lines"));
    QVERIFY(told.contains(QStringLiteral("Cursor A at 25 \u00B0C")));
    const auto value = [&](int line) { return desk.Model()->index(line, 2).data().toString(); };
    QVERIFY(told.endsWith(QStringLiteral("No.1 at 25 \u00B0C: ") + value(0)));
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Down);
    desk.TypeText("85");
    desk.Press(Qt::Key_Return);
    QVERIFY(
        chart->text(QAccessible::Description).endsWith(QStringLiteral("No.2 at 85 \u00B0C: ") + value(1)));
    QVERIFY(chart->text(QAccessible::Description).contains(QStringLiteral("B at 85 \u00B0C")));
}

void ViewReaderTest::TheCursorIsAValueThatCanBeSet()
{
    const ViewDesk desk(ViewDesk::Kind::RiseOverFrequency);
    auto* const value = QAccessible::queryAccessibleInterface(desk.Canvas())->valueInterface();
    QVERIFY(value != nullptr);
    QCOMPARE(value->currentValue().toDouble(), 100.0);
    QCOMPARE(value->minimumValue().toDouble(), 10.0);
    QCOMPARE(value->maximumValue().toDouble(), 1000.0);
    value->setCurrentValue(300.0);
    QCOMPARE(desk.Cursors().A(), 3e5);
    QVERIFY(desk.CursorLine().startsWith("A 300 kHz"));
}

void ViewReaderTest::ChangesAreToldFourTimesASecondAtMost()
{
    const ViewDesk desk;
    QTest::qWait(600);
    const QSignalSpy told(desk.View(), &frmChartView::CursorsTold);
    QElapsedTimer clock;
    clock.start();
    int steps = 0;
    for (; clock.elapsed() < 1000; ++steps)
    {
        desk.Press(steps % 2 == 0 ? Qt::Key_Right : Qt::Key_Left);
        QTest::qWait(5);
    }
    const auto meanwhile = told.size();
    QVERIFY(steps > 10);
    QVERIFY2(meanwhile >= 2 && meanwhile <= 5, qPrintable(QString::number(meanwhile)));
    // A step just after a telling is told as well, when the keys have come to rest.
    QTRY_VERIFY(told.size() > meanwhile || (desk.Press(Qt::Key_Right), false));
    const auto before = told.size();
    desk.Press(Qt::Key_Left);
    QTest::qWait(600);
    QCOMPARE(told.size(), before + 1);
}

void ViewReaderTest::TheTableTellsRowsHeadingsAndCells()
{
    const ViewDesk desk;
    auto* const table = QAccessible::queryAccessibleInterface(desk.Table())->tableInterface();
    QVERIFY(table != nullptr);
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->columnCount(), 5);
    QCOMPARE(table->columnDescription(2), QStringLiteral("Capacitance at 25 \u00B0C"));
    QCOMPARE(table->cellAt(1, 0)->text(QAccessible::Name), "No.2");
    QCOMPARE(table->cellAt(1, 1)->text(QAccessible::Name), NumberOnDisplay("KTS31NB51E106MA01"));
    QCOMPARE(table->cellAt(1, 2)->text(QAccessible::Name), desk.Model()->index(1, 2).data().toString());
}

void ViewReaderTest::EveryControlHasAName()
{
    const ViewDesk desk;
    const QList<QWidget*> controls = {desk.Canvas(), desk.Entry(), desk.Table()};
    for (QWidget* control : controls)
    {
        auto* const told = QAccessible::queryAccessibleInterface(control);
        QVERIFY2(!told->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
    }
    QCOMPARE(QAccessible::queryAccessibleInterface(desk.Entry())->text(QAccessible::Name),
             "Cursor Temperature");
}

QTEST_MAIN(ViewReaderTest)
#include "ViewReaderTest.moc"
