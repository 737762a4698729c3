/// The dialog for the axis ranges of a chart, used by keys as a designer does.

#include "app/mdlPublic.h"
#include "chart/ChartPicture.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTest>

#include <functional>

static const QString NotNumeric = "A Non-numerical value exits where numerical value should be in.";

class AxisRangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void StartsWithTheRangesInForce();
    void ShowsFrequenciesInKilohertz();
    void UnitsStandBehindTheBoxes_data();
    void UnitsStandBehindTheBoxes();
    void BothFramesHaveTheSameLabels();
    void IsCentredOverTheMainWindow();
    void BoxesSelectTheirTextByKey();
    void BoxesSelectTheirTextByMouse();
    void AccessKeysLeadToTheBoxes();
    void WhatIsNotANumberIsRefused_data();
    void WhatIsNotANumberIsRefused();
    void RangeBeyondTheDataIsRefused_data();
    void RangeBeyondTheDataIsRefused();
    void PermittedBoundsAreTaken();
    void RedrawsAtOnce();
    void FrequencyRangeIsTakenInKilohertz();
    void SecondRangeStartsFromTheFirst();
    void CancelChangesNothing_data();
    void CancelChangesNothing();
    void NextLineReturnsToTheDefaults();
    void CommaIsADecimalSignWhereUsersWriteIt();
};

/// Opens the dialog of the active chart and does something there; what is left open is closed by Escape.
static void InDialog(Desk& desk, const std::function<void(QDialog&)>& act)
{
    bool shown = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look,
                     [&]
                     {
                         auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                         if (dialog != nullptr && dialog->objectName() == "frmSetAxis")
                         {
                             look.stop();
                             shown = true;
                             QApplication::setActiveWindow(dialog);
                             act(*dialog);
                             if (dialog->isVisible())
                             {
                                 QTest::keyClick(dialog, Qt::Key_Escape);
                             }
                         }
                     });
    look.start(1);
    desk.Choose("mnuChartExpand");
    QVERIFY(shown);
}

static QLineEdit* Box(const QDialog& dialog, const QString& name)
{
    return dialog.findChild<QLineEdit*>(name);
}

static QStringList Boxes(const QDialog& dialog)
{
    QStringList texts;
    for (const char* name : {"txtX_0", "txtX_1", "txtY_0", "txtY_1"})
    {
        texts << Box(dialog, name)->text();
    }
    return texts;
}

/// Types into the box that has the focus.
static void Type(const QDialog& dialog, const QString& text)
{
    QTest::keyClicks(dialog.focusWidget(), text);
}

/// Fills all four boxes, going from one to the next by Tab.
static void Fill(QDialog& dialog, const QStringList& texts)
{
    Box(dialog, "txtX_0")->setFocus();
    for (const QString& text : texts)
    {
        dialog.focusWidget()->setFocus();
        qobject_cast<QLineEdit*>(dialog.focusWidget())->selectAll();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Delete);
        Type(dialog, text);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
}

static void Enter(QDialog& dialog)
{
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
}

static std::array<float, 4> RangeOf(const frmGraph* chart)
{
    const AxisRange& range = chart->Range();
    return {range.XMax, range.YMax, range.XMin, range.YMin};
}

/// One line of each kind of chart, each with part 0 of its list.
static frmGraph* PlotKind(Desk& desk, int type, const QString& x, const QString& y)
{
    desk.ClickChartType(type);
    desk.PickXAxis(x);
    desk.PickYAxis(y);
    desk.TypePart(ListedPart(desk, 0));
    if (type != 3)
    {
        desk.Type("txtDCBiasVol", "0");
    }
    if (type == 0 || type == 1)
    {
        desk.Type("txtAmbientTemp", "25");
    }
    if (type == 0)
    {
        desk.Type(x == "Frequency" ? "txtParameter" : "txtFrequency", x == "Frequency" ? "0.001" : "100");
    }
    desk.ClickPlot();
    return desk.Charts().size() == 1 ? desk.Charts().front() : nullptr;
}

static frmGraph* PlotCapacitance(Desk& desk)
{
    return PlotKind(desk, 2, "Temperature", "Capacitance Change");
}

void AxisRangeTest::StartsWithTheRangesInForce()
{
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    chart->WriteMagnification(100.5F, 12, -20, -30.25F);
    InDialog(desk,
             [](QDialog& dialog) {
                 QCOMPARE(Boxes(dialog), QStringList({"-20", "100.5", "-30.25", "12"}));
             });
}

void AxisRangeTest::ShowsFrequenciesInKilohertz()
{
    Desk desk;
    QVERIFY(PlotKind(desk, 0, "Frequency", "Temperature Rise") != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 QCOMPARE(Box(dialog, "txtX_0")->text(), QString("10"));
                 QCOMPARE(Box(dialog, "txtX_1")->text(), QString("1000"));
             });
}

void AxisRangeTest::UnitsStandBehindTheBoxes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("xUnit");
    QTest::addColumn<QString>("yUnit");
    const QString degrees = QString::fromUtf8("[°C]");
    QTest::newRow("rise") << 0 << "Current"
                          << "Temperature Rise"
                          << "[Arms]" << degrees;
    QTest::newRow("rise over frequency") << 0 << "Frequency"
                                         << "Temperature Rise"
                                         << "[kHz]" << degrees;
    QTest::newRow("power") << 1 << "Frequency"
                           << "Apparent Power"
                           << "[kHz]"
                           << "[VA]";
    QTest::newRow("temperature") << 2 << "Temperature"
                                 << "Capacitance" << degrees << "[pF]";
    QTest::newRow("voltage") << 3 << "DC Bias Voltage"
                             << "Capacitance Change"
                             << "[V]"
                             << "[%]";
}

