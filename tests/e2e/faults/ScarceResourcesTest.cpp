/// Too few file handles, too little memory, and part files that change or vanish under the program.

#include "tests/cli/CommandLine.h"
#include "tests/e2e/Program.h"

#include <QFile>
#include <QTest>

class ScarceResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NoFileHandleIsToldAsSuch_data();
    void NoFileHandleIsToldAsSuch();
    void NoMemoryForThePartsIsTold();
    void RunningProgramNeedsItsPartFilesNoMore_data();
    void RunningProgramNeedsItsPartFilesNoMore();
};

static Run InShell(const QString& script, const QString& program)
{
    QProcess shell;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("P", program);
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_RUNTIME_DIR", QDir::tempPath());
    environment.insert("XDG_SESSION_ID", QStringLiteral("scarce-%1").arg(QCoreApplication::applicationPid()));
    // A starved program must not spoil the font cache of the whole system.
    const QTemporaryDir cache;
    QFile fonts(cache.filePath("fonts.conf"));
    fonts.open(QIODevice::WriteOnly);
    fonts.write("<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>"
                "<dir>/usr/share/fonts</dir><cachedir>" +
                cache.path().toLocal8Bit() + "</cachedir></fontconfig>");
    fonts.close();
    environment.insert("FONTCONFIG_FILE", fonts.fileName());
    shell.setProcessEnvironment(environment);
    shell.start("sh", {"-c", script});
    if (!shell.waitForFinished(20000))
    {
        shell.kill();
        shell.waitForFinished();
        return {};
    }
    return {.Status = shell.exitStatus() == QProcess::NormalExit ? shell.exitCode() : -1,
            .Output = shell.readAllStandardOutput(),
            .Messages = shell.readAllStandardError()};
}

void ScarceResourcesTest::NoFileHandleIsToldAsSuch_data()
{
    QTest::addColumn<int>("handles");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("none for the folder") << 4 << QByteArray("Path/File access error: /");
}

void ScarceResourcesTest::NoFileHandleIsToldAsSuch()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the checked build needs file handles for its checks");
#endif
    QFETCH(int, handles);
    QFETCH(QByteArray, message);
    const Run run =
        InShell(QStringLiteral("exec 3>&- 4>&- 5>&- 6>&- 7>&- 8>&- 9>&-; ulimit -n %1; exec \"$P\" parts")
                    .arg(handles),
                CommandLineProgram());
    QCOMPARE(run.Status, 1);
    QCOMPARE(run.Output, QByteArray());
    QCOMPARE(run.Messages.count('\n'), 1);
    QVERIFY2(run.Messages.contains(message), run.Messages);
}

static QString Limited(int kilobytes, const QString& script)
{
    return QStringLiteral("ulimit -v %1; ").arg(kilobytes) + script;
}

/// The address space, in KiB, that a program needs to come as far as missing its part files.
static int LimitOfStart(const QString& script, const QString& program)
{
    int kilobytes = 40000;
    while (kilobytes < 1000000 &&
           !InShell(Limited(kilobytes, script), program).Messages.contains("error '53'"))
    {
        kilobytes += 10000;
    }
    return kilobytes;
}

void ScarceResourcesTest::NoMemoryForThePartsIsTold()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the checked build needs more address space than any limit leaves");
#endif
    const QTemporaryDir folder;
    FillWithProgram(folder, false);
    const QString programRun = QStringLiteral("exec \"$P\"");
    const QString listRun = QStringLiteral("exec \"$P\" parts --data ") + folder.path();
    const int programLimit = LimitOfStart(programRun, folder.filePath("tavik"));
    const int listLimit = LimitOfStart(listRun, CommandLineProgram());
    // An index with nothing but holes in it, almost as long as any may be.
    for (const char* name : {"a.idx", "a.dat"})
    {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64{63} << 20));
    }
    const QByteArray message =
        "Run-time error '7': Out of memory: " + folder.filePath("a.idx").toLocal8Bit() + '\n';
    const Run program = InShell(Limited(programLimit + 20000, programRun), folder.filePath("tavik"));
    QCOMPARE(program.Status, 1);
    QVERIFY2(program.Messages.endsWith(message), program.Messages);
    const Run list = InShell(Limited(listLimit + 20000, listRun), CommandLineProgram());
    QCOMPARE(list.Status, 1);
    QCOMPARE(list.Messages, "tavik-cli: " + message);
}

void ScarceResourcesTest::RunningProgramNeedsItsPartFilesNoMore_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("cut to nothing") << "cut";
    QTest::newRow("overwritten by nonsense") << "overwritten";
    QTest::newRow("gone") << "gone";
}

void ScarceResourcesTest::RunningProgramNeedsItsPartFilesNoMore()
{
    QFETCH(QString, change);
    const TestDisplay display;
    QVERIFY2(display.IsUp(), "Xvfb does not start");
    const ProgramFolder folder;
    const auto program =
        folder.Start(display.Environment(QStringLiteral("parts-%1").arg(QCoreApplication::applicationPid())));
    const QStringList windows = display.WindowsOf(*program, 1);
    QCOMPARE(windows.size(), 1);
    for (const char* name : {"halvex.idx", "halvex.dat"})
    {
        QFile file(folder.File(name));
        if (change == "gone")
        {
            QVERIFY(file.remove());
            continue;
        }
        QVERIFY(file.open(QIODevice::ReadWrite));
        if (change == "cut")
        {
            QVERIFY(file.resize(0));
        }
        else
        {
            const QByteArray nonsense(file.size(), '\xA5');
            QCOMPARE(file.write(nonsense), qint64{nonsense.size()});
        }
    }
    PlotByKeyboard(display, windows.front());
    const QTemporaryDir saved;
    const QString box = SaveByKeyboard(display, windows.front(), *program, saved.filePath("a.tvk"));
    QVERIFY(!box.isEmpty());
    const Run sound = RunCommandLine(
        {"curve", "KTU033R71E101KA01", "--chart", "capacitance-temperature", "--dc-bias", "0"});
    QCOMPARE(sound.Status, 0);
    QFile data(saved.filePath("a.tvk"));
    QVERIFY(data.open(QIODevice::ReadOnly));
    // All but the title line with its date.
    const QByteArray bytes = data.readAll();
    QCOMPARE(bytes.mid(bytes.indexOf("\r\n")), sound.Output.mid(sound.Output.indexOf("\r\n")));
    display.Press(box, "Return");
    QCOMPARE(display.WindowsOf(*program, 1).size(), 1);
    QVERIFY(EndsByExit(display, windows.front(), *program));
}

QTEST_GUILESS_MAIN(ScarceResourcesTest)
#include "ScarceResourcesTest.moc"
