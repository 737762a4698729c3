/// Which axis ranges a chart takes, as a designer enters them.

#include "app/mdlPublic.h"
#include "chart/ChartPicture.h"
#include "chart/frmGraph.h"
#include "tests/chart/forms/AxisDialog.h"

#include <QLabel>
#include <QLocale>
#include <QTest>

static const QString NotNumeric = "A Non-numerical value exits where numerical value should be in.";

class AxisRangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void WhatIsNotANumberIsRefused_data();
    void WhatIsNotANumberIsRefused();
    void RangeBeyondTheDataIsRefused_data();
    void RangeBeyondTheDataIsRefused();
    void PermittedBoundsAreTaken();
    void RedrawsAtOnce();
    void FrequencyRangeIsTakenInKilohertz();
    void SecondRangeStartsFromTheFirst();
    void NextLineReturnsToTheDefaults();
    void CommaIsADecimalSignWhereUsersWriteIt();
};

void AxisRangeTest::WhatIsNotANumberIsRefused_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("offender");
    QTest::newRow("empty X from") << QStringList{"", "100", "-50", "10"} << "txtX_0";
    QTest::newRow("words in X to") << QStringList{"-20", "much", "-50", "10"} << "txtX_1";
    QTest::newRow("two signs in Y from") << QStringList{"-20", "100", "--5", "10"} << "txtY_0";
    QTest::newRow("comma in Y to") << QStringList{"-20", "100", "-50", "1,5"} << "txtY_1";
    QTest::newRow("first of two") << QStringList{"-20", "x", "y", "10"} << "txtX_1";
    QTest::newRow("before any range") << QStringList{"-9999", "100", "-50", "inf"} << "txtY_1";
}

void AxisRangeTest::WhatIsNotANumberIsRefused()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, offender);
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    const auto before = RangeOf(chart);
    InDialog(desk,
             [&](QDialog& dialog)
             {
                 Fill(dialog, entries);
                 Enter(dialog);
                 const auto boxes = desk.TakeBoxes();
                 QCOMPARE(boxes.size(), std::size_t{1});
                 QCOMPARE(boxes.front().text, NotNumeric);
                 QCOMPARE(boxes.front().icon, QMessageBox::Warning);
                 QCOMPARE(boxes.front().title, desk.main->windowTitle());
                 QVERIFY(dialog.isVisible());
                 QCOMPARE(dialog.focusWidget()->objectName(), offender);
                 QCOMPARE(Box(dialog, offender)->selectedText(), Box(dialog, offender)->text());
             });
    QCOMPARE(RangeOf(chart), before);
}

void AxisRangeTest::RangeBeyondTheDataIsRefused_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("offender");
    QTest::addColumn<QString>("message");
    const auto temperature = [](const char* name, const QStringList& entries, const char* offender)
    {
        // The axis goes from -75 to 125, and the user may go 200 further on either side.
        QTest::newRow(name) << 2 << "Temperature"
                            << "Capacitance Change" << entries << offender
                            << "Set X Range of Temperature from -275 to 325 [C]";
    };
    temperature("temperature below", {"-275.1", "100", "-10", "10"}, "txtX_0");
    temperature("temperature above", {"-55", "325.1", "-10", "10"}, "txtX_1");
    temperature("both beyond", {"-999", "999", "-10", "10"}, "txtX_0");
    temperature("from above to", {"100", "50", "-10", "10"}, "txtX_1");
    temperature("from equals to", {"50", "50", "-10", "10"}, "txtX_1");
    temperature("greater than any single", {"-55", "1E39", "-10", "10"}, "txtX_1");
    temperature("less than any single", {"-1E39", "100", "-10", "10"}, "txtX_0");
    const auto frequency = [](const char* name, const QStringList& entries, const char* offender)
    {
        QTest::newRow(name) << 0 << "Frequency"
                            << "Temperature Rise" << entries << offender
                            << "Set X Range of Frequency from 10 to 1000 [kHz]";
    };
    frequency("frequency below", {"9.99", "1000", "0", "80"}, "txtX_0");
    frequency("frequency above", {"10", "1001", "0", "80"}, "txtX_1");
    QTest::newRow("voltage below zero") << 3 << "DC Bias Voltage"
                                        << "Capacitance" << QStringList{"-0.1", "1", "1", "2"} << "txtX_0"
                                        << "Set X Range of DC Bias Voltage from 0 to %1 [V]";
    QTest::newRow("Y after X") << 2 << "Temperature"
                               << "Capacitance Change" << QStringList{"0", "100", "-10", "9999"} << "txtY_1"
                               << "Set Y Range of Capacitance Change from %3 to %2 [%]";
    QTest::newRow("rise below zero") << 0 << "Current"
                                     << "Temperature Rise" << QStringList{"0", "0.0001", "-1", "20"}
                                     << "txtY_0"
                                     << "Set Y Range of Temperature Rise from 0 to %2 [C]";
    QTest::newRow("power above") << 1 << "Frequency"
                                 << "Apparent Power" << QStringList{"10", "1000", "0.1", "1E9"} << "txtY_?"
                                 << "Set Y Range of Apparent Power from %5 to %4 [VA]";
}

/// The limits that a message names, worked out in decimals from the ranges of the chart.
static QString WithLimits(QString message, const AxisRange& range)
{
    const auto text = [](double value) { return QString::number(value, 'g', 7); };
    const double xSpan = double{range.XMax} - double{range.XMin};
    const double ySpan = double{range.YMax} - double{range.YMin};
    message.replace("%1", text(range.XMax + xSpan));
    message.replace("%2", text(range.YMax + ySpan));
    message.replace("%3", text(range.YMin - ySpan));
    message.replace("%4", text(range.YMax * 10.0));
    return message.replace("%5", text(range.YMin / 10.0));
}

