/// What stands within a chart window: places, captions, fonts and colours of surface, panes and status bar.

#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QGroupBox>
#include <QLabel>
#include <QStatusBar>
#include <QTest>

class ChartLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LayoutIsFixedInTwips();
    void PanesBearCaptionsAndColours();
    void EveryPaneStandsAboveTheStatusBar_data();
    void EveryPaneStandsAboveTheStatusBar();
    void EveryTextIsInArialEight();
    void DarkDesktopKeepsChartLight();
};

static const frmGraph* PlotFirst(Desk& desk)
{
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    return desk.Charts().front();
}

/// Twips as whole pixels, lowered.
static int Pixels(int twips)
{
    return twips / 15;
}

void ChartLookTest::LayoutIsFixedInTwips()
{
    Desk desk;
    const frmGraph* chart = PlotFirst(desk);
    QCOMPARE(chart->findChild<QWidget*>("picGraph")->geometry(),
             QRect(0, Pixels(60), Pixels(5600), Pixels(3650)));
    for (int i = 0; i < 6; ++i)
    {
        const auto* pane = chart->findChild<QGroupBox*>(QStringLiteral("fraStatus_%1").arg(i));
        QCOMPARE(pane->x(), 377); // 5650 twips are 376.7 pixels
        QCOMPARE(pane->width(), Pixels(5000));
        QCOMPARE(pane->height(), Pixels(615));
        const auto* number = chart->findChild<QLabel*>(QStringLiteral("lblStatus_%1").arg(i));
        QCOMPARE(number->pos(), QPoint(Pixels(120), Pixels(240)));
        QCOMPARE(number->width(), Pixels(2300));
        const auto* conditions = chart->findChild<QLabel*>(QStringLiteral("lblPara_%1").arg(i));
        // The label ends under the conditions, its text four pixels before them.
        QCOMPARE(number->x() + number->contentsRect().right() + 1, conditions->x() - 4);
        QCOMPARE(conditions->geometry(), QRect(Pixels(2280), Pixels(240), Pixels(2655), Pixels(255)));
    }
    QCOMPARE(chart->findChild<QGroupBox*>("fraStatus_0")->y(), 0);
    QVERIFY(qAbs(chart->findChild<QGroupBox*>("fraStatus_5")->y() - 3100.0 / 15) < 1);
}

void ChartLookTest::PanesBearCaptionsAndColours()
{
    Desk desk;
    const frmGraph* chart = PlotFirst(desk);
    const std::array<QColor, 6> colours = {QColor(0, 0, 255),   QColor(255, 0, 0), QColor(0, 0, 0),
                                           QColor(255, 0, 255), QColor(0, 128, 0), QColor(128, 0, 0)};
    for (int i = 0; i < 6; ++i)
    {
        const auto* pane = chart->findChild<QGroupBox*>(QStringLiteral("fraStatus_%1").arg(i));
        QCOMPARE(pane->title(), QStringLiteral("No.%1").arg(i + 1));
        const auto colour = colours[static_cast<std::size_t>(i)];
        QCOMPARE(pane->palette().color(QPalette::WindowText), colour);
        for (const auto* label : pane->findChildren<QLabel*>())
        {
            QCOMPARE(label->palette().color(QPalette::WindowText), colour);
        }
    }
}

void ChartLookTest::EveryPaneStandsAboveTheStatusBar_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("fusion") << "Fusion";
    QTest::newRow("windows") << "Windows";
}

void ChartLookTest::EveryPaneStandsAboveTheStatusBar()
{
    QFETCH(QString, style);
    QApplication::setStyle(style);
    Desk desk;
    const frmGraph* chart = PlotFirst(desk);
    const auto* last = chart->findChild<QGroupBox*>("fraStatus_5");
    const auto* bar = chart->findChild<QStatusBar*>("sbr1");
    const int paneBottom = last->mapTo(chart, QPoint(0, last->height())).y();
    const int barTop = bar->mapTo(chart, QPoint(0, 0)).y();
    QVERIFY2(paneBottom <= barTop, qPrintable(QStringLiteral("%1 > %2").arg(paneBottom).arg(barTop)));
    // Both panels can be read, and the panes are not cut at the right.
    QVERIFY2(bar->height() >= 12, qPrintable(QString::number(bar->height())));
    QVERIFY(bar->mapTo(chart, QPoint(0, bar->height())).y() <= chart->height());
    QVERIFY(last->mapTo(chart, QPoint(last->width(), 0)).x() <= chart->width());
    QApplication::setStyle("Fusion");
}

void ChartLookTest::EveryTextIsInArialEight()
{
    Desk desk;
    const frmGraph* chart = PlotFirst(desk);
    for (const char* name : {"sbr1_1", "sbr1_2", "fraStatus_0", "lblStatus_0", "lblPara_0"})
    {
        const auto* text = chart->findChild<QWidget*>(name);
        QVERIFY2(text != nullptr, name);
        QCOMPARE(text->font().family(), QStringLiteral("Arial"));
        QCOMPARE(text->font().pointSize(), 8);
    }
}

void ChartLookTest::DarkDesktopKeepsChartLight()
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    {
        Desk desk;
        const frmGraph* chart = PlotFirst(desk);
        const QImage picture = chart->findChild<QWidget*>("grpChart")->grab().toImage();
        QVERIFY(picture.pixelColor(2, 6).lightness() > 200);
        QVERIFY(picture.pixelColor(500, 60).lightness() > 200);
    }
    QApplication::setPalette(before);
}

QTEST_MAIN(ChartLookTest)
#include "ChartLookTest.moc"
