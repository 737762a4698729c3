/// A chart window's caption, place and fixed size, beside the selection form: what users see of its frame.

#include "app/mdlPublic.h"
#include "chart/ChartPicture.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

class ChartWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CaptionNamesTypeAndAxes_data();
    void CaptionNamesTypeAndAxes();
    void UnknownChartTypeLeavesTheCaption();
    void WindowsCascadeFromLeft3000Top50();
    void AddedLineMovesToTopOfPresentCount();
    void UserRangeKeepsTopButResetsLeftAndSize();
    void UserRangeRestoresMinimisedWindow();
    void SizeStaysWhateverIsTried();
    void BorderCannotBeDragged();
    void TitleDoubleClickDoesNotMaximise();
    void NobodyIsOfferedToMaximise();
    void MinimisingClearsTheReadOut();
    void AddedLineRestoresMinimisedWindow();
    void AddedLineClearsTheReadOut();
    void SelectionFormStaysAtTheLeftEdge();
    void ShortSelectionFormIsNotCutAtTheRight();
    void SelectionFormStaysWhenTheAreaIsScrolled();
    void MinimisedWindowsStandBesideTheSelectionForm();
};

static const QRect FirstPlace(200, 3, 733, 295);

static frmGraph* OnlyChart(const Desk& desk)
{
    return desk.Charts().size() == 1 ? desk.Charts().front() : nullptr;
}

static void PlotFirst(Desk& desk)
{
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
}

void ChartWindowTest::CaptionNamesTypeAndAxes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("caption");
    QTest::newRow("temperature rise") << 0 << "Apparent Power"
                                      << "Temperature Rise"
                                      << "Temperature Rise Characteristics(Apparent Power,Temperature Rise)";
    QTest::newRow("allowable power") << 1 << "Frequency"
                                     << "Effective Power"
                                     << "Allowable power(Frequency,Effective Power)";
    QTest::newRow("over temperature")
        << 2 << "Temperature"
        << "Capacitance Change"
        << "Capacitance-Temperature Characteristics(Temperature,Capacitance Change)";
    QTest::newRow("over DC voltage") << 3 << "DC Bias Voltage"
                                     << "Capacitance"
                                     << "Capacitance-DC Voltage Characteristics(DC Bias Voltage,Capacitance)";
}

void ChartWindowTest::CaptionNamesTypeAndAxes()
{
    QFETCH(int, type);
    QFETCH(QString, x);
    QFETCH(QString, y);
    Desk desk;
    desk.ClickChartType(type);
    desk.PickXAxis(x);
    desk.PickYAxis(y);
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtDCBiasVol", "0");
    desk.Type("txtFrequency", "100");
    desk.ClickPlot();
    QVERIFY(OnlyChart(desk) != nullptr);
    QTEST(OnlyChart(desk)->windowTitle(), "caption");
}

void ChartWindowTest::UnknownChartTypeLeavesTheCaption()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    const QString caption = chart->windowTitle();
    for (const std::int16_t type : {std::int16_t{5}, std::int16_t{-1}})
    {
        ChartRecord line = mdlPublic.Charts.ChartData()[0];
        line.ChartType = type;
        mdlPublic.Charts.Write(line);
        chart->Form_Load();
        QCOMPARE(chart->windowTitle(), caption);
    }
}

void ChartWindowTest::WindowsCascadeFromLeft3000Top50()
{
    Desk desk;
    PlotFirst(desk);
    QCOMPARE(OnlyChart(desk)->geometry(), FirstPlace);
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    QCOMPARE(desk.Charts()[0]->geometry(), FirstPlace);
    // 350 twips are 23 pixels and a third.
    QCOMPARE(desk.Charts()[1]->geometry(), QRect(200, 23, 733, 295));
    desk.ClickCloseBox(desk.Charts()[0]);
    desk.PlotRise(0, "25");
    QCOMPARE(desk.Charts()[1]->geometry(), QRect(200, 23, 733, 295));
}

void ChartWindowTest::AddedLineMovesToTopOfPresentCount()
{
    Desk desk;
    PlotFirst(desk);
    desk.PlotCapacitance(ListedPart(desk, 1), "0");
    QCOMPARE(OnlyChart(desk)->geometry(), FirstPlace);
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    desk.Charts()[0]->move(20, 40);
    desk.PlotCapacitance(ListedPart(desk, 2), "0");
    QCOMPARE(desk.Charts()[0]->geometry(), QRect(200, 23, 733, 295));
    QCOMPARE(desk.Area()->activeSubWindow(), desk.Charts()[0]);
}

