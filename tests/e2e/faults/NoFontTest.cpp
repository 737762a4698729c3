/// The programs on a machine without any font.

#include "tests/cli/CommandLine.h"
#include "tests/e2e/Program.h"

#include <QFile>
#include <QTest>

class NoFontTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { qunsetenv("FONTCONFIG_FILE"); }
    void ProgramSaysWhatIsMissing_data();
    void ProgramSaysWhatIsMissing();
    void NoChartIsDrawnWithoutItsTexts_data();
    void NoChartIsDrawnWithoutItsTexts();
    void CurvesNeedNoFont();

private:
    QTemporaryDir folder;
};

static const QString Part = QStringLiteral("KTS31NB51E106MA01");

void NoFontTest::initTestCase()
{
    QFile none(folder.filePath("fonts.conf"));
    QVERIFY(none.open(QIODevice::WriteOnly));
    none.write("<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig></fontconfig>");
    none.close();
    qputenv("FONTCONFIG_FILE", none.fileName().toLocal8Bit());
}

void NoFontTest::ProgramSaysWhatIsMissing_data()
{
    QTest::addColumn<QString>("platform");
    QTest::newRow("on a display") << "xcb";
    QTest::newRow("without a display") << "offscreen";
}

void NoFontTest::ProgramSaysWhatIsMissing()
{
    QFETCH(QString, platform);
    const TestDisplay display;
    QVERIFY2(display.IsUp(), "Xvfb does not start");
    const ProgramFolder place;
    auto environment = display.Environment(QStringLiteral("font-%1").arg(QCoreApplication::applicationPid()));
    environment.insert("FONTCONFIG_FILE", qEnvironmentVariable("FONTCONFIG_FILE"));
    environment.insert("QT_QPA_PLATFORM", platform);
    const auto program = place.Start(environment);
    QVERIFY(program->waitForFinished(20000));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 1);
    QCOMPARE(program->readAllStandardError(),
             QByteArray("tavik: no font is installed, so no text can be shown\n"));
}

void NoFontTest::NoChartIsDrawnWithoutItsTexts_data()
{
    QTest::addColumn<QString>("format");
    for (const char* format : {"png", "svg", "pdf"})
    {
        QTest::newRow(format) << format;
    }
}

void NoFontTest::NoChartIsDrawnWithoutItsTexts()
{
    QFETCH(QString, format);
    const QString file = folder.filePath("chart." + format);
    const Run run = RunCommandLine({"chart", Part, "--chart", "capacitance-dc-voltage", "--output", file});
    QCOMPARE(run.Status, 1);
    QCOMPARE(run.Messages, QByteArray("tavik-cli: no font is installed, so the chart would have no texts\n"));
    QVERIFY(!QFile::exists(file));
}

void NoFontTest::CurvesNeedNoFont()
{
    const Run run = RunCommandLine({"curve", Part, "--chart", "capacitance-dc-voltage"});
    QCOMPARE(run.Status, 0);
    QCOMPARE(run.Messages, QByteArray());
    QVERIFY(run.Output.startsWith("!Halvex"));
}

QTEST_GUILESS_MAIN(NoFontTest)
#include "NoFontTest.moc"
