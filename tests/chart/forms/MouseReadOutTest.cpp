/// What a chart tells under the mouse, and its picture on the clipboard.

#include "app/mdlPublic.h"
#include "chart/ChartPicture.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QStatusBar>
#include <QTest>

#include <array>
#include <cmath>

class MouseReadOutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PointerShowsXYAndEachLine();
    void LogarithmicAxesReadInPowersOfTen();
    void UserRangeIsRead();
    void ShorterLineEndsWithADash();
    void LeavingThePlotBringsConditionsBack_data();
    void LeavingThePlotBringsConditionsBack();
    void AddedLineBringsConditionsBack();
    void MinimisingBringsConditionsBack();
    void EmptyPanesStayEmpty();
    void MovingTheMouseRepaintsNoChart();
    void ClipboardHoldsTheChartAtTwiceItsSize();
    void StatusBarTellsThatTheChartIsCopied();
    void CopiedPictureHasATitleAndEvenMargins();
    void ClipboardLooksLikeTheWindow();
};

/// The picture's pixel at a position of the plot area: 21 of 126 units lie left of it, 107 of 122 above 0.
static QPointF PixelAt(double x, double y)
{
    return {(x + 21) / 126 * (5600 / 15.0), (107 - y) / 122 * (3650 / 15.0)};
}

static ChartPicture* PictureOf(const frmGraph* chart)
{
    return chart->findChild<ChartPicture*>("picGraph");
}

static void Point(const frmGraph* chart, double x, double y)
{
    ChartPicture* picture = PictureOf(chart);
    const QPointF to = PixelAt(x, y);
    QMouseEvent move(QEvent::MouseMove, to, picture->mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(picture, &move);
}

static QString Text(const frmGraph* chart, const QString& label)
{
    return chart->findChild<QLabel*>(label)->text();
}

static frmGraph* PlotTwoLines(Desk& desk)
{
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    desk.Type("txtDCBiasVol", "2");
    desk.ClickPlot();
    return desk.Charts().front();
}

/// A text of the read-out as name and number; the unit must follow.
static double Number(const QString& text, const QString& name, const QString& unit)
{
    const bool framed = text.startsWith(name) && text.endsWith(unit);
    return framed ? text.sliced(name.size(), text.size() - name.size() - unit.size()).toDouble()
                  : std::nan("");
}

static bool Near(double value, double expected, double tolerance)
{
    return std::abs(value - expected) <= tolerance;
}

void MouseReadOutTest::PointerShowsXYAndEachLine()
{
    Desk desk;
    desk.ClickChartType(2);
    const frmGraph* chart = PlotTwoLines(desk);
    const AxisRange& range = chart->Range();
    Point(chart, 50, 25);
    // The middle of -75 to 125.
    QCOMPARE(Text(chart, "sbr1_1"), QString::fromUtf8("Temperature 25[°C]"));
    const double y = range.YMin + (double{range.YMax} - range.YMin) / 4;
    QVERIFY(Near(Number(Text(chart, "sbr1_2"), "Capacitance ", "[pF]"), y, 0.001));
    for (std::size_t line = 0; line < 2; ++line)
    {
        // Points 88 and 89 lie on both sides of 25 degrees: -55 + 180 * i / 199.
        const ChartRecord& record = mdlPublic.Charts.ChartData()[line];
        const double share = (25 - record.XData[88]) / (double{record.XData[89]} - record.XData[88]);
        QVERIFY(share >= 0 && share <= 1);
        const double own = record.YData[88] + share * (double{record.YData[89]} - record.YData[88]);
        const QString para = Text(chart, QStringLiteral("lblPara_%1").arg(line));
        QVERIFY2(Near(Number(para, "", "[pF]"), own, 1e-5 * own), qPrintable(para));
    }
}

void MouseReadOutTest::LogarithmicAxesReadInPowersOfTen()
{
    Desk desk;
    desk.ClickChartType(1);
    desk.PickYAxis("Current");
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtDCBiasVol", "0");
    desk.Type("txtAmbientTemp", "25");
    desk.ClickPlot();
    const frmGraph* chart = desk.Charts().front();
    const AxisRange& range = chart->Range();
    Point(chart, 50, 0.001);
    QCOMPARE(Text(chart, "sbr1_1"), QString("Frequency 100[kHz]"));
    QVERIFY(Near(Number(Text(chart, "sbr1_2"), "Current ", "[Arms]"), range.YMin, 0.001));
    Point(chart, 25, 50);
    QCOMPARE(Text(chart, "sbr1_1"), QString("Frequency 31.623[kHz]"));
    QVERIFY(Near(Number(Text(chart, "sbr1_2"), "Current ", "[Arms]"),
                 std::sqrt(double{range.YMin} * range.YMax), 0.0011));
    // Points 49 and 50 lie on both sides of 10^4.5 Hz.
    const ChartRecord& line = mdlPublic.Charts.ChartData()[0];
    const double own = Number(Text(chart, "lblPara_0"), "", "[Arms]");
    QVERIFY(own >= std::min(line.YData[49], line.YData[50]) - 0.001);
    QVERIFY(own <= std::max(line.YData[49], line.YData[50]) + 0.001);
}

void MouseReadOutTest::UserRangeIsRead()
{
    Desk desk;
    desk.ClickChartType(2);
    frmGraph* chart = PlotTwoLines(desk);
    chart->WriteMagnification(60, 200, 20, 100);
    Point(chart, 75, 50);
    QCOMPARE(Text(chart, "sbr1_1"), QString::fromUtf8("Temperature 50[°C]"));
    QCOMPARE(Text(chart, "sbr1_2"), QString("Capacitance 150[pF]"));
}

void MouseReadOutTest::ShorterLineEndsWithADash()
{
    Desk desk;
    desk.ClickChartType(2);
    const frmGraph* chart = PlotTwoLines(desk);
    // The lines run from -55 to 125 on an axis from -75: below 10 % there is none.
    Point(chart, 9.5, 50);
    QCOMPARE(Text(chart, "sbr1_1"), QString::fromUtf8("Temperature -56[°C]"));
    QCOMPARE(Text(chart, "lblPara_0"), QString("-"));
    QCOMPARE(Text(chart, "lblPara_1"), QString("-"));
    Point(chart, 10.5, 50);
    QVERIFY(Text(chart, "lblPara_0").endsWith("[pF]"));
}

static void VerifyAtRest(const frmGraph* chart)
{
    QCOMPARE(Text(chart, "sbr1_1"), QString());
    QCOMPARE(Text(chart, "sbr1_2"), QString());
    QCOMPARE(Text(chart, "lblPara_0"), QString("(0[V] )"));
    QCOMPARE(Text(chart, "lblPara_1"), QString("(2[V] )"));
}

void MouseReadOutTest::LeavingThePlotBringsConditionsBack_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("to the left") << -0.1 << 50.0;
    QTest::newRow("to the right") << 100.1 << 50.0;
    QTest::newRow("below") << 50.0 << -0.1;
    QTest::newRow("above") << 50.0 << 100.1;
}