void AxisRangeTest::UnitsStandBehindTheBoxes()
{
    QFETCH(int, type);
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(QString, xUnit);
    QFETCH(QString, yUnit);
    Desk desk;
    QVERIFY(PlotKind(desk, type, x, y) != nullptr);
    InDialog(desk,
             [&](QDialog& dialog)
             {
                 QCOMPARE(dialog.findChild<QLabel*>("lblXunit")->text(), xUnit);
                 QCOMPARE(dialog.findChild<QLabel*>("lblYunit")->text(), yUnit);
             });
}

void AxisRangeTest::BothFramesHaveTheSameLabels()
{
    Desk desk;
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const auto& [frame, title, boxes] :
                      {std::tuple{"fraXaxis", "X axis", "txtX_%1"}, {"fraYaxis", "Y axis", "txtY_%1"}})
                 {
                     const auto* group = dialog.findChild<QGroupBox*>(frame);
                     QCOMPARE(group->title(), QString(title));
                     const auto* from = group->findChild<QLabel*>("lblFrom");
                     const auto* to = group->findChild<QLabel*>("lblTo");
                     QVERIFY(from != nullptr && to != nullptr);
                     QCOMPARE(from->text().remove('&'), QString("From:"));
                     QCOMPARE(to->text().remove('&'), QString("To:"));
                     QCOMPARE(from->buddy()->objectName(), QString(boxes).arg(0));
                     QCOMPARE(to->buddy()->objectName(), QString(boxes).arg(1));
                 }
                 QCOMPARE(dialog.findChild<QPushButton*>("cmdOK")->text(), QString("OK"));
                 QCOMPARE(dialog.findChild<QPushButton*>("cmdCancel")->text(), QString("Cancel"));
                 QCOMPARE(dialog.font().family(), QString("Arial"));
             });
}

void AxisRangeTest::IsCentredOverTheMainWindow()
{
    Desk desk;
    desk.main->move(40, 30);
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [&](QDialog& dialog)
             {
                 const QRect over = desk.main->frameGeometry();
                 const QRect own = dialog.frameGeometry();
                 QVERIFY(std::abs(own.x() - over.x() - (over.width() - own.width()) / 2) <= 1);
                 QVERIFY(std::abs(own.y() - over.y() - (over.height() - own.height()) / 2) <= 1);
                 QVERIFY(dialog.isModal());
             });
}

void AxisRangeTest::BoxesSelectTheirTextByKey()
{
    Desk desk;
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const char* name : {"txtX_0", "txtX_1", "txtY_0", "txtY_1"})
                 {
                     QCOMPARE(dialog.focusWidget()->objectName(), QString(name));
                     QCOMPARE(Box(dialog, name)->selectedText(), Box(dialog, name)->text());
                     QCOMPARE(Box(dialog, name)->selectionStart(), 0);
                     QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
                 }
                 QCOMPARE(dialog.focusWidget()->objectName(), QString("cmdOK"));
             });
}

void AxisRangeTest::BoxesSelectTheirTextByMouse()
{
    Desk desk;
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const char* name : {"txtY_1", "txtX_1", "txtY_0", "txtX_0"})
                 {
                     QTest::mouseClick(Box(dialog, name), Qt::LeftButton);
                     QCoreApplication::processEvents();
                     QCOMPARE(Box(dialog, name)->selectedText(), Box(dialog, name)->text());
                 }
                 // A second click into the same box puts the cursor there.
                 QTest::qWait(QApplication::doubleClickInterval() + 50);
                 QTest::mouseClick(Box(dialog, "txtX_0"), Qt::LeftButton);
                 QCoreApplication::processEvents();
                 QCOMPARE(Box(dialog, "txtX_0")->selectedText(), QString());
             });
}

void AxisRangeTest::AccessKeysLeadToTheBoxes()
{
    Desk desk;
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const auto& [key, name] : {std::pair{Qt::Key_T, "txtX_1"},
                                                 {Qt::Key_R, "txtY_0"},
                                                 {Qt::Key_O, "txtY_1"},
                                                 {Qt::Key_F, "txtX_0"}})
                 {
                     QTest::keyClick(dialog.focusWidget(), key, Qt::AltModifier);
                     QCOMPARE(dialog.focusWidget()->objectName(), QString(name));
                     QCOMPARE(Box(dialog, name)->selectedText(), Box(dialog, name)->text());
                 }
             });
}

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
    const auto lines = mdlPublic.Charts.CurrentChart;
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
    QCOMPARE(mdlPublic.Charts.CurrentChart, lines);
    QVERIFY(StoreIsWhole());
    // X -55 is left of the plot now: -34.5 of a span of 100.5.
    QVERIFY(std::abs(mdlPublic.Charts.ChartData[0].XPos[0] - -34.3284F) < 0.001F);
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

void AxisRangeTest::CancelChangesNothing_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("Escape") << true;
    QTest::newRow("Cancel") << false;
}

void AxisRangeTest::CancelChangesNothing()
{
    QFETCH(bool, byEscape);
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    chart->move(321, 123);
    const auto before = RangeOf(chart);
    InDialog(desk,
             [&](QDialog& dialog)
             {
                 Fill(dialog, {"0", "10", "not", "2"});
                 if (byEscape)
                 {
                     QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
                 }
                 else
                 {
                     QTest::mouseClick(dialog.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
                 }
                 QVERIFY(!dialog.isVisible());
             });
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(RangeOf(chart), before);
    QCOMPARE(chart->pos(), QPoint(321, 123));
    QVERIFY(!chart->findChild<ChartPicture*>("picGraph")->View().Rescaled);
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
    QCOMPARE(mdlPublic.Charts.CurrentChart, std::int16_t{2});
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
