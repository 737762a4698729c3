/// The cursors of a chart view by key, by typed number and by click, and what is read at them.

#include "calc/NumberText.h"
#include "calc/ValueAt.h"
#include "tests/chart/view/ViewDesk.h"

#include <QLocale>
#include <QTest>

#include <array>

class ViewCursorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void AStandsAtTheMiddleTick_data();
    void AStandsAtTheMiddleTick();
    void KeysStepAlongTheStoredPoints();
    void KeysStepAlongTheChosenLine();
    void EnterAndSpacePinAndFree();
    void EscapeFreesThenCloses();
    void ATypedNumberIsMetExactly_data();
    void ATypedNumberIsMetExactly();
    void ATypedNumberIsRefusedWithItsReason_data();
    void ATypedNumberIsRefusedWithItsReason();
    void DigitsGoIntoTheEntry();
    void EscapeInTheEntryGoesBackToTheChart();
    void TheEntryKeepsItsOwnKeys();
    void TabGoesFromChartToEntryToTableToToolBar();
    void TheLineTellsBothCursors();
    void ACursorOutOfViewIsStillRead();
    void ValuesComeFromTheLaw_data();
    void ValuesComeFromTheLaw();
};

using Kind = ViewDesk::Kind;

static double ValueInTable(const ViewDesk& desk, int line)
{
    return *desk.Model()->Table().Find(static_cast<std::size_t>(line), CursorColumn::Value)->Number;
}

void ViewCursorTest::AStandsAtTheMiddleTick_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("x");
    QTest::addColumn<QString>("text");
    QTest::newRow("25 °C") << static_cast<int>(Kind::CapacitanceOverTemperature) << 25.0 << "A 25 °C";
    QTest::newRow("100 kHz") << static_cast<int>(Kind::RiseOverFrequency) << 1e5 << "A 100 kHz";
    QTest::newRow("100 kHz as well") << static_cast<int>(Kind::AllowablePower) << 1e5 << "A 100 kHz";
}

void ViewCursorTest::AStandsAtTheMiddleTick()
{
    QFETCH(int, kind);
    QFETCH(QString, text);
    const ViewDesk desk(static_cast<Kind>(kind));
    QTEST(desk.Cursors().A(), "x");
    QVERIFY2(desk.CursorLine().startsWith(text), qPrintable(desk.CursorLine()));
    QVERIFY(!desk.Cursors().B());
}

void ViewCursorTest::KeysStepAlongTheStoredPoints()
{
    const ViewDesk desk;
    const auto& xs = desk.Scene().Lines[0].Line.XData;
    desk.Press(Qt::Key_Home);
    QCOMPARE(desk.Cursors().A(), static_cast<double>(xs.front()));
    desk.Press(Qt::Key_Right);
    QCOMPARE(desk.Cursors().A(), static_cast<double>(xs[1]));
    desk.Press(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(desk.Cursors().A(), static_cast<double>(xs[11]));
    desk.Press(Qt::Key_Left);
    QCOMPARE(desk.Cursors().A(), static_cast<double>(xs[10]));
    desk.Press(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(desk.Cursors().A(), static_cast<double>(xs[0]));
    desk.Press(Qt::Key_End);
    QCOMPARE(desk.Cursors().A(), static_cast<double>(xs.back()));
    desk.Press(Qt::Key_Right);
    QCOMPARE(desk.Cursors().A(), static_cast<double>(xs.back()));
    QCOMPARE(ValueInTable(desk, 0), static_cast<double>(desk.Scene().Lines[0].Line.YData.back()));
}

void ViewCursorTest::KeysStepAlongTheChosenLine()
{
    // X5R ends at 85 °C, the X7R of the third line at 125 °C.
    const ViewDesk desk(Kind::CapacitanceOverTemperature, 3);
    const double first = desk.Scene().Lines[0].Line.XData.back();
    const double third = desk.Scene().Lines[2].Line.XData.back();
    QVERIFY(first != third);
    desk.Press(Qt::Key_End);
    QCOMPARE(desk.Cursors().A(), first);
    for (int key = 0; key < 3; ++key)
    {
        desk.Press(Qt::Key_Down);
    }
    QCOMPARE(desk.Scene().Chosen, std::optional(2));
    desk.Press(Qt::Key_End);
    QCOMPARE(desk.Cursors().A(), third);
    desk.Press(Qt::Key_Up);
    QCOMPARE(desk.Scene().Chosen, std::optional(1));
}

void ViewCursorTest::EnterAndSpacePinAndFree()
{
    const ViewDesk desk;
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Cursors().IsPinnedA());
    QCOMPARE(desk.Table()->model()->columnCount(), 8);
    desk.Press(Qt::Key_Right);
    QCOMPARE(desk.Cursors().A(), 25.0);
    QVERIFY(*desk.Cursors().B() > 25.0);
    desk.Press(Qt::Key_Space);
    QVERIFY(desk.Cursors().IsPinnedB());
    desk.Press(Qt::Key_Enter);
    QVERIFY(!desk.Cursors().IsPinnedB());
    QVERIFY(desk.Cursors().IsPinnedA());
}

void ViewCursorTest::EscapeFreesThenCloses()
{
    const ViewDesk desk;
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_Escape);
    QVERIFY(desk.Cursors().IsPinnedA() && !desk.Cursors().IsPinnedB());
    desk.Press(Qt::Key_Escape);
    QVERIFY(!desk.Cursors().IsPinnedA());
    QCOMPARE(desk.Table()->model()->columnCount(), 5);
    desk.Press(Qt::Key_Escape);
    Settle();
    QCOMPARE(desk.View(), nullptr);
}

