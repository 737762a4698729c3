#include "chart/drawing/PictureFile.h"

#include <QImage>
#include <QTest>

class PictureFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TypesGoByTheEndOfTheName_data();
    void TypesGoByTheEndOfTheName();
    void BitmapsHaveAPixelForEachUnit();
    void DrawingsBearExtentAndTitle();
    void NothingIsWrittenWithoutMemory();
};

static Picture Halves(const QSizeF& extent)
{
    return {extent, QStringLiteral("Rise & fall"),
            [extent](QPainter& painter)
            {
                painter.fillRect(QRectF(QPointF(0, 0), extent), Qt::white);
                painter.fillRect(QRectF(0, 0, extent.width() / 2, extent.height()), Qt::red);
            }};
}

void PictureFileTest::TypesGoByTheEndOfTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::newRow("png") << "rise.png"
                         << "png";
    QTest::newRow("svg") << "/a/rise.v1.svg"
                         << "svg";
    QTest::newRow("pdf") << "rise.pdf"
                         << "pdf";
    QTest::newRow("upper case") << "RISE.PNG"
                                << "png";
    QTest::newRow("another type") << "rise.jpg"
                                  << "";
    QTest::newRow("no end") << "png"
                            << "";
    QTest::newRow("end of a folder") << "/a.png/rise"
                                     << "";
    QTest::newRow("nothing behind the point") << "rise."
                                              << "";
}

void PictureFileTest::TypesGoByTheEndOfTheName()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    const auto* found = PictureTypeOf(name);
    QCOMPARE(found != nullptr ? QString::fromUtf8(found->Name.data()) : QString(), type);
}

void PictureFileTest::BitmapsHaveAPixelForEachUnit()
{
    const auto image = QImage::fromData(PictureTypeOf("a.png")->Write(Halves({300, 200})), "PNG");
    QCOMPARE(image.size(), QSize(300, 200));
    QCOMPARE(image.pixel(149, 199), qRgb(255, 0, 0));
    QCOMPARE(image.pixel(150, 0), qRgb(255, 255, 255));
}

void PictureFileTest::DrawingsBearExtentAndTitle()
{
    const auto svg = PictureTypeOf("a.svg")->Write(Halves({300, 200}));
    QVERIFY(svg.contains("<title>Rise &amp; fall</title>"));
    QVERIFY(svg.contains("viewBox=\"0 0 300 200\""));
    const auto pdf = PictureTypeOf("a.pdf")->Write(Halves({960, 480}));
    QVERIFY(pdf.startsWith("%PDF-"));
    // Ten inches by five, in points.
    QVERIFY(pdf.contains("/MediaBox [0 0 720"));
    QVERIFY(pdf.contains(QByteArray("R\0i\0s\0e", 7)) || pdf.contains("(Rise & fall)"));
}

void PictureFileTest::NothingIsWrittenWithoutMemory()
{
    QVERIFY(PictureTypeOf("a.png")->Write(Halves({100000, 100000})).isEmpty());
}

QTEST_MAIN(PictureFileTest)
#include "PictureFileTest.moc"
