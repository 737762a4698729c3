/// Closing chart windows: whose lines leave the store, and what stays.

#include "app/mdlPublic.h"
#include "calc/ChartNames.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QPointer>
#include <QTest>

class ChartUnloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OnlyWindowLeavesOneEmptyRecord();
    void LinesBetweenOthersLeaveTheirOrder();
    void ClosingInTheMiddleKeepsWindowsAndCount();
    void ClosedWindowIsDestroyed();
    void MinimisedWindowTakesItsLinesAlong();
    void ChartCanBeOpenedAgain();
    void LinesOfOtherTypeWithSameAxesStay();
    void WindowKnowsItsChartWhateverItsTitle();
    void SelectionFormCannotBeClosed();
    void MainWindowGoesWithOpenCharts();
};

static const QString Absolute = "Capacitance-Temperature Characteristics(Temperature,Capacitance)";
static const QString Change = "Capacitance-Temperature Characteristics(Temperature,Capacitance Change)";

/// The parts of the store's lines, in order, as rows of the part-number list of chart type 2.
static QStringList StoredParts()
{
    QStringList parts;
    for (const ChartRecord& line : mdlPublic.Charts.ChartData())
    {
        const auto& part = mdlPublic.Parts.PartData[static_cast<std::size_t>(line.PartDataIndex)];
        parts << QString::fromLatin1(part.PartNum[0].data(), part.PartNum[0].size());
    }
    return parts;
}

void ChartUnloadTest::OnlyWindowLeavesOneEmptyRecord()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 4), "1");
    desk.PlotCapacitance(ListedPart(desk, 5), "1");
    desk.ClickCloseBox(desk.Charts().front());
    QCOMPARE(desk.Charts().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{0});
    QCOMPARE(mdlPublic.Charts.ChartData().size(), std::size_t{1});
    const ChartRecord& left = mdlPublic.Charts.ChartData().front();
    QVERIFY(left.XAxisName.empty() && left.YAxisName.empty() && left.ParameterName.empty());
    QCOMPARE(left.DCBiasVoltage, 0.0F);
    QCOMPARE(left.PartDataIndex, 0);
    QVERIFY(left.YData == CurveValues{});
    QCOMPARE(desk.main->OpenForms(), 2);
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void ChartUnloadTest::LinesBetweenOthersLeaveTheirOrder()
{
    Desk desk;
    desk.ClickChartType(2);
    QStringList n;
    for (int i = 0; i < 5; ++i)
    {
        n << ListedPart(desk, 3 * i);
    }
    desk.PlotCapacitance(n[0], "0");
    desk.PlotCapacitance(n[1], "0", "Capacitance Change");
    desk.PlotCapacitance(n[2], "0");
    desk.PlotCapacitance(n[3], "0", "Capacitance Change");
    desk.PlotCapacitance(n[4], "0");
    const CurveValues kept = mdlPublic.Charts.ChartData()[2].YData;
    QCOMPARE(StoredParts(), n);
    desk.ClickCloseBox(desk.Chart(Change));
    QCOMPARE(StoredParts(), QStringList({n[0], n[2], n[4]}));
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{3});
    QVERIFY(mdlPublic.Charts.ChartData()[1].YData == kept);
    QVERIFY(StoreIsWhole());
    // The next line is written behind them.
    desk.PlotCapacitance(n[3], "0", "Capacitance Change");
    QCOMPARE(StoredParts(), QStringList({n[0], n[2], n[4], n[3]}));
}

void ChartUnloadTest::ClosingInTheMiddleKeepsWindowsAndCount()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    desk.PlotRise(0, "25");
    QCOMPARE(desk.main->OpenForms(), 5);
    desk.ClickCloseBox(desk.Chart(Change));
    QCOMPARE(desk.main->OpenForms(), 4);
    QCOMPARE(desk.Charts().size(), std::size_t{2});
    QCOMPARE(desk.Charts()[0]->windowTitle(), Absolute);
    // The next window cascades by the windows that are open now.
    desk.PlotCapacitance(desk.Find<QComboBox>("cmbPartNum")->currentText(), "0", "Capacitance Change");
    QCOMPARE(desk.Charts().size(), std::size_t{3});
    QCOMPARE(desk.Chart(Change)->y(), 43);
}

void ChartUnloadTest::ClosedWindowIsDestroyed()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    const QPointer<frmGraph> chart = desk.Charts().front();
    chart->close();
    // The store and the count know at once; the window itself goes with the next events.
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{0});
    QCOMPARE(desk.main->OpenForms(), 2);
    Settle();
    QVERIFY(chart.isNull());
}

