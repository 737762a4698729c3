#include "chart/drawing/FittingChart.h"
#include "chart/drawing/QtColors.h"
#include "tests/Seed.h"
#include "tests/chart/drawing/ViewedLines.h"

#include <QImage>
#include <QTest>

#include <random>

class FittingChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PlacesAndValuesMatch();
    void LinesAreFoundWithinADistance();
    void CurvesStayWithinThePlot();
    void DashesOfAThickLineCoverThoseOfAUsualOne();
    void MarkersStandOnTheirLines();
    void CursorsOutOfViewAreNotDrawn();
    void TagsNeverOverlap_data();
    void TagsNeverOverlap();
    void StripsAreEqualToAWholeRepaint_data();
    void StripsAreEqualToAWholeRepaint();
    void AChartWithoutWidthHasFrameAndTitles();
    void PaintersKeepNothing();
};

static const QSizeF room(900, 500);

static FittingChart Chart(int lines, const ChartView& view = FallingView(), bool dashed = false)
{
    return {view, FallingLines(lines), CodeView::Eia, room, {.TextSize = 16, .Dashed = dashed}};
}

static QImage Picture(double pixelRatio = 1)
{
    QImage picture((room * pixelRatio).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::white);
    return picture;
}

static CursorMark Cursor(double x, const QString& tag)
{
    return {x, tag, false, {1e7 * std::exp(-x / 10), std::nullopt}};
}

void FittingChartTest::PlacesAndValuesMatch()
{
    const auto chart = Chart(1);
    const auto plot = chart.Plot();
    QCOMPARE(chart.XAt(plot.left()), 0.0);
    QCOMPARE(chart.XAt(plot.right()), 25.0);
    QCOMPARE(chart.YAt(plot.bottom()), 0.0);
    QCOMPARE(chart.YAt(plot.top()), 2e7);
    QCOMPARE(*chart.PixelOfX(12.5), plot.center().x());
    QCOMPARE(*chart.PixelOfY(1e7), plot.center().y());
    QVERIFY(!chart.PixelOfX(25.5));
    QVERIFY(!chart.PixelOfY(-1));
}

void FittingChartTest::LinesAreFoundWithinADistance()
{
    const auto chart = Chart(3);
    const double x = 10;
    const auto pixelOf = [&](int line)
    { return QPointF(*chart.PixelOfX(x), *chart.PixelOfY(1e7 * std::exp(-x / (10 + 5 * line)))); };
    for (int line = 0; line < 3; ++line)
    {
        QCOMPARE(chart.LineNear(pixelOf(line)), std::optional(line));
        QCOMPARE(chart.LineNear(pixelOf(line) + QPointF(0, 5)), std::optional(line));
    }
    QVERIFY(!chart.LineNear(chart.Plot().topRight() + QPointF(-50, 50)));
    QVERIFY(!chart.LineNear(pixelOf(2) - QPointF(0, 12)));
    QCOMPARE(chart.LineNear(pixelOf(2) - QPointF(0, 12), 14), std::optional(2));
}

void FittingChartTest::CurvesStayWithinThePlot()
{
    auto view = FallingView();
    view.Range = {25, 5e6F, 0, 2e6F};
    const auto chart = Chart(1, view);
    auto picture = Picture();
    QPainter painter(&picture);
    chart.Draw(painter);
    painter.end();
    const auto plot = chart.Plot();
    const auto blue = qRgb(0, 0, 255);
    bool any = false;
    for (int row = 0; row < picture.height(); ++row)
    {
        for (int column = 0; column < picture.width(); ++column)
        {
            const bool isLine = picture.pixel(column, row) == blue;
            any = any || isLine;
            // The badge is beyond the end.
            const bool outside = column < plot.left() - 2 || row < plot.top() - 2 || row > plot.bottom() + 2;
            QVERIFY(!isLine || !outside);
        }
    }
    QVERIFY(any);
}

void FittingChartTest::DashesOfAThickLineCoverThoseOfAUsualOne()
{
    const auto chart = Chart(2, FallingView(), true);
    auto usual = Picture();
    auto thick = Picture();
    ChartOverlay overlay;
    overlay.Thick = 1;
    for (auto* picture : {&usual, &thick})
    {
        QPainter painter(picture);
        chart.Draw(painter);
        if (picture == &thick)
        {
            chart.DrawOverlay(overlay, painter);
        }
    }
    // Beside the badges: every red pixel is red again, and no gap has closed.
    const auto x = static_cast<int>(*chart.PixelOfX(20));
    const auto isRed = [](QRgb pixel) { return qRed(pixel) > 250 && qGreen(pixel) < 60; };
    int dashes = 0;
    int gaps = 0;
    for (int column = static_cast<int>(chart.Plot().left()) + 2; column < x; ++column)
    {
        const double value = 1e7 * std::exp(-chart.XAt(column + 0.5) / 15);
        const int row = static_cast<int>(*chart.PixelOfY(value));
        dashes += isRed(usual.pixel(column, row)) ? 1 : 0;
        gaps += qRed(thick.pixel(column, row)) > 120 && qGreen(thick.pixel(column, row)) > 120 ? 1 : 0;
        QVERIFY(!isRed(usual.pixel(column, row)) || isRed(thick.pixel(column, row)));
    }
    QVERIFY(dashes > 100);
    QVERIFY(gaps > 100);
}

void FittingChartTest::MarkersStandOnTheirLines()
{
    const auto chart = Chart(2);
    auto picture = Picture();
    QPainter painter(&picture);
    chart.Draw(painter);
    ChartOverlay overlay;
    overlay.Cursors = {Cursor(10, "A 10 V")};
    chart.DrawOverlay(overlay, painter);
    painter.end();
    const QPoint at(static_cast<int>(*chart.PixelOfX(10)),
                    static_cast<int>(*chart.PixelOfY(1e7 * std::exp(-1))));
    QCOMPARE(picture.pixel(at), qRgb(255, 255, 255));
    // The hairline goes on above it; the second line has no value, so no marker hides it.
    QCOMPARE(picture.pixel(at - QPoint(0, 30)) & 0xFFFFFF, 0U);
}