void ChartWindowTest::UserRangeKeepsTopButResetsLeftAndSize()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    chart->move(40, 90);
    chart->findChild<QLabel*>("sbr1_1")->setText("x");
    chart->WriteMagnification(100, 5000, -10, 1000);
    QCOMPARE(chart->geometry(), QRect(200, 90, 733, 295));
    QCOMPARE(chart->findChild<QLabel*>("sbr1_1")->text(), QString());
    QCOMPARE(chart->Range().XMax, 100.0F);
    QCOMPARE(chart->Range().YMax, 5000.0F);
    QCOMPARE(chart->Range().XMin, -10.0F);
    QCOMPARE(chart->Range().YMin, 1000.0F);
    QVERIFY(chart->findChild<ChartPicture*>("picGraph")->View().Rescaled);
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    chart->WriteMagnification(100, 5000, -10, 1000, 1);
    QCOMPARE(chart->geometry(), FirstPlace);
    QVERIFY(!chart->findChild<ChartPicture*>("picGraph")->View().Rescaled);
}

void ChartWindowTest::UserRangeRestoresMinimisedWindow()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    chart->move(40, 90);
    chart->showMinimized();
    chart->WriteMagnification(100, 5000, -10, 1000);
    Settle();
    QVERIFY(!chart->isMinimized());
    QCOMPARE(chart->geometry(), QRect(200, 90, 733, 295));
}

void ChartWindowTest::SizeStaysWhateverIsTried()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    chart->resize(1000, 500);
    Settle();
    QCOMPARE(chart->size(), FirstPlace.size());
    chart->resize(100, 100);
    Settle();
    QCOMPARE(chart->size(), FirstPlace.size());
    chart->showMaximized();
    Settle();
    QCOMPARE(chart->size(), FirstPlace.size());
    QVERIFY(!chart->isMaximized());
    chart->showFullScreen();
    Settle();
    QCOMPARE(chart->size(), FirstPlace.size());
    chart->showMinimized();
    chart->showNormal();
    Settle();
    QCOMPARE(chart->geometry(), FirstPlace);
    desk.main->resize(600, 400);
    Settle();
    QCOMPARE(chart->geometry(), FirstPlace);
    desk.main->showMaximized();
    Settle();
    QCOMPARE(chart->geometry(), FirstPlace);
}

void ChartWindowTest::BorderCannotBeDragged()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    for (const QPoint& grip : {QPoint(732, 150), QPoint(400, 294), QPoint(732, 294), QPoint(0, 150)})
    {
        MoveMouse(chart, grip);
        QTest::mousePress(chart, Qt::LeftButton, {}, grip);
        MoveMouse(chart, grip + QPoint(60, 40), Qt::LeftButton);
        QTest::mouseRelease(chart, Qt::LeftButton, {}, grip + QPoint(60, 40));
        Settle();
        QCOMPARE(chart->size(), FirstPlace.size());
    }
}

void ChartWindowTest::TitleDoubleClickDoesNotMaximise()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    MoveMouse(chart, QPoint(300, 8));
    QTest::mouseDClick(chart, Qt::LeftButton, {}, QPoint(300, 8));
    Settle();
    QVERIFY(!chart->isMaximized());
    QVERIFY(!chart->isMinimized());
    QCOMPARE(chart->geometry(), FirstPlace);
}

void ChartWindowTest::NobodyIsOfferedToMaximise()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    QVERIFY(!(chart->windowFlags() & Qt::WindowMaximizeButtonHint));
    QVERIFY(chart->windowFlags() & Qt::WindowMinimizeButtonHint);
    for (const QAction* action : chart->systemMenu()->actions())
    {
        const bool offered = action->isVisible() && action->isEnabled();
        const QString text = QString(action->text()).remove('&');
        QVERIFY2(!(offered && (text == "Maximize" || text == "Size" || text == "Stay on Top")),
                 qPrintable(text));
    }
}

void ChartWindowTest::MinimisingClearsTheReadOut()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    chart->findChild<QLabel*>("sbr1_1")->setText("Temperature 20");
    chart->findChild<QLabel*>("sbr1_2")->setText("Capacitance 100");
    chart->showMinimized();
    QCOMPARE(chart->findChild<QLabel*>("sbr1_1")->text(), QString());
    QCOMPARE(chart->findChild<QLabel*>("sbr1_2")->text(), QString());
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
}

void ChartWindowTest::AddedLineRestoresMinimisedWindow()
{
    Desk desk;
    PlotFirst(desk);
    frmGraph* chart = OnlyChart(desk);
    chart->showMinimized();
    Settle();
    QVERIFY(chart->isMinimized());
    desk.PlotCapacitance(ListedPart(desk, 1), "0");
    QCOMPARE(OnlyChart(desk), chart);
    QVERIFY(!chart->isMinimized());
    QVERIFY(chart->widget()->isVisible());
    QCOMPARE(chart->geometry(), FirstPlace);
    QCOMPARE(desk.Area()->activeSubWindow(), chart);
}

