/// Pictures that the built command line draws: formats, sizes, ranges and dates.

#include "tests/cli/CommandLine.h"

#include <QFile>
#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>

class PicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DrawsEveryFormat();
    void DrawsTheSameDocumentOfADate();
    void DrawsInTheSizeAsked();
    void DrawsWithinTheRangeAsked();

private:
    QString InFolder(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    QByteArray Contents(const char* name) const
    {
        QFile file(InFolder(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
};

static QStringList ChartCommand(const QString& file)
{
    return {"chart",    "KTS31NB51E106MA01",
            "--chart",  "capacitance-dc-voltage",
            "--line",   "KTS31NB51E106MA01 ambient=85C",
            "--output", file};
}

void PicturesTest::DrawsEveryFormat()
{
    for (const char* name : {"chart.png", "chart.svg", "chart.PDF"})
    {
        const Run run = RunCommandLine(ChartCommand(InFolder(name)));
        QCOMPARE(run.Messages, QByteArray());
        QCOMPARE(run.Status, 0);
    }
    const QImage image(InFolder("chart.png"));
    QCOMPARE(image.size(), QSize(1450, 496));
    QSvgRenderer drawing(InFolder("chart.svg"));
    QVERIFY(drawing.isValid());
    QCOMPARE(drawing.viewBox(), QRect(0, 0, 725, 248));
    QVERIFY(Contents("chart.svg").contains(QString::fromUtf8("(85[ °C] )").toUtf8()));
    QVERIFY(Contents("chart.PDF").startsWith("%PDF-"));
    // 725 by 248 pixels of 1/96 inch, in whole points.
    QVERIFY(Contents("chart.PDF").contains("MediaBox [0 0 544.000000 186.000000]"));
}

/// A document, made in a zone of time with the date that the build asks for.
static Run DocumentMadeIn(const char* zone, const char* date)
{
    qputenv("TZ", zone);
    qputenv("SOURCE_DATE_EPOCH", date);
    const auto run = RunCommandLine(
        {"chart", "KTS31NB51E106MA01", "--chart", "capacitance-dc-voltage", "--format", "pdf"});
    qunsetenv("TZ");
    qunsetenv("SOURCE_DATE_EPOCH");
    return run;
}

void PicturesTest::DrawsTheSameDocumentOfADate()
{
    const auto first = DocumentMadeIn("Asia/Tokyo", "86399");
    QCOMPARE(first.Status, 0);
    QVERIFY(first.Output.contains("/CreationDate (D:19700101235959Z)"));
    QCOMPARE(DocumentMadeIn("America/New_York", "86399").Output, first.Output);
    for (const char* date : {"today", "-1", "253402300800", ""})
    {
        const auto refused = DocumentMadeIn("UTC", date);
        QCOMPARE(refused.Status, 1);
        QCOMPARE(refused.Messages, "tavik-cli: SOURCE_DATE_EPOCH \"" + QByteArray(date) +
                                       "\" is no time in seconds since 1970\n");
    }
}

void PicturesTest::DrawsInTheSizeAsked()
{
    const auto command = ChartCommand(InFolder("chart.png"));
    QCOMPARE(RunCommandLine(command + QStringList{"--size", "800x600", "--scale", "1"}).Status, 0);
    const QImage image(InFolder("chart.png"));
    QCOMPARE(image.size(), QSize(800, 600));
    // The sheet stands in the middle: its white chart begins below the upper third.
    QCOMPARE(image.pixelColor(100, 100), QColor(240, 240, 240));
    QCOMPARE(image.pixelColor(2, 200), QColor(Qt::white));
}

/// How many pixels have about the colour of the first curve.
static int CountBlue(const QImage& image)
{
    int count = 0;
    // Left of the panes, which have the colour too.
    for (int y = 0; y < image.height(); ++y)
    {
        for (int x = 0; x < image.width() / 2; ++x)
        {
            const QColor color = image.pixelColor(x, y);
            count += color.blue() > 200 && color.red() < 80 && color.green() < 80 ? 1 : 0;
        }
    }
    return count;
}

void PicturesTest::DrawsWithinTheRangeAsked()
{
    // The whole curve lies below the upper range, so that no part of it is drawn.
    const auto command = ChartCommand(InFolder("chart.png"));
    QCOMPARE(RunCommandLine(command).Status, 0);
    QVERIFY(CountBlue(QImage(InFolder("chart.png"))) > 500);
    const Run run = RunCommandLine(command + QStringList{"--y-from", "14uF", "--y-to", "15uF"});
    QCOMPARE(run.Messages, QByteArray());
    QCOMPARE(CountBlue(QImage(InFolder("chart.png"))), 0);
}

QTEST_GUILESS_MAIN(PicturesTest)
#include "PicturesTest.moc"
