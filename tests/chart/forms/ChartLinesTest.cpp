/// Lines of chart windows: adding, refusing, ranges, and what a failed plot leaves.

#include "app/mdlPublic.h"
#include "chart/FittedLabel.h"
#include "chart/frmGraph.h"
#include "partdata/RunTimeError.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QTest>
#include <QToolTip>

class ChartLinesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AddedLineWidensRanges();
    void LineAfterUserRangeBringsDefaultsBack();
    void SixLinesStandAndTheSeventhIsRefused();
    void SeventhLineOfOneChartLeavesOthersFree();
    void SameLineIsRefusedEvenAfterMove();
    void OtherAmbientTemperatureIsSecondLine();
    void OtherXAxisOpensAnotherWindow();
    void PanesNamePartAndConditions_data();
    void PanesNamePartAndConditions();
    void LongTextsAreFittedAndThoseCutHaveAToolTip();
    void RefusedParameterOpensNoWindow();
    void CalculationErrorLeavesEverythingAsBefore();
    void LineThatCannotBeShownOpensNoWindow();
    void LineThatCannotBeShownLeavesTheOpenWindow();
};

static const frmGraph* OnlyChart(const Desk& desk)
{
    return desk.Charts().size() == 1 ? desk.Charts().front() : nullptr;
}

static QString Pane(const frmGraph* chart, const char* kind, int i)
{
    return chart->findChild<FittedLabel*>(QStringLiteral("%1_%2").arg(kind).arg(i))->text();
}

static void VerifyRangeCoversLines(const frmGraph* chart)
{
    float xMax = -1E30F;
    float yMax = -1E30F;
    float xMin = 1E30F;
    float yMin = 1E30F;
    for (const ChartRecord& line : mdlPublic.Charts.ChartData())
    {
        xMax = std::max(xMax, line.XMax);
        yMax = std::max(yMax, line.YMax);
        xMin = std::min(xMin, line.XMin);
        yMin = std::min(yMin, line.YMin);
    }
    QCOMPARE(chart->Range().XMax, xMax);
    QCOMPARE(chart->Range().YMax, yMax);
    QCOMPARE(chart->Range().XMin, xMin);
    QCOMPARE(chart->Range().YMin, yMin);
}

void ChartLinesTest::AddedLineWidensRanges()
{
    Desk desk;
    desk.ClickChartType(2);
    const auto* parts = desk.Find<QComboBox>("cmbPartNum");
    desk.PlotCapacitance(parts->itemText(0), "0");
    const AxisRange first = OnlyChart(desk)->Range();
    desk.PlotCapacitance(parts->itemText(parts->count() - 1), "0");
    QVERIFY(OnlyChart(desk) != nullptr);
    QVERIFY(OnlyChart(desk)->Range().YMax > first.YMax || OnlyChart(desk)->Range().YMin < first.YMin);
    VerifyRangeCoversLines(OnlyChart(desk));
    desk.PlotCapacitance(parts->itemText(parts->count() / 2), "0");
    VerifyRangeCoversLines(OnlyChart(desk));
}

void ChartLinesTest::LineAfterUserRangeBringsDefaultsBack()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.Charts().front()->WriteMagnification(50, 2, 0, 1);
    desk.PlotCapacitance(ListedPart(desk, 1), "0");
    VerifyRangeCoversLines(OnlyChart(desk));
}

void ChartLinesTest::SixLinesStandAndTheSeventhIsRefused()
{
    Desk desk;
    desk.ClickChartType(2);
    QStringList numbers;
    for (int i = 0; i < 6; ++i)
    {
        numbers << ListedPart(desk, i);
        desk.PlotCapacitance(numbers.back(), "0");
    }
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    const frmGraph* chart = OnlyChart(desk);
    QVERIFY(chart != nullptr);
    for (int i = 0; i < 6; ++i)
    {
        QCOMPARE(Pane(chart, "lblStatus", i), numbers[i]);
        QCOMPARE(Pane(chart, "lblPara", i), QString("(0[V] )"));
    }
    desk.PlotCapacitance(ListedPart(desk, 6), "0");
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes.front().text, QString("Maximum Numbers of this Chart Type open!"));
    QCOMPARE(boxes.front().icon, QMessageBox::Warning);
    QCOMPARE(boxes.front().title, desk.main->windowTitle());
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{6});
    QCOMPARE(mdlPublic.Charts.ChartData().size(), std::size_t{6});
    QCOMPARE(Pane(chart, "lblStatus", 5), numbers[5]);
    QVERIFY(IsAtRest());
}

void ChartLinesTest::SeventhLineOfOneChartLeavesOthersFree()
{
    Desk desk;
    desk.ClickChartType(2);
    for (int i = 0; i < 6; ++i)
    {
        desk.PlotCapacitance(ListedPart(desk, i), "0");
    }
    desk.PlotCapacitance(ListedPart(desk, 6), "0", "Capacitance Change");
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(desk.Charts().size(), std::size_t{2});
    desk.Chart("Capacitance-Temperature Characteristics(Temperature,Capacitance)")->close();
    Settle();
    desk.PlotCapacitance(ListedPart(desk, 6), "0");
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{2});
}

