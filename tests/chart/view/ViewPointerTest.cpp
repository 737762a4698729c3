/// The pointer on a chart view: cursors, hover, wheel and drag.

#include "chart/frmGraph.h"
#include "chart/layout/AxisLimits.h"
#include "tests/Seed.h"
#include "tests/chart/view/ViewDesk.h"

#include <QPainter>
#include <QStyleHints>
#include <QTest>

#include <random>

class ViewPointerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCursorFollowsAndIsRoundWithinThePixel();
    void ClicksPinAndFree();
    void LeavingThePlotKeepsTheCursor();
    void ADoubleClickShowsTheDefaultRangeAndPinsNothing();
    void ALineUnderThePointerStandsOut();
    void ARowUnderThePointerStandsOut();
    void KeysZoomAboutTheCursor();
    void TheWheelZoomsThereAndBack_data();
    void TheWheelZoomsThereAndBack();
    void TheWheelOverLabelsZoomsOneAxis_data();
    void TheWheelOverLabelsZoomsOneAxis();
    void DraggingPansAndComesBack_data();
    void DraggingPansAndComesBack();
    void ASmallDragIsAClick();
    void ShiftAndDragZoomsToARectangle();
    void KeysZoomAndPan();
    void TheRangeStaysPermittedWhateverIsDone();
    void StripsAreEqualToAWholeRepaint();
};

using Kind = ViewDesk::Kind;

static bool Same(const AxisRange& a, const AxisRange& b)
{
    return a == b;
}

void ViewPointerTest::TheCursorFollowsAndIsRoundWithinThePixel()
{
    const ViewDesk desk;
    for (int plot = 3; plot < 98; plot += 7)
    {
        const QPoint place = desk.At(plot, 95);
        desk.MoveTo(place);
        const double x = desk.Cursors().A();
        const FittingChart& chart = desk.Canvas()->Chart();
        QVERIFY(chart.XAt(place.x() - 0.5) <= x && x <= chart.XAt(place.x() + 0.5));
        // The plot has four pixels to the degree at most: one decimal is enough.
        QCOMPARE(QString::number(x, 'f', 1).toDouble(), x);
        QVERIFY(desk.CursorLine().startsWith("A "));
    }
}

void ViewPointerTest::ClicksPinAndFree()
{
    const ViewDesk desk;
    desk.Click(desk.At(20, 95));
    QVERIFY(desk.Cursors().IsPinnedA());
    const double a = desk.Cursors().A();
    desk.MoveTo(desk.At(60, 95));
    QCOMPARE(desk.Cursors().A(), a);
    QVERIFY(*desk.Cursors().B() > a);
    desk.Click(desk.At(70, 95));
    QVERIFY(desk.Cursors().IsPinnedB());
    const double b = *desk.Cursors().B();
    desk.MoveTo(desk.At(80, 95));
    QCOMPARE(*desk.Cursors().B(), b);
    desk.Click(desk.At(90, 95));
    QVERIFY(!desk.Cursors().IsPinnedB());
    QVERIFY(*desk.Cursors().B() > b);
    // Beside the plot nothing is pinned.
    desk.Click(QPoint(2, 2));
    QVERIFY(!desk.Cursors().IsPinnedB());
}

void ViewPointerTest::LeavingThePlotKeepsTheCursor()
{
    const ViewDesk desk;
    desk.MoveTo(desk.At(30, 95));
    const double a = desk.Cursors().A();
    desk.MoveTo(QPoint(1, 1));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(desk.Canvas(), &leave);
    QCOMPARE(desk.Cursors().A(), a);
}