void ChartUnloadTest::MinimisedWindowTakesItsLinesAlong()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    desk.Chart(Absolute)->showMinimized();
    Settle();
    desk.Chart(Absolute)->close();
    Settle();
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QCOMPARE(mdlPublic.Charts.ChartData().front().YAxisName, std::string("Capacitance Change"));
}

void ChartUnloadTest::ChartCanBeOpenedAgain()
{
    Desk desk;
    desk.ClickChartType(2);
    for (int i = 0; i < 3; ++i)
    {
        desk.PlotCapacitance(ListedPart(desk, 0), "0");
        QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
        QCOMPARE(desk.Charts().size(), std::size_t{1});
        QCOMPARE(desk.Charts().front()->geometry(), QRect(200, 3, 733, 295));
        desk.ClickCloseBox(desk.Charts().front());
        QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{0});
    }
}

void ChartUnloadTest::LinesOfOtherTypeWithSameAxesStay()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    // A line of another chart whose axes bear the same names.
    ChartRecord other = mdlPublic.Charts.ChartData().front();
    other.ChartType = 3;
    mdlPublic.Charts.Write(other);
    mdlPublic.Charts.Commit();
    desk.ClickCloseBox(desk.Charts().front());
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QCOMPARE(mdlPublic.Charts.ChartData().front().ChartType, std::int16_t{3});
}

void ChartUnloadTest::WindowKnowsItsChartWhateverItsTitle()
{
    Desk desk;
    desk.ClickChartType(2);
    const QStringList parts = {ListedPart(desk, 0), ListedPart(desk, 1)};
    desk.PlotCapacitance(parts[0], "0");
    desk.PlotCapacitance(parts[0], "0", "Capacitance Change");
    frmGraph* chart = desk.Chart(Absolute);
    // Each window is of the chart that its caption names.
    for (const frmGraph* window : desk.Charts())
    {
        QVERIFY(window->Chart() == ChartOfCaption(window->windowTitle().toStdString()));
    }
    // Titles and pane texts are for the eye alone.
    chart->setWindowTitle(Change);
    chart->findChild<QLabel*>("lblStatus_0")->setText("some part");
    desk.PlotCapacitance(parts[1], "0");
    QCOMPARE(desk.Charts().size(), std::size_t{2});
    QCOMPARE(chart->windowTitle(), Absolute);
    chart->setWindowTitle(Change);
    chart->findChild<QLabel*>("lblStatus_0")->setText("some part");
    desk.main->mnuPartNum_Click(1);
    const auto previous = [](const frmGraph* window, const char* pane)
    {
        const QString number = window->findChild<QLabel*>(pane)->text();
        return mdlPublic.Parts.PartIndex[2].Find(number.toStdString()) != nullptr;
    };
    QVERIFY(previous(chart, "lblStatus_0"));
    QVERIFY(previous(chart, "lblStatus_1"));
    chart->close();
    Settle();
    QCOMPARE(StoredParts(), QStringList(parts[0]));
    QCOMPARE(mdlPublic.Charts.ChartData().front().YAxisName, std::string("Capacitance Change"));
}

void ChartUnloadTest::SelectionFormCannotBeClosed()
{
    Desk desk;
    auto* form = desk.Find<frmLibrary>("frmLibrary");
    form->close();
    desk.Area()->closeActiveSubWindow();
    QTest::keyClick(form, Qt::Key_W, Qt::ControlModifier);
    QTest::keyClick(form, Qt::Key_F4, Qt::ControlModifier);
    Settle();
    QVERIFY(form->isVisible());
    QCOMPARE(desk.main->OpenForms(), 2);
}

void ChartUnloadTest::MainWindowGoesWithOpenCharts()
{
    for (int active = 0; active < 2; ++active)
    {
        Desk desk;
        desk.ClickChartType(2);
        desk.PlotCapacitance(ListedPart(desk, 0), "0");
        desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
        desk.Area()->setActiveSubWindow(desk.Charts()[static_cast<std::size_t>(active)]);
        QVERIFY(desk.main->close());
        desk.main.reset();
        QCOMPARE(QApplication::allWidgets().size(), 0);
        // Without the main window the naming is that of a fresh start.
        QCOMPARE(GetPartNumForm(), std::int16_t{0});
    }
}

QTEST_MAIN(ChartUnloadTest)
#include "ChartUnloadTest.moc"
