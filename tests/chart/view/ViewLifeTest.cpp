/// How a chart view is opened, follows its chart and goes with it.

#include "app/mdlPublic.h"
#include "chart/ChartPicture.h"
#include "chart/frmGraph.h"
#include "tests/chart/view/ViewDesk.h"

#include <QApplication>
#include <QGroupBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>

class ViewLifeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachWayOpensTheOneView_data();
    void EachWayOpensTheOneView();
    void ItIsAWindowOfItsOwn();
    void ItStartsAtSevenTenthsOfTheScreen();
    void ItKeepsPlaceAndLooksForTheRun();
    void ItClosesWithItsChart_data();
    void ItClosesWithItsChart();
    void OtherChartsMayClose();
    void EvenTheSmallestPlotIsNoFault();
    void EnlargedTextsLeaveThePlotHalfOfTheChart();
    void PartsWithoutAModelReadADash();
    void NewLinesAndNumbersAreShown();
    void ARangeSetInTheChartIsTakenOver();
    void AnOwnRangeStaysWhenALineComes();
    void ItsRangeGoesToTheChartWindow();
};

void ViewLifeTest::EachWayOpensTheOneView_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"double click", "Ctrl+E", "right click", "Menu key", "Shift+F10", "pane"})
    {
        QTest::newRow(way) << way;
    }
}

void ViewLifeTest::EachWayOpensTheOneView()
{
    QFETCH(QString, way);
    ViewDesk desk;
    const QPointer<frmChartView> first = desk.View();
    auto* const picture = desk.Chart()->findChild<ChartPicture*>("picGraph");
    const auto open = [&]
    {
        if (way == "double click")
        {
            QTest::mouseDClick(picture, Qt::LeftButton, {}, picture->rect().center());
        }
        else if (way == "Ctrl+E")
        {
            QTest::keyClick(desk.Chart(), Qt::Key_E, Qt::ControlModifier);
        }
        else if (way == "right click")
        {
            SendContextMenu(picture, picture->rect().center());
        }
        else if (way == "pane")
        {
            auto* const pane = desk.Chart()->findChild<QGroupBox*>("fraStatus_1");
            SendContextMenu(pane, pane->rect().center());
        }
        else
        {
            way == "Menu key" ? QTest::keyClick(desk.Chart(), Qt::Key_Menu)
                              : QTest::keyClick(desk.Chart(), Qt::Key_F10, Qt::ShiftModifier);
        }
        if (OpenMenu() != nullptr)
        {
            Choose(OpenMenu(), "Open in Chart View");
        }
        Settle();
    };
    QApplication::setActiveWindow(desk.desk.main.get());
    open();
    QCOMPARE(desk.View(), first.data());
    first->close();
    Settle();
    QVERIFY(first.isNull());
    QApplication::setActiveWindow(desk.desk.main.get());
    open();
    QVERIFY(desk.View() != nullptr);
}

void ViewLifeTest::ItIsAWindowOfItsOwn()
{
    ViewDesk desk;
    QVERIFY(desk.View()->isWindow());
    QCOMPARE(desk.View()->parentWidget(), nullptr);
    QCOMPARE(desk.desk.main->OpenForms(), 3);
    QCOMPARE(desk.View()->windowTitle(),
             "Chart View - Capacitance-Temperature Characteristics(Temperature,Capacitance)");
    QVERIFY(!desk.View()->testAttribute(Qt::WA_QuitOnClose));
    desk.desk.main->setWindowState(Qt::WindowMinimized);
    Settle();
    QVERIFY(desk.View() != nullptr);
}

void ViewLifeTest::ItStartsAtSevenTenthsOfTheScreen()
{
    ViewDesk desk;
    const QSize screen = desk.desk.main->screen()->availableSize();
    const QSize start = desk.View()->size();
    // The screen without a display is 800 by 600: less than the least start, so the view is as large as it.
    QVERIFY(start.width() <= screen.width() && start.height() <= screen.height());
    QVERIFY(start.width() >= 600 && start.height() >= 400);
    QCOMPARE(desk.View()->minimumSize(), QSize(600, 400));
}