void ViewPointerTest::ADoubleClickShowsTheDefaultRangeAndPinsNothing()
{
    const ViewDesk desk;
    const AxisRange whole = desk.Scene().View.Range;
    desk.Turn(desk.At(50, 50), 4);
    QVERIFY(!Same(desk.Scene().View.Range, whole));
    const QPoint place = desk.At(40, 95);
    desk.MoveTo(place);
    QTest::mouseClick(desk.Canvas(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(desk.Canvas(), Qt::LeftButton, {}, place);
    QVERIFY(Same(desk.Scene().View.Range, whole));
    QVERIFY(!desk.Cursors().IsPinnedA());
}

/// The place of a line in the middle of the plot.
static QPoint OnLine(const ViewDesk& desk, std::size_t line)
{
    const ChartRecord& record = desk.Scene().Lines[line].Line;
    const FittingChart& chart = desk.Canvas()->Chart();
    return QPointF(*chart.PixelOfX(record.XData[100]), *chart.PixelOfY(record.YData[100])).toPoint();
}

void ViewPointerTest::ALineUnderThePointerStandsOut()
{
    const ViewDesk desk(Kind::AllowablePower, 3);
    desk.MoveTo(OnLine(desk, 1));
    QCOMPARE(desk.Scene().Hovered, std::optional(1));
    QCOMPARE(OverlayOf(desk.Scene()).Thick, std::optional(1));
    desk.MoveTo(OnLine(desk, 1) + QPoint(0, 7));
    QVERIFY(desk.Scene().Hovered.has_value());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(desk.Canvas(), &leave);
    QVERIFY(!desk.Scene().Hovered);
    desk.Press(Qt::Key_Down);
    QCOMPARE(OverlayOf(desk.Scene()).Thick, std::optional(0));
}

void ViewPointerTest::ARowUnderThePointerStandsOut()
{
    const ViewDesk desk(Kind::AllowablePower, 3);
    QWidget* const rows = desk.Table()->viewport();
    const QRect second = desk.Table()->visualRect(desk.Table()->model()->index(1, 1));
    const QPoint place = second.center();
    QMouseEvent move(QEvent::MouseMove, place, rows->mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(rows, &move);
    QCOMPARE(desk.Scene().Hovered, std::optional(1));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(rows, &leave);
    QVERIFY(!desk.Scene().Hovered);
}

/// Each chart has Y labels of its own that grow and shrink with the range.
static void AddCharts()
{
    QTest::addColumn<int>("kind");
    for (const Kind kind : {Kind::CapacitanceOverTemperature, Kind::CapacitanceOverBias,
                            Kind::RiseOverFrequency, Kind::AllowablePower})
    {
        QTest::addRow("chart %d", static_cast<int>(kind)) << static_cast<int>(kind);
    }
}

void ViewPointerTest::TheWheelZoomsThereAndBack_data()
{
    AddCharts();
}

void ViewPointerTest::TheWheelZoomsThereAndBack()
{
    QFETCH(int, kind);
    const ViewDesk desk(static_cast<Kind>(kind));
    const AxisRange whole = desk.Scene().View.Range;
    for (const QPoint& at : {QPoint(50, 50), QPoint(20, 80), QPoint(90, 10)})
    {
        const QPoint place = desk.At(at.x(), at.y());
        const double x = desk.Canvas()->Chart().XAt(place.x());
        desk.Turn(place, 1);
        desk.Turn(place, 3);
        QVERIFY(desk.Scene().View.Range.XMax - desk.Scene().View.Range.XMin < whole.XMax - whole.XMin);
        QVERIFY(desk.Scene().View.Range.YMax - desk.Scene().View.Range.YMin < whole.YMax - whole.YMin);
        // What was under the pointer stays there, but for the rounding of the ends.
        const auto pixel = desk.Canvas()->Chart().PixelOfX(x);
        QVERIFY(pixel && std::abs(*pixel - place.x()) < 3);
        desk.Turn(place, -2);
        desk.Turn(place, -2);
        QVERIFY(Same(desk.Scene().View.Range, whole));
    }
}

void ViewPointerTest::TheWheelOverLabelsZoomsOneAxis_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("x");
    QTest::addColumn<bool>("y");
    QTest::newRow("plot") << QPoint(50, 50) << int(Qt::NoModifier) << true << true;
    QTest::newRow("Shift") << QPoint(50, 50) << int(Qt::ShiftModifier) << true << false;
    QTest::newRow("Control") << QPoint(50, 50) << int(Qt::ControlModifier) << false << true;
    QTest::newRow("X labels") << QPoint(50, -3) << int(Qt::NoModifier) << true << false;
    QTest::newRow("Y labels") << QPoint(-2, 50) << int(Qt::NoModifier) << false << true;
}

void ViewPointerTest::TheWheelOverLabelsZoomsOneAxis()
{
    QFETCH(QPoint, at);
    QFETCH(int, modifiers);
    const ViewDesk desk;
    const AxisRange whole = desk.Scene().View.Range;
    desk.Turn(desk.At(at.x(), at.y()), 2, Qt::KeyboardModifiers(modifiers));
    const AxisRange& now = desk.Scene().View.Range;
    QTEST(now.XMax - now.XMin < whole.XMax - whole.XMin, "x");
    QTEST(now.YMax - now.YMin < whole.YMax - whole.YMin, "y");
}

void ViewPointerTest::KeysZoomAboutTheCursor()
{
    const ViewDesk desk(Kind::CapacitanceOverBias);
    desk.Click(desk.At(80, 50));
    desk.MoveTo(desk.At(90, 50));
    const double pixel = *desk.Canvas()->Chart().PixelOfX(*desk.Cursors().B());
    for (int step = 0; step < 5; ++step)
    {
        desk.Press(Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(std::abs(*desk.Canvas()->Chart().PixelOfX(*desk.Cursors().B()) - pixel) < 3);
    }
}

void ViewPointerTest::DraggingPansAndComesBack_data()
{
    AddCharts();
}

void ViewPointerTest::DraggingPansAndComesBack()
{
    QFETCH(int, kind);
    const ViewDesk desk(static_cast<Kind>(kind));
    desk.Turn(desk.At(50, 50), 4);
    const AxisRange before = desk.Scene().View.Range;
    const QPoint from = desk.At(50, 50);
    const double under = desk.Canvas()->Chart().XAt(from.x());
    const QPoint to = from + QPoint(80, 40);
    QTest::mousePress(desk.Canvas(), Qt::LeftButton, {}, from);
    desk.MoveTo(to, Qt::LeftButton);
    QVERIFY(desk.Scene().View.Range.XMin < before.XMin);
    QVERIFY(desk.Scene().View.Range.YMin > before.YMin);
    QVERIFY(std::abs(*desk.Canvas()->Chart().PixelOfX(under) - to.x()) < 2);
    // Far beyond the limit and back again.
    desk.MoveTo(from + QPoint(9000, 9000), Qt::LeftButton);
    desk.MoveTo(from + QPoint(0, 0), Qt::LeftButton);
    QTest::mouseRelease(desk.Canvas(), Qt::LeftButton, {}, from);
    QVERIFY(Same(desk.Scene().View.Range, before));
    QVERIFY(!desk.Cursors().IsPinnedA());
}

void ViewPointerTest::ASmallDragIsAClick()
{
    const ViewDesk desk;
    const AxisRange before = desk.Scene().View.Range;
    const QPoint from = desk.At(50, 95);
    desk.Drag(from, from + QPoint(QGuiApplication::styleHints()->startDragDistance() - 2, 0));
    QVERIFY(Same(desk.Scene().View.Range, before));
    QVERIFY(desk.Cursors().IsPinnedA());
}

void ViewPointerTest::ShiftAndDragZoomsToARectangle()
{
    const ViewDesk desk;
    const FittingChart& chart = desk.Canvas()->Chart();
    const QPoint from = desk.At(75, 25);
    const QPoint to = desk.At(25, 75);
    const double least = chart.XAt(to.x());
    const double most = chart.XAt(from.x());
    desk.Drag(from, to, Qt::ShiftModifier);
    const AxisRange& now = desk.Scene().View.Range;
    QVERIFY(std::abs(now.XMin - least) < (most - least) / 100);
    QVERIFY(std::abs(now.XMax - most) < (most - least) / 100);
}

void ViewPointerTest::KeysZoomAndPan()
{
    const ViewDesk desk;
    const AxisRange whole = desk.Scene().View.Range;
    const double cursor = desk.Cursors().A();
    for (const auto& [in, modifiers] : {std::pair{Qt::Key_Plus, Qt::KeyboardModifiers(Qt::ControlModifier)},
                                        {Qt::Key_Equal, Qt::ControlModifier},
                                        {Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier}})
    {
        desk.Press(in, modifiers);
        QVERIFY(desk.Scene().View.Range.XMax < whole.XMax);
        desk.Press(Qt::Key_Minus, Qt::ControlModifier);
        QVERIFY(Same(desk.Scene().View.Range, whole));
    }
    desk.Turn(desk.At(50, 50), 4);
    const AxisRange before = desk.Scene().View.Range;
    desk.Press(Qt::Key_Left, Qt::ControlModifier);
    QVERIFY(desk.Scene().View.Range.XMin < before.XMin);
    desk.Press(Qt::Key_Right, Qt::ControlModifier);
    QVERIFY(Same(desk.Scene().View.Range, before));
    desk.Press(Qt::Key_Up, Qt::ControlModifier);
    QVERIFY(desk.Scene().View.Range.YMin > before.YMin);
    desk.Press(Qt::Key_0, Qt::ControlModifier);
    QVERIFY(Same(desk.Scene().View.Range, whole));
    QCOMPARE(desk.Cursors().A(), cursor);
}

void ViewPointerTest::TheRangeStaysPermittedWhateverIsDone()
{
    const ViewDesk desk(Kind::RiseOverFrequency);
    std::mt19937 random(TestSeed(3));
    const auto number = [&](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
    const AxisRange whole = desk.Chart()->Range();
    const auto x = PermittedXRange(desk.Scene().View.Chart, whole);
    const auto y = PermittedYRange(desk.Scene().View.Chart, whole);
    for (int action = 0; action < 400; ++action)
    {
        const QPoint place = desk.At(number(-10, 110), number(-10, 110));
        number(0, 1) == 0 ? desk.Turn(place, number(-5, 5))
                          : desk.Drag(place, place + QPoint(number(-300, 300), number(-300, 300)));
        const AxisRange& now = desk.Scene().View.Range;
        QVERIFY(now.XMin < now.XMax && now.YMin < now.YMax);
        QVERIFY(x.Contains(now.XMin / 1000) && x.Contains(now.XMax / 1000));
        QVERIFY(y.Contains(now.YMin) && y.Contains(now.YMax));
    }
}

/// The window as its strips have left it.
class Screen : public QObject
{
public:
    explicit Screen(QWidget* shown)
        : widget(shown)
        , image(shown->size() * shown->devicePixelRatioF(), QImage::Format_RGB32)
    {
        image.setDevicePixelRatio(shown->devicePixelRatioF());
        widget->render(&image);
    }
    void Repaint(const QRegion& strips) { widget->render(&image, strips.boundingRect().topLeft(), strips); }
    const QImage& Image() const { return image; }

private:
    QWidget* widget;
    QImage image;
};

void ViewPointerTest::StripsAreEqualToAWholeRepaint()
{
    const ViewDesk desk(Kind::RiseOverFrequency, 6);
    // Until the chart is kept as a picture.
    QTest::qWait(200);
    for (int step = 0; step < 20; ++step)
    {
        Screen screen(desk.Canvas());
        const auto stripsOf = [&]
        { return desk.Canvas()->Chart().StripsOf(OverlayOf(desk.Scene()).Cursors); };
        const QRegion before = stripsOf();
        step == 7 ? desk.Press(Qt::Key_Return) : desk.Press(Qt::Key_Right, Qt::ShiftModifier);
        if (step == 7)
        {
            continue;
        }
        screen.Repaint(before + stripsOf());
        const Screen whole(desk.Canvas());
        QCOMPARE(screen.Image(), whole.Image());
    }
}

QTEST_MAIN(ViewPointerTest)
#include "ViewPointerTest.moc"