void ViewCursorTest::ATypedNumberIsMetExactly_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("comma");
    QTest::addColumn<double>("x");
    const int rise = static_cast<int>(Kind::RiseOverFrequency);
    const int temperature = static_cast<int>(Kind::CapacitanceOverTemperature);
    QTest::newRow("kilohertz") << rise << "300" << false << 300000.0;
    QTest::newRow("a unit") << rise << "0.3MHz" << false << 300000.0;
    QTest::newRow("the last one") << rise << "1000" << false << 1e6;
    QTest::newRow("the first one") << rise << "10" << false << 1e4;
    QTest::newRow("a fraction") << temperature << "24.5" << false << 24.5;
    QTest::newRow("a negative one") << temperature << "-40" << false << -40.0;
    QTest::newRow("a comma") << temperature << "24,5" << true << 24.5;
    QTest::newRow("a point where commas are written") << temperature << "24.5" << true << 24.5;
    QTest::newRow("a comma and a unit") << rise << "0,3MHz" << true << 300000.0;
}

void ViewCursorTest::ATypedNumberIsMetExactly()
{
    QFETCH(int, kind);
    QFETCH(QString, typed);
    QFETCH(bool, comma);
    QFETCH(double, x);
    const ViewDesk desk(static_cast<Kind>(kind));
    QLocale::setDefault(comma ? QLocale(QLocale::German) : QLocale::c());
    desk.TypeText(typed);
    QVERIFY(desk.Entry()->hasFocus());
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cursors().A(), x);
    QVERIFY(desk.Cursors().IsPinnedA());
    QVERIFY(desk.Canvas()->hasFocus());
    const ViewedLine& line = desk.Scene().Lines[1];
    QCOMPARE(ValueInTable(desk, 1), *ValueAt(line.Part, line.Line, x, CodeView::Eia));
}

void ViewCursorTest::ATypedNumberIsRefusedWithItsReason_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("reason");
    QTest::newRow("too small") << "5"
                               << "from 10 kHz to 1000 kHz";
    QTest::newRow("too large") << "1000.1"
                               << "from 10 kHz to 1000 kHz";
    QTest::newRow("far too large") << "1e99"
                                   << "from 10 kHz to 1000 kHz";
    QTest::newRow("no number") << "3x"
                               << "not the unit of a frequency";
    QTest::newRow("another unit") << "3V"
                                  << "not the unit of a frequency";
    QTest::newRow("a sign alone") << "-"
                                  << "not a number";
    QTest::newRow("a comma in the wrong place") << "3,0"
                                                << "not a number";
}

void ViewCursorTest::ATypedNumberIsRefusedWithItsReason()
{
    QFETCH(QString, typed);
    QFETCH(QString, reason);
    const ViewDesk desk(Kind::RiseOverFrequency);
    desk.TypeText(typed);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cursors().A(), 1e5);
    QVERIFY(!desk.Cursors().IsPinnedA());
    QVERIFY(desk.Entry()->hasFocus());
    QVERIFY(!desk.Entry()->styleSheet().isEmpty());
    QVERIFY2(desk.CursorLine().contains(reason), qPrintable(desk.CursorLine()));
    desk.TypeText("300");
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cursors().A(), 3e5);
    QVERIFY(desk.Entry()->styleSheet().isEmpty());
}