void ViewLifeTest::ItKeepsPlaceAndLooksForTheRun()
{
    ViewDesk desk;
    desk.View()->setGeometry(20, 30, 640, 480);
    desk.Press(Qt::Key_F6);
    desk.Press(Qt::Key_F8);
    const double size = desk.Scene().Marks.TextSize;
    desk.Press(Qt::Key_W, Qt::ControlModifier);
    Settle();
    QCOMPARE(desk.View(), nullptr);
    desk.Open();
    QCOMPARE(desk.View()->size(), QSize(640, 480));
    QVERIFY(desk.Scene().Marks.Dashed);
    QCOMPARE(desk.Scene().Marks.TextSize, size);
}

void ViewLifeTest::ItClosesWithItsChart_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"close box", "close all", "code switch", "main window"})
    {
        QTest::newRow(way) << way;
    }
}

void ViewLifeTest::ItClosesWithItsChart()
{
    QFETCH(QString, way);
    ViewDesk desk;
    const QPointer<frmChartView> view = desk.View();
    if (way == "close box")
    {
        desk.Chart()->close();
    }
    else if (way == "close all")
    {
        desk.desk.main->mnuCloseAllChartWindows_Click();
    }
    else if (way == "code switch")
    {
        desk.desk.main->mnuViewCode_Click(1);
        desk.desk.TakeBoxes();
    }
    else
    {
        desk.desk.main->close();
    }
    QVERIFY(view.isNull() || !view->isVisible());
    Settle();
    QVERIFY(view.isNull());
}

void ViewLifeTest::OtherChartsMayClose()
{
    ViewDesk desk;
    desk.desk.ClickChartType(3);
    desk.desk.TypePart(NumberOnDisplay("KTS21JB51E106MA01"));
    desk.desk.ClickPlot();
    QCOMPARE(desk.desk.Charts().size(), std::size_t{2});
    const auto second = desk.desk.Charts().back();
    QApplication::setActiveWindow(desk.desk.main.get());
    desk.View()->close();
    Settle();
    QTest::keyClick(second, Qt::Key_E, Qt::ControlModifier);
    Settle();
    // The records of the second chart move to the front of the store.
    desk.Chart()->close();
    Settle();
    frmChartView* const view = desk.View();
    QVERIFY(view != nullptr);
    QCOMPARE(view->Scene().Lines.size(), std::size_t{1});
    QCOMPARE(view->Scene().Lines[0].Line.ChartType, std::int16_t{3});
    QVERIFY(desk.Table()->model()->index(0, 2).data().toString().endsWith("F"));
}

void ViewLifeTest::NewLinesAndNumbersAreShown()
{
    ViewDesk desk;
    QCOMPARE(desk.Table()->model()->rowCount(), 2);
    desk.PlotLine(2);
    QCOMPARE(desk.Table()->model()->rowCount(), 3);
    const QString number = desk.Table()->model()->index(2, 1).data().toString();
    QCOMPARE(number, NumberOnDisplay("KTS32XR71E106KA01"));
    desk.desk.main->mnuPartNum_Click(1);
    const QString previous = desk.Table()->model()->index(2, 1).data().toString();
    QVERIFY(previous != number);
    QCOMPARE(previous, desk.Chart()->findChild<QLabel*>("lblStatus_2")->text());
}

void ViewLifeTest::ARangeSetInTheChartIsTakenOver()
{
    ViewDesk desk;
    desk.Turn(desk.At(50, 50), 2);
    QVERIFY(desk.Scene().View.Range.XMax < 125);
    const AxisRange whole = desk.Chart()->Range();
    desk.Chart()->WriteMagnification(100, whole.YMax, 0, whole.YMin);
    QCOMPARE(desk.Scene().View.Range.XMin, 0.0F);
    QCOMPARE(desk.Scene().View.Range.XMax, 100.0F);
    QCOMPARE(desk.Scene().View.Range.YMax, whole.YMax);
    desk.PlotLine(2);
    // The chart window draws its default range again, and the view follows it.
    QCOMPARE(desk.Scene().View.Range.XMax, desk.Chart()->Range().XMax);
}