void MouseReadOutTest::LeavingThePlotBringsConditionsBack()
{
    QFETCH(double, x);
    QFETCH(double, y);
    Desk desk;
    desk.ClickChartType(2);
    const frmGraph* chart = PlotTwoLines(desk);
    Point(chart, 50, 50);
    QVERIFY(Text(chart, "lblPara_0") != "(0[V] )");
    Point(chart, x, y);
    VerifyAtRest(chart);
    // Just inside the same border the chart is read again.
    Point(chart, std::clamp(x, 0.001, 99.999), std::clamp(y, 0.001, 99.999));
    QVERIFY(Text(chart, "sbr1_1").startsWith("Temperature "));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(PictureOf(chart), &leave);
    VerifyAtRest(chart);
}

void MouseReadOutTest::AddedLineBringsConditionsBack()
{
    Desk desk;
    desk.ClickChartType(2);
    const frmGraph* chart = PlotTwoLines(desk);
    Point(chart, 50, 50);
    desk.Type("txtDCBiasVol", "3");
    desk.ClickPlot();
    VerifyAtRest(chart);
    QCOMPARE(Text(chart, "lblPara_2"), QString("(3[V] )"));
}

void MouseReadOutTest::MinimisingBringsConditionsBack()
{
    Desk desk;
    desk.ClickChartType(2);
    frmGraph* chart = PlotTwoLines(desk);
    Point(chart, 50, 50);
    chart->showMinimized();
    VerifyAtRest(chart);
}

void MouseReadOutTest::EmptyPanesStayEmpty()
{
    Desk desk;
    desk.ClickChartType(2);
    const frmGraph* chart = PlotTwoLines(desk);
    Point(chart, 50, 50);
    QCOMPARE(Text(chart, "lblPara_2"), QString());
    QCOMPARE(Text(chart, "lblPara_5"), QString());
}