void ChartLinesTest::SameLineIsRefusedEvenAfterMove()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.ClickPlot();
    QCOMPARE(desk.TakeText(), QString("This Chart is already opened!"));
    desk.Charts().front()->move(10, 200);
    desk.Charts().front()->resize(400, 200);
    desk.Type("txtDCBiasVol", "0.00");
    desk.ClickPlot();
    QCOMPARE(desk.TakeText(), QString("This Chart is already opened!"));
    desk.Charts().front()->showMinimized();
    desk.ClickPlot();
    QCOMPARE(desk.TakeText(), QString("This Chart is already opened!"));
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(StoreIsWhole());
}

void ChartLinesTest::OtherAmbientTemperatureIsSecondLine()
{
    Desk desk;
    desk.PlotRise(0, "25");
    desk.PlotRise(0, "30");
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QVERIFY(OnlyChart(desk) != nullptr);
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{2});
}

void ChartLinesTest::OtherXAxisOpensAnotherWindow()
{
    Desk desk;
    desk.PlotRise(0, "25");
    desk.PlotRise(0, "25", "Frequency");
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(desk.Charts().size(), std::size_t{2});
    QCOMPARE(desk.Charts()[0]->windowTitle(),
             QString("Temperature Rise Characteristics(Current,Temperature Rise)"));
    QCOMPARE(desk.Charts()[1]->windowTitle(),
             QString("Temperature Rise Characteristics(Frequency,Temperature Rise)"));
}

void ChartLinesTest::PanesNamePartAndConditions_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("conditions");
    // The heat resistance of the first part stands in its box; %1 takes it.
    QTest::newRow("load on X") << 0 << "Voltage" << QString::fromUtf8("(1[V],%1[°C/W],150[kHz],30.5[°C])");
    QTest::newRow("frequency on X") << 0 << "Frequency"
                                    << QString::fromUtf8("(1[V],%1[°C/W],30.5[°C],0.001[Arms])");
    QTest::newRow("over temperature") << 2 << "Temperature"
                                      << "(1[V] )";
    QTest::newRow("over DC voltage") << 3 << "DC Bias Voltage" << QString::fromUtf8("(30.5[ °C] )");
}

void ChartLinesTest::PanesNamePartAndConditions()
{
    QFETCH(int, type);
    QFETCH(QString, x);
    QFETCH(QString, conditions);
    Desk desk;
    desk.ClickChartType(type);
    desk.PickXAxis(x);
    const QString number = ListedPart(desk, 0);
    desk.TypePart(number);
    const QString heatResistance = desk.Text("txtHeatResistance");
    desk.Type("txtDCBiasVol", "1");
    desk.Type("txtAmbientTemp", "30.5");
    desk.Type("txtFrequency", "150");
    desk.Type("txtParameter", "0.001");
    desk.ClickPlot();
    QVERIFY(OnlyChart(desk) != nullptr);
    QCOMPARE(Pane(OnlyChart(desk), "lblStatus", 0), number);
    QCOMPARE(Pane(OnlyChart(desk), "lblPara", 0),
             conditions.contains("%1") ? conditions.arg(heatResistance) : conditions);
    QCOMPARE(Pane(OnlyChart(desk), "lblPara", 1), QString());
}

/// Shows the tool tip of a label, as a resting pointer does, and returns its text.
static QString ToolTipOf(FittedLabel& label)
{
    QToolTip::showText(QPoint(), QStringLiteral("another"), &label);
    QHelpEvent rest(QEvent::ToolTip, {5, 5}, label.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&label, &rest);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

/// The last column that is not of the ground's colour.
static int LastInk(FittedLabel& label)
{
    const QImage drawn = label.grab().toImage();
    int last = 0;
    for (int x = 0; x < drawn.width(); ++x)
    {
        for (int y = 0; y < drawn.height(); ++y)
        {
            last = drawn.pixel(x, y) == drawn.pixel(0, 0) ? last : x;
        }
    }
    return last;
}

void ChartLinesTest::LongTextsAreFittedAndThoseCutHaveAToolTip()
{
    FittedLabel label;
    label.setPalette(QPalette(Qt::white));
    const QString conditions = "(0[V],123.456789[C/W],150[kHz],30.5[C])";
    label.setText(conditions);
    label.show();
    const int width = label.fontMetrics().horizontalAdvance(conditions);
    for (const double share : {1.1, 0.9, 0.6})
    {
        // Whole, so that no tip is needed.
        label.resize(static_cast<int>(width * share), 17);
        QVERIFY(LastInk(label) < label.width());
        QVERIFY(LastInk(label) > width * std::min(share, 1.0) - 8);
        QVERIFY(ToolTipOf(label) != conditions);
    }
    label.resize(60, 17);
    QVERIFY(LastInk(label) < 60);
    QCOMPARE(ToolTipOf(label), conditions);
    QCOMPARE(label.text(), conditions);
    // What is shorter again stands in full size again, as in any label.
    label.setText("(0)");
    QLabel plain;
    plain.setPalette(QPalette(Qt::white));
    plain.resize(60, 17);
    plain.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    plain.setText("(0)");
    QCOMPARE(label.grab().toImage(), plain.grab().toImage());
}

void ChartLinesTest::RefusedParameterOpensNoWindow()
{
    Desk desk;
    desk.PlotRise(0, "25");
    desk.ClickChartType(0);
    desk.PickXAxis("Frequency");
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtDCBiasVol", "0");
    desk.Type("txtParameter", "1E6");
    desk.ClickPlot();
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes.front().icon, QMessageBox::Warning);
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
    QVERIFY(desk.HasFocus("txtParameter"));
    QCOMPARE(desk.Area()->currentSubWindow(), desk.Find<frmLibrary>("frmLibrary"));
    QCOMPARE(desk.Text("txtParameter"), QString("1E6"));
}