void ChartWindowTest::AddedLineClearsTheReadOut()
{
    Desk desk;
    PlotFirst(desk);
    OnlyChart(desk)->findChild<QLabel*>("sbr1_1")->setText("Temperature 20");
    desk.PlotCapacitance(ListedPart(desk, 1), "0");
    QCOMPARE(OnlyChart(desk)->findChild<QLabel*>("sbr1_1")->text(), QString());
}

void ChartWindowTest::SelectionFormStaysAtTheLeftEdge()
{
    Desk desk;
    const auto* form = desk.Find<frmLibrary>("frmLibrary");
    for (const QSize& size : {QSize(1010, 700), QSize(500, 300), QSize(1600, 900)})
    {
        desk.main->resize(size);
        Settle();
        QCOMPARE(form->pos(), QPoint(0, 0));
        QCOMPARE(form->width(), 200);
        QCOMPARE(form->height(), desk.Area()->viewport()->height());
    }
}

void ChartWindowTest::ShortSelectionFormIsNotCutAtTheRight()
{
    Desk desk;
    desk.main->resize(640, 480);
    Settle();
    auto* scroller = desk.Find<frmLibrary>("frmLibrary")->findChild<QScrollArea*>();
    QVERIFY(scroller->verticalScrollBar()->isVisible());
    QVERIFY2(
        scroller->widget()->width() <= scroller->viewport()->width(),
        qPrintable(
            QStringLiteral("%1 > %2").arg(scroller->widget()->width()).arg(scroller->viewport()->width())));
}

void ChartWindowTest::SelectionFormStaysWhenTheAreaIsScrolled()
{
    Desk desk;
    PlotFirst(desk);
    auto* chart = OnlyChart(desk);
    chart->move(600, 600);
    Settle();
    QScrollBar* across = desk.Area()->horizontalScrollBar();
    QScrollBar* down = desk.Area()->verticalScrollBar();
    QVERIFY(across->maximum() > 0);
    QVERIFY(down->maximum() > 0);
    across->setValue(across->maximum());
    down->setValue(down->maximum());
    Settle();
    const auto* form = desk.Find<frmLibrary>("frmLibrary");
    QCOMPARE(form->pos(), QPoint(0, 0));
    QCOMPARE(form->height(), desk.Area()->viewport()->height());
    // The chart came into view, and goes back to its place.
    QVERIFY(chart->geometry().right() < desk.Area()->viewport()->width());
    QVERIFY(chart->geometry().bottom() < desk.Area()->viewport()->height());
    across->setValue(across->minimum());
    down->setValue(down->minimum());
    Settle();
    QCOMPARE(chart->pos(), QPoint(600, 600));
    QCOMPARE(form->pos(), QPoint(0, 0));
}

/// True when each minimised chart is whole in the child area, and free of the form and of the others.
static bool IconsAreInSight(const Desk& desk)
{
    QList<QRect> taken = {desk.Find<frmLibrary>("frmLibrary")->geometry()};
    for (const frmGraph* chart : desk.Charts())
    {
        if (chart->isMinimized())
        {
            const QRect icon = chart->geometry();
            const bool isFree = std::none_of(taken.begin(), taken.end(),
                                             [&](const QRect& other) { return other.intersects(icon); });
            if (!isFree || !desk.Area()->viewport()->rect().contains(icon))
            {
                return false;
            }
            taken << icon;
        }
    }
    return true;
}

void ChartWindowTest::MinimisedWindowsStandBesideTheSelectionForm()
{
    Desk desk;
    PlotFirst(desk);
    desk.PlotCapacitance(ListedPart(desk, 0), "0", "Capacitance Change");
    for (const char* axis : {"Current", "Voltage", "Apparent Power", "Effective Power", "Frequency"})
    {
        desk.PlotRise(0, "25", axis);
    }
    QCOMPARE(desk.Charts().size(), std::size_t{7});
    for (frmGraph* chart : desk.Charts())
    {
        chart->showMinimized();
        Settle();
        QVERIFY(IconsAreInSight(desk));
    }
    desk.main->resize(700, 500);
    Settle();
    QVERIFY(IconsAreInSight(desk));
    desk.Charts()[2]->close();
    Settle();
    QVERIFY(IconsAreInSight(desk));
    desk.Charts()[0]->showNormal();
    Settle();
    QCOMPARE(desk.Charts()[0]->geometry(), FirstPlace);
    QVERIFY(IconsAreInSight(desk));
    QVERIFY(desk.Area()->horizontalScrollBar()->maximum() > 0);
    desk.Area()->horizontalScrollBar()->setValue(desk.Area()->horizontalScrollBar()->maximum());
    Settle();
    QVERIFY(IconsAreInSight(desk));
}

QTEST_MAIN(ChartWindowTest)
#include "ChartWindowTest.moc"