/// Counts how often a widget is painted.
class Paints : public QObject
{
public:
    explicit Paints(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

void MouseReadOutTest::MovingTheMouseRepaintsNoChart()
{
    Desk desk;
    desk.ClickChartType(2);
    const frmGraph* chart = PlotTwoLines(desk);
    QTest::qWait(50);
    const Paints paints(PictureOf(chart));
    for (int x = -5; x <= 105; ++x)
    {
        Point(chart, x, x);
        QCoreApplication::processEvents();
    }
    QCOMPARE(paints.count, 0);
    PictureOf(chart)->update();
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 1);
}

// ---- The clipboard ----

static QImage Copied(Desk& desk)
{
    QGuiApplication::clipboard()->clear();
    desk.Choose("mnuChartClipboard");
    return QGuiApplication::clipboard()->image();
}

void MouseReadOutTest::ClipboardHoldsTheChartAtTwiceItsSize()
{
    Desk desk;
    desk.ClickChartType(2);
    PlotTwoLines(desk);
    // 711 by 247 on the screen, a margin of 10 all around, and 25 for the title.
    QCOMPARE(Copied(desk).size(), QSize(1462, 584));
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{2});
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

/// Share of the picture's pixels that are strongly blue or red: the colours of the first two lines.
static double ColourShare(const QImage& picture, const QRectF& part, bool blue)
{
    int count = 0;
    const QRect area = QRectF(part.x() * picture.width(), part.y() * picture.height(),
                              part.width() * picture.width(), part.height() * picture.height())
                           .toRect();
    for (int y = area.top(); y < area.bottom(); ++y)
    {
        for (int x = area.left(); x < area.right(); ++x)
        {
            const QColor pixel = picture.pixelColor(x, y);
            const int strong = blue ? pixel.blue() - pixel.red() : pixel.red() - pixel.blue();
            count += strong > 100 && pixel.green() < 130 ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (area.width() * area.height());
}

void MouseReadOutTest::StatusBarTellsThatTheChartIsCopied()
{
    Desk desk;
    desk.ClickChartType(2);
    const frmGraph* chart = PlotTwoLines(desk);
    const auto* const bar = chart->findChild<QStatusBar*>("sbr1");
    QCOMPARE(bar->currentMessage(), QString());
    Copied(desk);
    QCOMPARE(bar->currentMessage(), QString("Copied"));
    // The read-out has the bar for itself again.
    Point(chart, 50, 50);
    QCOMPARE(bar->currentMessage(), QString());
}

/// The box around all that is not of the ground's colour.
static QRect DrawnPart(const QImage& picture)
{
    QRect drawn;
    for (int y = 0; y < picture.height(); ++y)
    {
        for (int x = 0; x < picture.width(); ++x)
        {
            drawn |= picture.pixel(x, y) == picture.pixel(0, 0) ? QRect() : QRect(x, y, 1, 1);
        }
    }
    return drawn;
}

void MouseReadOutTest::CopiedPictureHasATitleAndEvenMargins()
{
    Desk desk;
    desk.ClickChartType(2);
    PlotTwoLines(desk);
    const QImage copy = Copied(desk);
    const QRect drawn = DrawnPart(copy);
    const std::array margins = {drawn.left(), drawn.top(), copy.width() - 1 - drawn.right(),
                                copy.height() - 1 - drawn.bottom()};
    for (const int margin : margins)
    {
        QVERIFY2(margin >= 18 && margin <= 28, qPrintable(QString::number(margin)));
    }
    // The title stands free above the chart: ink, then an empty row, then the chart's white ground.
    const QImage head = copy.copy(0, 0, copy.width(), 60);
    const QRect title = DrawnPart(head);
    QVERIFY(title.width() > 400 && title.height() > 15 && title.bottom() < 59);
    QCOMPARE(copy.pixel(30, 90), qRgb(255, 255, 255));
}

void MouseReadOutTest::ClipboardLooksLikeTheWindow()
{
    Desk desk;
    desk.ClickChartType(2);
    const frmGraph* chart = PlotTwoLines(desk);
    const QImage window = chart->findChild<QWidget*>("grpChart")->grab().toImage();
    // What lies between its margins and below its title.
    const QImage copy = Copied(desk).copy(20, 70, 1422, 494);
    const double width = 711.0 / window.width();
    const double height = 247.0 / window.height();
    // Chart, first pane and second pane, as shares of the picture.
    for (const QRectF& part :
         {QRectF(0, 0, 0.5, 1), QRectF(0.51, 0, 0.49, 0.16), QRectF(0.51, 0.17, 0.49, 0.16)})
    {
        const QRectF inWindow(part.x() * width, part.y() * height, part.width() * width,
                              part.height() * height);
        for (const bool blue : {true, false})
        {
            const double seen = ColourShare(window, inWindow, blue);
            const double copied = ColourShare(copy, part, blue);
            const bool present = seen > 0;
            QCOMPARE(copied > 0, present);
            QVERIFY2(!present || (copied > 0.4 * seen && copied < 2.5 * seen),
                     qPrintable(QStringLiteral("%1 %2").arg(seen).arg(copied)));
        }
    }
}

QTEST_MAIN(MouseReadOutTest)
#include "MouseReadOutTest.moc"
