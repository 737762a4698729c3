/// The main window on screens that are hardly larger than it: run on several.

#include "chart/frmGraph.h"
#include "frame/StartPlace.h"
#include "frame/frmHelp.h"
#include "tests/frame/Desk.h"

#include <QLayout>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

class SmallScreenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StandsInsideTheScreen();
    void HelpStandsInsideTheScreen();
    void StartsTheSameASecondTime();
    void PlotStaysInSight();
    void ControlsInUseComeIntoSight_data();
    void ControlsInUseComeIntoSight();
    void FormFitsItsWidth();
    void ChartsFitBesideTheForm();
    void PlacesAFrameInside_data();
    void PlacesAFrameInside();
};

void SmallScreenTest::StandsInsideTheScreen()
{
    const Desk desk;
    const QRect screen = desk.main->screen()->availableGeometry();
    QVERIFY(desk.main->frameGeometry().height() > desk.main->height());
    QVERIFY2(screen.contains(desk.main->frameGeometry()),
             qPrintable(QDebug::toString(desk.main->frameGeometry())));
    // It takes what there is, up to its own size.
    QVERIFY(desk.main->width() >= std::min(1010, screen.width() - 20));
    QVERIFY(desk.main->height() >= std::min(700, screen.height() - 50));
}

void SmallScreenTest::HelpStandsInsideTheScreen()
{
    OpenHelp(HELP_BOOKS "/tavike.hlp");
    Settle();
    int viewers = 0;
    for (const QWidget* window : QApplication::topLevelWidgets())
    {
        if (qobject_cast<const frmHelp*>(window) != nullptr)
        {
            ++viewers;
            QVERIFY(window->screen()->availableGeometry().contains(window->frameGeometry()));
            QVERIFY(window->width() == 920);
        }
    }
    QCOMPARE(viewers, 1);
    CloseHelp();
}

void SmallScreenTest::StartsTheSameASecondTime()
{
    auto desk = std::make_unique<Desk>();
    const QRect first = desk->main->geometry();
    desk->main->resize(700, 400);
    desk->main->move(50, 60);
    Settle();
    desk.reset();
    desk = std::make_unique<Desk>();
    QCOMPARE(desk->main->geometry(), first);
}

/// The whole of a control is seen on the screen.
static bool IsInSight(const Desk& desk, const QString& name)
{
    auto* control = desk.Find<QWidget>(name);
    const QRect place(control->mapToGlobal(QPoint(0, 0)), control->size());
    return control->visibleRegion().boundingRect() == control->rect() &&
           desk.main->screen()->availableGeometry().contains(place);
}

void SmallScreenTest::PlotStaysInSight()
{
    Desk desk;
    QVERIFY(IsInSight(desk, "cmdPlot"));
    auto* bar = desk.Find<QScrollArea>("scrForm")->verticalScrollBar();
    bar->setValue(bar->maximum());
    QVERIFY(IsInSight(desk, "cmdPlot"));
    desk.main->resize(desk.main->width(), desk.main->minimumSizeHint().height());
    Settle();
    QVERIFY(IsInSight(desk, "cmdPlot"));
    QVERIFY(bar->maximum() > 0);
}

void SmallScreenTest::ControlsInUseComeIntoSight_data()
{
    QTest::addColumn<QString>("control");
    for (const char* control : {"optChartType_0", "cmbSizeCode", "cmbPartNum", "cmbYaxis", "txtDCBiasVol",
                                "txtFrequency", "txtAmbientTemp"})
    {
        QTest::newRow(control) << control;
    }
}

void SmallScreenTest::ControlsInUseComeIntoSight()
{
    QFETCH(QString, control);
    Desk desk;
    desk.TypePart(ListedPart(desk, 0));
    desk.main->resize(desk.main->width(), 400);
    Settle();
    desk.Find<QWidget>(control)->setFocus(Qt::ShortcutFocusReason);
    Settle();
    QVERIFY(IsInSight(desk, control));
}

/// Beside a scroll bar nothing is cut at the right.
void SmallScreenTest::FormFitsItsWidth()
{
    Desk desk;
    desk.main->resize(desk.main->width(), 400);
    Settle();
    const auto* area = desk.Find<QScrollArea>("scrForm");
    QVERIFY(area->verticalScrollBar()->isVisible());
    QCOMPARE(area->widget()->width(), area->viewport()->width());
    QVERIFY(area->widget()->layout()->totalMinimumSize().width() <= area->viewport()->width());
}

void SmallScreenTest::ChartsFitBesideTheForm()
{
    Desk desk;
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    const QRect area = desk.Area()->viewport()->rect();
    QVERIFY2(area.contains(desk.Charts().front()->geometry()), qPrintable(QDebug::toString(area)));
    QVERIFY(!desk.Area()->horizontalScrollBar()->isVisible());
    QVERIFY(!desk.Area()->verticalScrollBar()->isVisible());
}

void SmallScreenTest::PlacesAFrameInside_data()
{
    QTest::addColumn<QRect>("free");
    QTest::addColumn<QMargins>("frame");
    QTest::addColumn<QRect>("place");
    QTest::newRow("room for all") << QRect(0, 0, 1920, 1080) << QMargins(5, 30, 5, 5)
                                  << QRect(455, 202, 1010, 700);
    QTest::newRow("no frame") << QRect(0, 0, 1010, 700) << QMargins() << QRect(0, 0, 1010, 700);
    QTest::newRow("a small screen") << QRect(0, 0, 1024, 700) << QMargins(5, 30, 5, 5)
                                    << QRect(7, 30, 1010, 665);
    QTest::newRow("a panel at the top and left")
        << QRect(64, 32, 960, 508) << QMargins(0, 60, 0, 0) << QRect(64, 92, 960, 448);
}

void SmallScreenTest::PlacesAFrameInside()
{
    QFETCH(QRect, free);
    QFETCH(QMargins, frame);
    QFETCH(QRect, place);
    QCOMPARE(PlaceInside(free, QSize(1010, 700), frame), place);
    QVERIFY(free.contains(place.marginsAdded(frame)));
}

QTEST_MAIN(SmallScreenTest)
#include "SmallScreenTest.moc"
