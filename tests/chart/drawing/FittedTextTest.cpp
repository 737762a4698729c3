#include "chart/drawing/FittedText.h"
#include "chart/drawing/PainterSurface.h"

#include <QImage>
#include <QTest>

class FittedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void IsCondensedThenSmallerThenCut_data();
    void IsCondensedThenSmallerThenCut();
    void InkStaysInItsRoom_data();
    void InkStaysInItsRoom();
};

static const QString conditions = QStringLiteral("(12[V],46.93[°C/W],300[kHz],25[°C])");

void FittedTextTest::IsCondensedThenSmallerThenCut_data()
{
    QTest::addColumn<double>("share");
    QTest::addColumn<double>("across");
    QTest::addColumn<double>("upwards");
    QTest::addColumn<bool>("cut");
    QTest::newRow("with room") << 1.2 << 1.0 << 1.0 << false;
    QTest::newRow("with just enough room") << 1.0 << 1.0 << 1.0 << false;
    QTest::newRow("condensed") << 0.8 << 0.8 << 1.0 << false;
    QTest::newRow("as condensed as can be read") << 0.75 << 0.75 << 1.0 << false;
    // Three quarters across, and all of it four fifths as large.
    QTest::newRow("smaller too") << 0.6 << 0.6 << 0.8 << false;
    QTest::newRow("as small as can be read") << 0.45 << 0.45 << 0.6 << false;
    QTest::newRow("longer still") << 0.4 << 0.45 << 0.6 << true;
}

void FittedTextTest::IsCondensedThenSmallerThenCut()
{
    QFETCH(double, share);
    QFETCH(double, across);
    QFETCH(double, upwards);
    QFETCH(bool, cut);
    const QFontMetricsF metrics{ChartFont()};
    const FittedText fitted(conditions, metrics.horizontalAdvance(conditions) * share, metrics);
    QCOMPARE(fitted.Across(), across);
    QCOMPARE(fitted.Upwards(), upwards);
    QCOMPARE(fitted.IsCut(), cut);
}

void FittedTextTest::InkStaysInItsRoom_data()
{
    IsCondensedThenSmallerThenCut_data();
}

void FittedTextTest::InkStaysInItsRoom()
{
    QFETCH(double, share);
    QFETCH(double, upwards);
    for (const int ratio : {1, 2})
    {
        QImage image(300 * ratio, 30 * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(ChartFont());
        const QFontMetricsF metrics(painter.font(), &image);
        const double room = metrics.horizontalAdvance(conditions) * share;
        FittedText(conditions, room, metrics).Draw(painter, {10, 20});
        painter.end();
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
        {
            for (int x = 0; x < image.width(); ++x)
            {
                ink |= image.pixel(x, y) == qRgb(255, 255, 255) ? QRect() : QRect(x, y, 1, 1);
            }
        }
        QVERIFY(ink.left() >= 9 * ratio);
        QVERIFY(ink.right() <= (10 + room) * ratio + 1);
        // The room is used: what stands whole has no ellipsis instead of an end.
        QVERIFY(ink.right() >= (10 + std::min(share, 1.0) / share * room - 12) * ratio);
        // Brackets go from the ascent to the descent, about eleven pixels, about the baseline.
        QVERIFY(ink.height() <= (12.5 * upwards + 1) * ratio);
        QVERIFY(ink.bottom() >= 20 * ratio);
    }
}

QTEST_MAIN(FittedTextTest)
#include "FittedTextTest.moc"
