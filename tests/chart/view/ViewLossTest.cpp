/// The loss resistances of a heating chart's parts in the chart's view.

#include "chart/frmGraph.h"
#include "chart/layout/LossLines.h"
#include "tests/chart/view/ViewDesk.h"

#include <QTest>

class ViewLossTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ControlLShowsThemAndTheChartAgain_data();
    void ControlLShowsThemAndTheChartAgain();
    void EachKeepsItsOwnRange();
    void CursorsComeBackWithTheChart();
    void CursorsStandOnTheNewAxis();
    void ALineThatIsPlottedMeanwhileIsShown();
    void RangeStaysAwayFromTheChartWindow();
    void ConditionsAreThoseOfTheChart();
    void CapacitanceChartsHaveNone();
};

static const ChartKey LossChart = {4, "Frequency", "Loss Resistance"};

static void PressControlL(const ViewDesk& desk)
{
    desk.Press(Qt::Key_L, Qt::ControlModifier);
}

static QStringList EntriesOf(const ViewDesk& desk)
{
    SendContextMenu(desk.Canvas(), desk.At(50, 50));
    QStringList entries;
    for (const QAction* entry : OpenMenu()->actions())
    {
        entries << PlainTextOf(entry);
    }
    OpenMenu()->close();
    return entries;
}

void ViewLossTest::ControlLShowsThemAndTheChartAgain_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("temperature rise over current") << static_cast<int>(ViewDesk::Kind::RiseOverCurrent);
    QTest::newRow("temperature rise") << static_cast<int>(ViewDesk::Kind::RiseOverFrequency);
    QTest::newRow("allowable power") << static_cast<int>(ViewDesk::Kind::AllowablePower);
}

void ViewLossTest::ControlLShowsThemAndTheChartAgain()
{
    QFETCH(const int, kind);
    const ViewDesk desk(static_cast<ViewDesk::Kind>(kind));
    const ViewScene before = desk.Scene();
    const QString title = desk.View()->windowTitle();
    PressControlL(desk);
    QVERIFY(desk.Scene().View.Chart == LossChart);
    QCOMPARE(desk.View()->windowTitle(), "Chart View - Loss Resistance(Frequency,Loss Resistance)");
    const auto expected = LossLinesOf(before.Lines, desk.Scene().Code);
    QCOMPARE(desk.Scene().Lines.size(), before.Lines.size());
    for (std::size_t line = 0; line < expected.size(); ++line)
    {
        QCOMPARE(desk.Scene().Lines[line].Line.YData, expected[line].Line.YData);
        QCOMPARE(desk.Scene().Lines[line].Line.AmbientTemp, before.Lines[line].Line.AmbientTemp);
        QCOMPARE(desk.Scene().Lines[line].PartNumber, before.Lines[line].PartNumber);
    }
    QVERIFY(EntriesOf(desk).contains("Loss Resistance"));
    SendContextMenu(desk.Canvas(), desk.At(50, 50));
    Choose(OpenMenu(), "Loss Resistance");
    QVERIFY(desk.Scene().View.Chart == before.View.Chart);
    QVERIFY(desk.Scene().View.Range == before.View.Range);
    QCOMPARE(desk.Scene().Lines[0].Line.YData, before.Lines[0].Line.YData);
    QCOMPARE(desk.View()->windowTitle(), title);
}

void ViewLossTest::EachKeepsItsOwnRange()
{
    const ViewDesk desk(ViewDesk::Kind::AllowablePower);
    desk.Turn(desk.At(50, 50), 3);
    const AxisRange chart = desk.Scene().View.Range;
    PressControlL(desk);
    const AxisRange whole = desk.Scene().View.Range;
    QCOMPARE(whole.XMin, 1e4F);
    QCOMPARE(whole.XMax, 1e6F);
    desk.Turn(desk.At(30, 60), 2);
    const AxisRange zoomed = desk.Scene().View.Range;
    QVERIFY(zoomed != whole);
    PressControlL(desk);
    QVERIFY(desk.Scene().View.Range == chart);
    PressControlL(desk);
    QVERIFY(desk.Scene().View.Range == zoomed);
}

void ViewLossTest::CursorsComeBackWithTheChart()
{
    ViewDesk desk(ViewDesk::Kind::RiseOverFrequency);
    desk.TypeText("300");
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Cursors().IsPinnedA());
    QCOMPARE(desk.Cursors().A(), 3e5);
    PressControlL(desk);
    // The same axis: they stay where they are.
    QCOMPARE(desk.Cursors().A(), 3e5);
    desk.Press(Qt::Key_Escape);
    QVERIFY(!desk.Cursors().IsPinnedA());
    PressControlL(desk);
    QVERIFY(desk.Cursors().IsPinnedA());
    QCOMPARE(desk.Cursors().A(), 3e5);
}

void ViewLossTest::CursorsStandOnTheNewAxis()
{
    const ViewDesk desk(ViewDesk::Kind::RiseOverCurrent);
    desk.TypeText("1.5");
    desk.Press(Qt::Key_Return);
    PressControlL(desk);
    QVERIFY(!desk.Cursors().IsPinnedA());
    QCOMPARE(desk.Cursors().A(), 1e5);
    QVERIFY2(desk.CursorLine().startsWith("A 100 kHz"), qPrintable(desk.CursorLine()));
    PressControlL(desk);
    QVERIFY(desk.Cursors().IsPinnedA());
    QCOMPARE(desk.Cursors().A(), 1.5);
    QVERIFY2(desk.CursorLine().startsWith("A 1.5 Arms"), qPrintable(desk.CursorLine()));
}

void ViewLossTest::ALineThatIsPlottedMeanwhileIsShown()
{
    ViewDesk desk(ViewDesk::Kind::AllowablePower);
    PressControlL(desk);
    desk.PlotLine(2);
    Settle();
    QVERIFY(desk.Scene().View.Chart == LossChart);
    QCOMPARE(desk.Scene().Lines.size(), 3U);
    QVERIFY(desk.Scene().Lines[2].Line.YData.front() > 0);
    QCOMPARE(desk.Table()->model()->rowCount(), 3);
}

void ViewLossTest::RangeStaysAwayFromTheChartWindow()
{
    const ViewDesk desk(ViewDesk::Kind::AllowablePower);
    const AxisRange chart = desk.Chart()->View().Range;
    auto* const command = desk.Find<QAction>("mnuToChartWindow");
    QVERIFY(command->isEnabled());
    PressControlL(desk);
    QVERIFY(!command->isEnabled());
    desk.Press(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(desk.Chart()->View().Range == chart);
    PressControlL(desk);
    QVERIFY(command->isEnabled());
}

void ViewLossTest::ConditionsAreThoseOfTheChart()
{
    ViewDesk desk(ViewDesk::Kind::AllowablePower);
    desk.desk.TypePart(NumberOnDisplay("KTS32XR71E106KA01"));
    desk.desk.Type("txtDCBiasVol", "3");
    PressControlL(desk);
    desk.Press(Qt::Key_F4);
    QCOMPARE(desk.desk.Text("txtDCBiasVol"), "12");
}

void ViewLossTest::CapacitanceChartsHaveNone()
{
    const ViewDesk desk(ViewDesk::Kind::CapacitanceOverBias);
    const ChartKey chart = desk.Scene().View.Chart;
    PressControlL(desk);
    QVERIFY(desk.Scene().View.Chart == chart);
    QVERIFY(!EntriesOf(desk).contains("Loss Resistance"));
}

QTEST_MAIN(ViewLossTest)
#include "ViewLossTest.moc"