void ChartLinesTest::CalculationErrorLeavesEverythingAsBefore()
{
    // HVX0603X7R00286 has a fault on purpose: its temperature rise divides by zero.
    Desk desk(TEST_VECTORS);
    desk.ClickChartType(0);
    desk.TypePart("HVX0603X7R00286");
    QVERIFY(desk.CanPlot());
    desk.Type("txtDCBiasVol", "0");
    desk.Type("txtHeatResistance", "50");
    desk.Type("txtFrequency", "100");
    desk.ClickPlot();
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes.front().icon, QMessageBox::Critical);
    QCOMPARE(boxes.front().text, QString("Unexpected Error 11\nDivision by zero"));
    QCOMPARE(boxes.front().title, desk.main->windowTitle());
    QCOMPARE(desk.Charts().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{0});
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
    QCOMPARE(desk.Text("txtHeatResistance"), QString("50"));
    QVERIFY(desk.CanPlot());

    // Beside an open chart the error changes neither window nor store.
    desk.ClickChartType(2);
    desk.PlotCapacitance("HVX1210X7R00042", "0");
    const auto before = mdlPublic.Charts.ChartData().front().YData;
    desk.ClickChartType(0);
    desk.TypePart("HVX0603X7R00286");
    desk.Type("txtDCBiasVol", "0");
    desk.Type("txtHeatResistance", "50");
    desk.Type("txtFrequency", "100");
    desk.ClickPlot();
    QCOMPARE(desk.TakeText(), QString("Unexpected Error 11\nDivision by zero"));
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(mdlPublic.Charts.ChartData().front().YData == before);
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
}

/// A line over frequency whose parameter has no unit, so that its pane cannot be written.
static ChartRecord LineWithoutUnit()
{
    ChartRecord line;
    line.XAxisName = "Frequency";
    line.YAxisName = "Temperature Rise";
    line.ParameterName = "Weight";
    line.XMax = 1e6F;
    line.XMin = 1e4F;
    line.YMax = 80;
    return line;
}

void ChartLinesTest::LineThatCannotBeShownOpensNoWindow()
{
    Desk desk;
    mdlPublic.Charts.Write(LineWithoutUnit());
    QVERIFY_EXCEPTION_THROWN(desk.main->ShowNewChart(), RunTimeError);
    Settle();
    QCOMPARE(desk.main->OpenForms(), 2);
    QCOMPARE(desk.Area()->subWindowList().size(), 1);
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{0});
    // The next window is the first one, 50 twips from the top.
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    QVERIFY(OnlyChart(desk) != nullptr);
    QCOMPARE(OnlyChart(desk)->y(), 50 / 15);
    QCOMPARE(desk.main->OpenForms(), 3);
}

void ChartLinesTest::LineThatCannotBeShownLeavesTheOpenWindow()
{
    Desk desk;
    desk.ClickChartType(0);
    desk.PlotRise(0, "25", "Frequency");
    frmGraph* chart = desk.Charts().front();
    chart->WriteMagnification(5e5F, 60, 2e4F, 10);
    const QString para = Pane(chart, "lblPara", 0);
    mdlPublic.Charts.Write(LineWithoutUnit());
    QVERIFY_EXCEPTION_THROWN(desk.main->ShowSameChart(chart->Chart()), RunTimeError);
    mdlPublic.Charts.ClearWorkingRecord();
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(StoreIsWhole());
    QCOMPARE(OnlyChart(desk), chart);
    QCOMPARE(Pane(chart, "lblStatus", 0), ListedPart(desk, 0));
    QCOMPARE(Pane(chart, "lblPara", 0), para);
    QCOMPARE(Pane(chart, "lblStatus", 1), QString());
    QCOMPARE(Pane(chart, "lblPara", 1), QString());
    QCOMPARE(chart->Range().XMax, 5e5F);
    QCOMPARE(chart->Range().YMin, 10.0F);
}

QTEST_MAIN(ChartLinesTest)
#include "ChartLinesTest.moc"