void AxisRangeTest::RangeBeyondTheDataIsRefused()
{
    QFETCH(int, type);
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(QStringList, entries);
    QFETCH(QString, offender);
    QFETCH(QString, message);
    Desk desk;
    frmGraph* chart = PlotKind(desk, type, x, y);
    const auto before = RangeOf(chart);
    InDialog(desk,
             [&](QDialog& dialog)
             {
                 Fill(dialog, entries);
                 Enter(dialog);
                 const auto boxes = desk.TakeBoxes();
                 QCOMPARE(boxes.size(), std::size_t{1});
                 QCOMPARE(boxes.front().text, WithLimits(message, chart->Range()));
                 QCOMPARE(boxes.front().icon, QMessageBox::Warning);
                 QVERIFY(dialog.isVisible());
                 const bool lowerY = entries[2].toFloat() < chart->Range().YMin / 10;
                 const QString box = offender.replace('?', lowerY ? "0" : "1");
                 QCOMPARE(dialog.focusWidget()->objectName(), box);
                 QCOMPARE(Box(dialog, box)->selectedText(), Box(dialog, box)->text());
             });
    QCOMPARE(RangeOf(chart), before);
}

void AxisRangeTest::PermittedBoundsAreTaken()
{
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 Fill(dialog, {"-275", "325", "-1", "1"});
                 Enter(dialog);
                 QVERIFY(!dialog.isVisible());
             });
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(RangeOf(chart), (std::array<float, 4>{325, 1, -275, -1}));
}

void AxisRangeTest::RedrawsAtOnce()
{
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    const auto lines = mdlPublic.Charts.CurrentChart();
    chart->move(321, 123);
    chart->findChild<QLabel*>("sbr1_1")->setText("Temperature 20");
    const auto* picture = chart->findChild<ChartPicture*>("picGraph");
    const QImage before = chart->findChild<ChartPicture*>("picGraph")->grab().toImage();
    InDialog(desk,
             [](QDialog& dialog)
             {
                 Fill(dialog, {"-20.5", "80", "-12", "8"});
                 Enter(dialog);
             });
    QCOMPARE(RangeOf(chart), (std::array<float, 4>{80, 8, -20.5F, -12}));
    QVERIFY(picture->View().Rescaled);
    QVERIFY(chart->findChild<ChartPicture*>("picGraph")->grab().toImage() != before);
    QCOMPARE(chart->geometry(), QRect(200, 123, 733, 295));
    QCOMPARE(chart->findChild<QLabel*>("sbr1_1")->text(), QString());
    QCOMPARE(mdlPublic.Charts.CurrentChart(), lines);
    QVERIFY(StoreIsWhole());
    // X -55 is left of the plot now: -34.5 of a span of 100.5.
    QVERIFY(std::abs(mdlPublic.Charts.ChartData()[0].XPos[0] - -34.3284F) < 0.001F);
}

void AxisRangeTest::FrequencyRangeIsTakenInKilohertz()
{
    Desk desk;
    frmGraph* chart = PlotKind(desk, 0, "Frequency", "Temperature Rise");
    InDialog(desk,
             [](QDialog& dialog)
             {
                 Fill(dialog, {"20", "500", "0", "5"});
                 Enter(dialog);
             });
    QCOMPARE(RangeOf(chart), (std::array<float, 4>{500000, 5, 20000, 0}));
}

void AxisRangeTest::SecondRangeStartsFromTheFirst()
{
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 Fill(dialog, {"0", "10", "-2", "2"});
                 Enter(dialog);
             });
    InDialog(desk,
             [](QDialog& dialog)
             {
                 QCOMPARE(Boxes(dialog), QStringList({"0", "10", "-2", "2"}));
                 // The way back is open: what is permitted follows the data, not the range in force.
                 Fill(dialog, {"-55", "125", "-3", "3"});
                 Enter(dialog);
             });
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(RangeOf(chart), (std::array<float, 4>{125, 3, -55, -3}));
}

void AxisRangeTest::NextLineReturnsToTheDefaults()
{
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    const auto before = RangeOf(chart);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 Fill(dialog, {"0", "10", "-2", "2"});
                 Enter(dialog);
             });
    QVERIFY(RangeOf(chart) != before);
    desk.Type("txtDCBiasVol", "1");
    desk.ClickPlot();
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{2});
    QCOMPARE(chart->Range().XMin, -75.0F);
    QCOMPARE(chart->Range().XMax, 125.0F);
    QVERIFY(chart->Range().YMin <= before[3] && chart->Range().YMax >= before[1]);
    QVERIFY(!chart->findChild<ChartPicture*>("picGraph")->View().Rescaled);
}

void AxisRangeTest::CommaIsADecimalSignWhereUsersWriteIt()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 Fill(dialog, {"-20,5", "80.25", "-2,5", "2"});
                 Enter(dialog);
             });
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(RangeOf(chart), (std::array<float, 4>{80.25F, 2, -20.5F, -2.5F}));
    // Numbers are shown with a point wherever the user lives.
    InDialog(desk,
             [](QDialog& dialog) {
                 QCOMPARE(Boxes(dialog), QStringList({"-20.5", "80.25", "-2.5", "2"}));
             });
}

QTEST_MAIN(AxisRangeTest)
#include "AxisRangeTest.moc"
