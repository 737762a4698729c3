/// The pictures of the help books and of README.md are those that the built programs make.

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class PicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void AreNotStale_data();
    void AreNotStale();
    void AllOfThemAreMade();
    void DifferencesAreFound();

private:
    QTemporaryDir made;
};

/// Share of the pixels that differ; all of them where the sizes do.
static double Difference(const QImage& one, const QImage& other)
{
    if (one.isNull() || one.size() != other.size())
    {
        return 1;
    }
    qint64 count = 0;
    for (int y = 0; y < one.height(); ++y)
    {
        for (int x = 0; x < one.width(); ++x)
        {
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (static_cast<double>(one.width()) * one.height());
}

static QByteArray Bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void PicturesTest::initTestCase()
{
    QProcess script;
    script.setProcessChannelMode(QProcess::ForwardedChannels);
    script.start(SOURCES "/scripts/help-pictures", {PROGRAMS, made.path()});
    QVERIFY(script.waitForFinished(120000));
    QCOMPARE(script.exitCode(), 0);
}

void PicturesTest::AreNotStale_data()
{
    QTest::addColumn<QString>("file");
    for (const char* folder : {"help/pictures", "docs"})
    {
        for (const QString& name : QDir(made.filePath(folder)).entryList(QDir::Files, QDir::Name))
        {
            QTest::newRow(qPrintable(name)) << QString(folder) + '/' + name;
        }
    }
}

void PicturesTest::AreNotStale()
{
    static constexpr double Tolerated = 0.01;
    QFETCH(QString, file);
    const QString kept = SOURCES "/" + file;
    const char* const remedy = "scripts/help-pictures makes it anew";
    if (file.endsWith(".txt"))
    {
        QVERIFY2(Bytes(kept) == Bytes(made.filePath(file)), remedy);
        return;
    }
    const double difference = Difference(QImage(kept), QImage(made.filePath(file)));
    QVERIFY2(difference <= Tolerated, qPrintable(QString::number(difference) + ": " + remedy));
}

/// No picture is left over that nothing shows, and none is without its text.
void PicturesTest::AllOfThemAreMade()
{
    const auto filesIn = [](const QString& folder)
    { return QDir(folder).entryList(QDir::Files, QDir::Name); };
    const QStringList kept = filesIn(SOURCES "/help/pictures");
    QVERIFY(kept.size() >= 26);
    QCOMPARE(kept, filesIn(made.filePath("help/pictures")));
}

void PicturesTest::DifferencesAreFound()
{
    QImage one(100, 100, QImage::Format_RGB32);
    one.fill(Qt::white);
    QImage other = one;
    QCOMPARE(Difference(one, other), 0.0);
    for (int x = 0; x < 100; ++x)
    {
        other.setPixelColor(x, 7, Qt::black);
    }
    QCOMPARE(Difference(one, other), 0.01);
    QCOMPARE(Difference(one, one.copy(0, 0, 100, 99)), 1.0);
    QCOMPARE(Difference(QImage(), QImage()), 1.0);
}

QTEST_GUILESS_MAIN(PicturesTest)
#include "PicturesTest.moc"