void FittingChartTest::CursorsOutOfViewAreNotDrawn()
{
    const auto chart = Chart(1);
    auto without = Picture();
    auto with = Picture();
    ChartOverlay overlay;
    for (auto* picture : {&without, &with})
    {
        QPainter painter(picture);
        chart.Draw(painter);
        chart.DrawOverlay(overlay, painter);
        overlay.Cursors = {Cursor(26, "A 26 V")};
    }
    QCOMPARE(with, without);
    QVERIFY(chart.StripsOf(overlay.Cursors).isEmpty());
}

void FittingChartTest::TagsNeverOverlap_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::newRow("far") << 5.0 << 20.0;
    QTest::newRow("near") << 12.0 << 12.2;
    QTest::newRow("near, in other order") << 12.2 << 12.0;
    QTest::newRow("same") << 12.0 << 12.0;
    QTest::newRow("at the left edge") << 0.0 << 0.1;
    QTest::newRow("at the right edge") << 24.9 << 25.0;
}

void FittingChartTest::TagsNeverOverlap()
{
    QFETCH(double, a);
    QFETCH(double, b);
    const auto chart = Chart(1);
    const std::vector<CursorMark> cursors = {Cursor(a, "A 12.0001 V"), Cursor(b, "B 12.2001 V")};
    auto picture = Picture();
    QPainter painter(&picture);
    ChartOverlay overlay;
    overlay.Cursors = cursors;
    chart.DrawOverlay(overlay, painter);
    painter.end();
    // Two dark stretches with a gap between in the row through the tags' lower edges, both whole.
    const int row = static_cast<int>(chart.Plot().top() - 5);
    std::vector<int> stretches;
    bool dark = false;
    for (int column = 0; column < picture.width(); ++column)
    {
        const bool isDark = picture.pixel(column, row) == qRgb(40, 40, 40);
        if (isDark && !dark)
        {
            stretches.push_back(0);
        }
        dark = isDark;
        stretches.empty() || !isDark ? void() : void(++stretches.back());
    }
    QCOMPARE(stretches.size(), 2U);
    QVERIFY(std::abs(stretches[0] - stretches[1]) <= 3);
}

void FittingChartTest::StripsAreEqualToAWholeRepaint_data()
{
    QTest::addColumn<double>("pixelRatio");
    QTest::newRow("100 %") << 1.0;
    QTest::newRow("125 %") << 1.25;
    QTest::newRow("150 %") << 1.5;
    QTest::newRow("200 %") << 2.0;
}

void FittingChartTest::StripsAreEqualToAWholeRepaint()
{
    QFETCH(double, pixelRatio);
    std::mt19937 random(TestSeed(100));
    std::uniform_real_distribution<double> share(-0.05, 1.05);
    const auto chart = Chart(6);
    auto base = Picture(pixelRatio);
    QPainter basePainter(&base);
    chart.Draw(basePainter);
    basePainter.end();
    auto window = base;
    QRegion before;
    for (int step = 0; step < 30; ++step)
    {
        ChartOverlay overlay;
        overlay.Thick = 3;
        overlay.Cursors = {Cursor(25 * share(random), "A 12.25 V"), Cursor(25 * share(random), "B 3 V")};
        const auto paint = [&](QImage& picture, const QRegion& region)
        {
            QPainter painter(&picture);
            painter.setClipRegion(region);
            painter.drawImage(QPointF(0, 0), base);
            chart.DrawOverlay(overlay, painter);
        };
        const auto strips = chart.StripsOf(overlay.Cursors);
        const QRegion whole(QRect(0, 0, 900, 500));
        paint(window, step == 0 ? whole : before + strips);
        auto repainted = base;
        paint(repainted, whole);
        QCOMPARE(window, repainted);
        before = strips;
    }
}

void FittingChartTest::AChartWithoutWidthHasFrameAndTitles()
{
    auto view = FallingView();
    view.Range = {0, 2e7F, 0, 0};
    const auto chart = Chart(2, view);
    auto picture = Picture();
    QPainter painter(&picture);
    chart.Draw(painter);
    ChartOverlay overlay;
    overlay.Thick = 0;
    overlay.Cursors = {Cursor(0, "A 0 V")};
    chart.DrawOverlay(overlay, painter);
    painter.end();
    const auto plot = chart.Plot();
    QCOMPARE(picture.pixel(static_cast<int>(plot.center().x()), static_cast<int>(plot.top())), qRgb(0, 0, 0));
    QCOMPARE(picture.pixel(static_cast<int>(plot.center().x()), static_cast<int>(plot.center().y()) + 3),
             qRgb(255, 255, 255));
    QVERIFY(!chart.LineNear(plot.center(), 10000));
}

void FittingChartTest::PaintersKeepNothing()
{
    const auto chart = Chart(2);
    auto picture = Picture();
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::green, 3));
    painter.setBrush(Qt::yellow);
    const auto font = painter.font();
    ChartOverlay overlay;
    overlay.Cursors = {Cursor(3, "A 3 V")};
    chart.Draw(painter);
    chart.DrawOverlay(overlay, painter);
    QCOMPARE(painter.pen(), QPen(Qt::green, 3));
    QCOMPARE(painter.brush(), QBrush(Qt::yellow));
    QCOMPARE(painter.font(), font);
}

QTEST_MAIN(FittingChartTest)
#include "FittingChartTest.moc"