void ViewCursorTest::DigitsGoIntoTheEntry()
{
    for (const char first : {'7', '.', '-', ','})
    {
        const ViewDesk desk;
        QTest::keyClick(desk.Canvas(), first);
        QVERIFY(desk.Entry()->hasFocus());
        QCOMPARE(desk.Entry()->text(), QString(QLatin1Char(first)));
    }
}

void ViewCursorTest::EscapeInTheEntryGoesBackToTheChart()
{
    const ViewDesk desk;
    desk.TypeText("85");
    desk.Press(Qt::Key_Escape);
    QVERIFY(desk.Canvas()->hasFocus());
    QCOMPARE(desk.Entry()->text(), "25");
    QCOMPARE(desk.Cursors().A(), 25.0);
    QVERIFY(desk.View() != nullptr);
}

void ViewCursorTest::TheEntryKeepsItsOwnKeys()
{
    const ViewDesk desk;
    desk.TypeText("85");
    desk.Press(Qt::Key_Home);
    QCOMPARE(desk.Entry()->cursorPosition(), 0);
    desk.Press(Qt::Key_Right);
    QCOMPARE(desk.Entry()->cursorPosition(), 1);
    QCOMPARE(desk.Cursors().A(), 25.0);
}

void ViewCursorTest::TabGoesFromChartToEntryToTableToToolBar()
{
    const ViewDesk desk;
    QVERIFY(desk.Canvas()->hasFocus());
    desk.Press(Qt::Key_Tab);
    QVERIFY(desk.Entry()->hasFocus());
    desk.Press(Qt::Key_Tab);
    QVERIFY(desk.Table()->hasFocus());
    desk.Press(Qt::Key_Tab);
    QVERIFY(desk.View()->focusWidget()->inherits("QToolButton"));
    desk.Press(Qt::Key_Backtab);
    QVERIFY(desk.Table()->hasFocus());
}

void ViewCursorTest::TheLineTellsBothCursors()
{
    const ViewDesk desk(Kind::RiseOverFrequency);
    QVERIFY(desk.CursorLine().contains("Enter pins"));
    desk.TypeText("20");
    desk.Press(Qt::Key_Return);
    desk.TypeText("300");
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.CursorLine().simplified(),
             QStringLiteral("A 20 kHz B 300 kHz B \u2212 A +280 kHz B / A 15.00"));
}

void ViewCursorTest::ACursorOutOfViewIsStillRead()
{
    const ViewDesk desk;
    desk.Press(Qt::Key_End);
    const double value = ValueInTable(desk, 0);
    desk.Turn(desk.At(20, 50), 6);
    QVERIFY(desk.CursorLine().contains("outside the range shown"));
    QCOMPARE(ValueInTable(desk, 0), value);
    desk.Press(Qt::Key_0, Qt::ControlModifier);
    QVERIFY(!desk.CursorLine().contains("outside"));
}

void ViewCursorTest::ValuesComeFromTheLaw_data()
{
    QTest::addColumn<int>("kind");
    for (const Kind kind : {Kind::CapacitanceOverTemperature, Kind::CapacitanceOverBias,
                            Kind::RiseOverFrequency, Kind::AllowablePower})
    {
        QTest::addRow("chart %d", static_cast<int>(kind)) << static_cast<int>(kind);
    }
}

void ViewCursorTest::ValuesComeFromTheLaw()
{
    QFETCH(int, kind);
    const ViewDesk desk(static_cast<Kind>(kind), 6);
    const auto& xs = desk.Scene().Lines[0].Line.XData;
    for (const std::size_t point : {std::size_t{0}, std::size_t{1}, std::size_t{100}, std::size_t{199}})
    {
        desk.MoveTo(desk.At(37, 50));
        desk.Press(Qt::Key_Home);
        for (std::size_t step = 0; step < point; ++step)
        {
            desk.Press(Qt::Key_Right);
        }
        QCOMPARE(desk.Cursors().A(), static_cast<double>(xs[point]));
        QCOMPARE(ValueInTable(desk, 0), static_cast<double>(desk.Scene().Lines[0].Line.YData[point]));
    }
}

QTEST_MAIN(ViewCursorTest)
#include "ViewCursorTest.moc"