void ViewLifeTest::AnOwnRangeStaysWhenALineComes()
{
    ViewDesk desk(ViewDesk::Kind::CapacitanceOverTemperature, 1);
    const double y = desk.Scene().Lines[0].Line.YData[100];
    const QRectF plot = desk.Canvas()->Chart().Plot();
    const QPoint line(static_cast<int>(plot.center().x()),
                      static_cast<int>(*desk.Canvas()->Chart().PixelOfY(y)));
    for (int notch = 0; notch < 20; ++notch)
    {
        desk.Turn(line, 1);
    }
    const AxisRange own = desk.Scene().View.Range;
    // Far from the first line.
    desk.desk.TypePart(ListedPart(desk.desk, 0));
    desk.desk.Type("txtDCBiasVol", "1");
    desk.desk.ClickPlot();
    QCOMPARE(desk.Scene().Lines.size(), std::size_t{2});
    QCOMPARE(desk.Scene().View.Range.XMin, own.XMin);
    QCOMPARE(desk.Scene().View.Range.YMax, own.YMax);
    QVERIFY2(desk.CursorLine().contains("No.2 lies outside the range shown"), qPrintable(desk.CursorLine()));
}

void ViewLifeTest::ItsRangeGoesToTheChartWindow()
{
    ViewDesk desk;
    desk.Turn(desk.At(50, 50), 2);
    const AxisRange own = desk.Scene().View.Range;
    desk.Press(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(desk.Chart()->Range().XMin, own.XMin);
    QCOMPARE(desk.Chart()->Range().YMax, own.YMax);
    QCOMPARE(desk.Scene().View.Range.XMin, own.XMin);
}

void ViewLifeTest::EvenTheSmallestPlotIsNoFault()
{
    const ViewDesk desk(ViewDesk::Kind::RiseOverFrequency, 6);
    desk.View()->resize(600, 400);
    for (int key = 0; key < 12; ++key)
    {
        desk.Press(Qt::Key_F8);
    }
    Settle();
    const AxisRange before = desk.Scene().View.Range;
    desk.View()->grab();
    desk.Turn(desk.Canvas()->rect().center(), 3);
    desk.Drag(desk.Canvas()->rect().center(), QPoint(1, 1));
    desk.Click(desk.Canvas()->rect().center());
    desk.Press(Qt::Key_Right);
    desk.View()->grab();
    QVERIFY(std::isfinite(desk.Cursors().Moving()));
    desk.Press(Qt::Key_0, Qt::ControlModifier);
    QVERIFY(desk.Scene().View.Range == before);
}

void ViewLifeTest::EnlargedTextsLeaveThePlotHalfOfTheChart()
{
    const ViewDesk desk(ViewDesk::Kind::RiseOverFrequency, 6);
    desk.View()->resize(600, 400);
    Settle();
    const double usual = desk.Scene().Marks.TextSize;
    for (int key = 0; key < 12; ++key)
    {
        desk.Press(Qt::Key_F8);
    }
    const double largest = desk.Scene().Marks.TextSize;
    QVERIFY(largest > usual);
    const QSizeF plot = desk.Canvas()->Chart().Plot().size();
    QVERIFY2(2 * plot.width() >= desk.Canvas()->width(), qPrintable(QString::number(plot.width())));
    QVERIFY2(2 * plot.height() >= desk.Canvas()->height(), qPrintable(QString::number(plot.height())));
    // One step back is seen at once, and a larger window has room for more.
    desk.Press(Qt::Key_F7);
    QVERIFY(desk.Scene().Marks.TextSize < largest);
    desk.Press(Qt::Key_F8);
    desk.View()->resize(1600, 1000);
    Settle();
    QVERIFY(desk.Scene().Marks.TextSize > largest);
}

void ViewLifeTest::PartsWithoutAModelReadADash()
{
    const ViewDesk desk;
    // A line as the store holds it of a part without a model: limits, but no points.
    ChartRecord line = mdlPublic.Charts.ChartData()[0];
    line.DCBiasVoltage = 99;
    line.XData = {};
    line.YData = {};
    mdlPublic.Charts.Write(line);
    desk.Chart()->Form_Load();
    Settle();
    QCOMPARE(desk.Table()->model()->rowCount(), 3);
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Up);
    for (int key = 0; key < 3; ++key)
    {
        desk.Press(Qt::Key_Down);
    }
    desk.Press(Qt::Key_Right);
    desk.View()->grab();
    QVERIFY(std::isfinite(desk.Cursors().A()));
    desk.TypeText("50");
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Model()->Table().Find(2, CursorColumn::Value)->Text, "\u2013");
}

QTEST_MAIN(ViewLifeTest)
#include "ViewLifeTest.moc"
