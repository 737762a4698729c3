/// Programs killed at any moment of a save: the file is the old or the new one, whole. The long form kills
/// each as often as TAVIK_TEST_RUNS says.

#include "tests/Seed.h"
#include "tests/cli/CommandLine.h"
#include "tests/e2e/Program.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

class KilledSaveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CommandLineLeavesTheOldOrTheNewFile();
    void MainWindowLeavesTheOldOrTheNewFile();

private:
    QRandomGenerator random{TestSeed(20)};
};

static int Runs(int usual)
{
    const int asked = qEnvironmentVariableIntValue("TAVIK_TEST_RUNS");
    return asked > 0 ? asked : usual;
}

static QByteArray Contents(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static QStringList CurveOf(const QString& part)
{
    return {"curve", part, "--chart", "capacitance-temperature", "--dc-bias", "0"};
}

/// How many files there are besides the one that is saved.
static qsizetype Leftovers(const QTemporaryDir& folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size() - 1;
}

void KilledSaveTest::CommandLineLeavesTheOldOrTheNewFile()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("a.tvk");
    const QStringList parts = {"KTU155R71H101KA01", "KTS31NB51E106MA01"};
    const QStringList fixed = {"--date", "today"};
    const QByteArray whole[] = {RunCommandLine(CurveOf(parts[0]) + fixed).Output,
                                RunCommandLine(CurveOf(parts[1]) + fixed).Output};
    QVERIFY(whole[0] != whole[1] && whole[0].count("\r\n") == 205);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(RunCommandLine(CurveOf(parts[0]) + fixed + QStringList{"--output", file}).Status, 0);
    const auto usual = static_cast<int>(timer.nsecsElapsed() / 1000);

    qsizetype now = 0;
    int replaced = 0;
    const int runs = Runs(60);
    for (int run = 0; run < runs; ++run)
    {
        QProcess program;
        program.start(CommandLineProgram(), CurveOf(parts[1 - now]) + fixed + QStringList{"--output", file});
        QVERIFY(program.waitForStarted());
        // Most moments of a run come before its save; the last part of it deserves more of them.
        usleep(static_cast<useconds_t>(random.bounded(usual / 3, usual * 3 / 2)));
        Kill(program);
        const QByteArray found = Contents(file);
        QVERIFY2(found == whole[now] || found == whole[1 - now], qPrintable(QString::number(found.size())));
        if (found == whole[1 - now])
        {
            now = 1 - now;
            ++replaced;
        }
    }
    qInfo("%d kills: %d left the new file, %d the old one; %d other files", runs, replaced, runs - replaced,
          static_cast<int>(Leftovers(folder)));
    QVERIFY(replaced > 0 && replaced < runs);
}

void KilledSaveTest::MainWindowLeavesTheOldOrTheNewFile()
{
    const QTemporaryDir folder;
    const QTemporaryDir settings;
    const QString file = folder.filePath("a.tvk");
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("CUPS_SERVER", "localhost:1");
    // All but the title line with its date.
    const auto body = [](const QByteArray& text) { return text.mid(text.indexOf("\r\n")); };
    const QByteArray whole[] = {body(RunCommandLine(CurveOf("KTU155R71H101KA01")).Output),
                                body(RunCommandLine(CurveOf("KTS31NB51E106MA01")).Output)};
    QVERIFY(whole[0] != whole[1] && whole[0].count("\r\n") == 205);
    int found[] = {0, 0};
    const int runs = Runs(6);
    for (int run = 0; run < runs; ++run)
    {
        QProcess saver;
        saver.setProcessEnvironment(environment);
        saver.start(ENDLESS_SAVER, {file, settings.path()});
        QVERIFY(saver.waitForReadyRead(20000));
        usleep(static_cast<useconds_t>(random.bounded(0, 250000)));
        Kill(saver);
        const QByteArray text = Contents(file);
        QVERIFY(text.startsWith("!Halvex Chip Capacitor"));
        QVERIFY2(body(text) == whole[0] || body(text) == whole[1], qPrintable(QString::number(text.size())));
        ++found[body(text) == whole[0] ? 0 : 1];
    }
    // A few kills may all fall to one side.
    QVERIFY(runs < 100 || (found[0] > 0 && found[1] > 0));
    qInfo("%d kills: %d left one file, %d the other; %d other files", runs, found[0], found[1],
          static_cast<int>(Leftovers(folder)));
}

QTEST_GUILESS_MAIN(KilledSaveTest)
#include "KilledSaveTest.moc"
