/// The table of a chart view: order, copying, choosing, and its room.

#include "tests/chart/view/ViewDesk.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

class ViewTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AHeadingSortsUpDownAndBack();
    void TheOrderFollowsTheCursor();
    void LinesWithoutAValueStandLast();
    void TheChosenRowStaysWithItsLine();
    void AClickOnARowChoosesItsLine();
    void ComingToTheTableChoosesNothing();
    void RowsAreCopiedAsShown();
    void TheWholeTableIsCopiedWithPlainNumbers();
    void EachNumberTellsItsPlainFormInATip();
    void ANarrowTableShortensThenCondensesThenScrolls();
    void AllRowsAreSeenAtOnce();
    void EveryTextStandsWholeInTheUsualSizes_data();
    void EveryTextStandsWholeInTheUsualSizes();
};

using Kind = ViewDesk::Kind;

static QList<int> LinesInOrder(const ViewDesk& desk)
{
    QList<int> lines;
    for (int row = 0; row < desk.Model()->rowCount(); ++row)
    {
        lines << desk.Model()->LineOf(row);
    }
    return lines;
}

static void ClickHeading(const ViewDesk& desk, int column)
{
    const QHeaderView* const heads = desk.Table()->horizontalHeader();
    const QPoint place(heads->sectionViewportPosition(column) + 5, heads->height() / 2);
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, {}, place);
}

void ViewTableTest::AHeadingSortsUpDownAndBack()
{
    const ViewDesk desk(Kind::RiseOverFrequency, 6);
    ClickHeading(desk, 2);
    const QList<int> upwards = LinesInOrder(desk);
    const CursorTable& table = desk.Model()->Table();
    for (qsizetype row = 1; row < upwards.size(); ++row)
    {
        const auto value = [&](int line)
        { return *table.Find(static_cast<std::size_t>(line), CursorColumn::Value)->Number; };
        QVERIFY(value(upwards[row - 1]) <= value(upwards[row]));
    }
    QVERIFY(desk.Table()->horizontalHeader()->isSortIndicatorShown());
    ClickHeading(desk, 2);
    QCOMPARE(LinesInOrder(desk), QList<int>(upwards.crbegin(), upwards.crend()));
    ClickHeading(desk, 2);
    QCOMPARE(LinesInOrder(desk), (QList<int>{0, 1, 2, 3, 4, 5}));
    QVERIFY(!desk.Table()->horizontalHeader()->isSortIndicatorShown());
    ClickHeading(desk, 1);
    QCOMPARE(desk.Model()->index(0, 1).data().toString(), NumberOnDisplay("KTS21JB51E106MA01"));
    QCOMPARE(desk.Model()->index(5, 1).data().toString(), NumberOnDisplay("KTS43XR71E106KA01"));
}

void ViewTableTest::TheOrderFollowsTheCursor()
{
    // Without bias all have the same capacitance.
    const ViewDesk desk(Kind::CapacitanceOverBias, 6);
    ClickHeading(desk, 2);
    ClickHeading(desk, 2);
    desk.Canvas()->setFocus();
    desk.Press(Qt::Key_Home);
    const QList<int> without = LinesInOrder(desk);
    desk.TypeText("25");
    desk.Press(Qt::Key_Return);
    QVERIFY(LinesInOrder(desk) != without);
}

void ViewTableTest::LinesWithoutAValueStandLast()
{
    const ViewDesk desk(Kind::CapacitanceOverTemperature, 3);
    desk.TypeText("120");
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_Escape);
    QCOMPARE(desk.Model()->index(0, 2).data().toString(), QStringLiteral("\u2013"));
    ClickHeading(desk, 2);
    QCOMPARE(LinesInOrder(desk), (QList<int>{2, 0, 1}));
    ClickHeading(desk, 2);
    QCOMPARE(LinesInOrder(desk), (QList<int>{2, 0, 1}));
}

void ViewTableTest::TheChosenRowStaysWithItsLine()
{
    const ViewDesk desk(Kind::RiseOverFrequency, 6);
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Down);
    QCOMPARE(desk.Scene().Chosen, std::optional(1));
    ClickHeading(desk, 2);
    QCOMPARE(desk.Scene().Chosen, std::optional(1));
    const auto rows = desk.Table()->selectionModel()->selectedRows();
    QCOMPARE(rows.size(), 1);
    QCOMPARE(desk.Model()->LineOf(rows[0].row()), 1);
}

void ViewTableTest::AClickOnARowChoosesItsLine()
{
    const ViewDesk desk(Kind::RiseOverFrequency, 6);
    const QRect row = desk.Table()->visualRect(desk.Model()->index(3, 1));
    QTest::mouseClick(desk.Table()->viewport(), Qt::LeftButton, {}, row.center());
    QCOMPARE(desk.Scene().Chosen, std::optional(3));
    desk.Press(Qt::Key_Down);
    QCOMPARE(desk.Scene().Chosen, std::optional(4));
}

void ViewTableTest::ComingToTheTableChoosesNothing()
{
    const ViewDesk desk(Kind::RiseOverFrequency, 3);
    ClickHeading(desk, 2);
    desk.Canvas()->setFocus();
    desk.Table()->setFocus(Qt::TabFocusReason);
    QVERIFY(desk.Table()->hasFocus());
    QVERIFY(!desk.Scene().Chosen);
    desk.Press(Qt::Key_Down);
    QVERIFY(desk.Scene().Chosen.has_value());
}

void ViewTableTest::RowsAreCopiedAsShown()
{
    const ViewDesk desk(Kind::RiseOverFrequency, 6);
    desk.Table()->setFocus();
    desk.Table()->selectRow(2);
    desk.Press(Qt::Key_Down, Qt::ShiftModifier);
    desk.Press(Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[0].startsWith("No.\tPart number\tTemperature Rise at 100 kHz"));
    QVERIFY(lines[1].startsWith("3\t" + NumberOnDisplay("KTS32XR71E106KA01") + "\t"));
    QVERIFY(lines[2].startsWith("4\t" + NumberOnDisplay("KTS32XB51E106MA01") + "\t"));
}

void ViewTableTest::TheWholeTableIsCopiedWithPlainNumbers()
{
    const ViewDesk desk(Kind::CapacitanceOverTemperature, 2);
    desk.Press(Qt::Key_Home);
    desk.Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    QCOMPARE(lines[0], QStringLiteral("No.\tPart number\tCapacitance at \u221255 \u00B0C [pF]\tTo No.1 "
                                      "[pF]\tConditions"));
    const QStringList cells = lines[1].split(u'\t');
    QCOMPARE(cells[2].toFloat(), desk.Scene().Lines[0].Line.YData[0]);
    QCOMPARE(cells[3], "");
    QCOMPARE(cells[4], "12 V");
    QCOMPARE(lines.size(), 4);
}

void ViewTableTest::EachNumberTellsItsPlainFormInATip()
{
    const ViewDesk desk(Kind::CapacitanceOverTemperature, 2);
    desk.Press(Qt::Key_Home);
    const QString tip = desk.Model()->index(0, 2).data(Qt::ToolTipRole).toString();
    QVERIFY(tip.endsWith(" pF"));
    QCOMPARE(tip.chopped(3).toFloat(), desk.Scene().Lines[0].Line.YData[0]);
}

void ViewTableTest::ANarrowTableShortensThenCondensesThenScrolls()
{
    const ViewDesk desk(Kind::AllowablePower, 6);
    desk.View()->resize(1600, 700);
    Settle();
    QCOMPARE(desk.Model()->headerData(2, Qt::Horizontal).toString(), "Current at 100 kHz");
    QCOMPARE(desk.Table()->font().stretch(), 100);
    desk.Press(Qt::Key_Return);
    desk.View()->resize(600, 400);
    for (int key = 0; key < 4; ++key)
    {
        desk.Press(Qt::Key_F8);
    }
    Settle();
    QVERIFY(desk.Table()->font().stretch() < 100);
    QVERIFY(desk.Table()->horizontalScrollBar()->maximum() > 0);
    desk.Press(Qt::Key_Escape);
    // In between, the heading alone gives way.
    bool onlyTheHeading = false;
    for (int width = 1600; width >= 600; width -= 10)
    {
        desk.View()->resize(width, 400);
        Settle();
        onlyTheHeading =
            onlyTheHeading || (desk.Model()->headerData(2, Qt::Horizontal).toString() == "At 100 kHz" &&
                               desk.Table()->font().stretch() == 100);
    }
    QVERIFY(onlyTheHeading);
}

void ViewTableTest::AllRowsAreSeenAtOnce()
{
    ViewDesk desk(Kind::RiseOverFrequency, 5);
    QCOMPARE(desk.Table()->verticalScrollBar()->maximum(), 0);
    desk.PlotLine(5);
    Settle();
    QCOMPARE(desk.Table()->verticalScrollBar()->maximum(), 0);
    desk.View()->resize(1000, 700);
    Settle();
    QCOMPARE(desk.Table()->verticalScrollBar()->maximum(), 0);
}

void ViewTableTest::EveryTextStandsWholeInTheUsualSizes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("900 x 600") << QSize(900, 600);
    QTest::newRow("1200 x 800") << QSize(1200, 800);
    QTest::newRow("1920 x 1080") << QSize(1920, 1080);
}

void ViewTableTest::EveryTextStandsWholeInTheUsualSizes()
{
    QFETCH(QSize, size);
    const ViewDesk desk(Kind::RiseOverFrequency, 6);
    desk.View()->resize(size);
    desk.TypeText("20");
    desk.Press(Qt::Key_Return);
    desk.TypeText("300");
    desk.Press(Qt::Key_Return);
    Settle();
    const QFontMetrics letters(desk.Table()->font());
    QCOMPARE(desk.Table()->horizontalScrollBar()->maximum(), 0);
    for (int column = 1; column < desk.Model()->columnCount(); ++column)
    {
        for (int row = 0; row < 6; ++row)
        {
            const QString text = desk.Model()->index(row, column).data().toString();
            QVERIFY2(letters.horizontalAdvance(text) <= desk.Table()->columnWidth(column), qPrintable(text));
        }
    }
}

QTEST_MAIN(ViewTableTest)
#include "ViewTableTest.moc"
