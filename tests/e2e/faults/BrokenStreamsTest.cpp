/// The command line with closed or broken streams, and ended by a signal in the middle of its work.

#include "tests/cli/CommandLine.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

class BrokenStreamsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StreamThatCannotServeIsTold_data();
    void StreamThatCannotServeIsTold();
    void ReaderThatHasEnoughIsNoFault();
    void FileIsWrittenWithAllStreamsClosed();
    void RefusalWithNoPlaceForItLeavesTheOldFile();
    void EndedBatchLeavesTheOldFileAlone_data();
    void EndedBatchLeavesTheOldFileAlone();
};

/// Runs the command line in a shell, where it is called $P.
static Run InShell(const QString& script)
{
    QProcess shell;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("P", CommandLineProgram());
    shell.setProcessEnvironment(environment);
    shell.start("sh", {"-c", script});
    shell.closeWriteChannel();
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

static QByteArray Contents(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static void WriteOld(const QString& name)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("old"), 3);
}

static const QString Curve =
    QStringLiteral("\"$P\" curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --date today");

void BrokenStreamsTest::StreamThatCannotServeIsTold_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QByteArray>("message");
    const QByteArray output = "tavik-cli: standard output: cannot be written\n";
    const QByteArray input = "tavik-cli: standard input: cannot be read\n";
    QTest::newRow("closed output of a list") << "\"$P\" parts >&-" << output;
    QTest::newRow("closed output of a curve") << Curve + " >&-" << output;
    QTest::newRow("closed output of help") << "\"$P\" --help >&-" << output;
    QTest::newRow("closed input") << "\"$P\" curve --requests - <&-" << input;
    QTest::newRow("a folder as input") << "\"$P\" curve --requests - </" << input;
    QTest::newRow("output that nobody reads, told by an error")
        << "trap '' PIPE; { sleep 0.2; \"$P\" parts; } | true; exit 1" << output;
}

void BrokenStreamsTest::StreamThatCannotServeIsTold()
{
    QFETCH(QString, script);
    QFETCH(QByteArray, message);
    const Run run = InShell(script);
    QCOMPARE(run.Messages, message);
    QCOMPARE(run.Status, 1);
}

void BrokenStreamsTest::ReaderThatHasEnoughIsNoFault()
{
    const Run run = InShell("\"$P\" parts | head -1");
    QVERIFY(run.Output.startsWith("PART "));
    QCOMPARE(run.Output.count('\n'), 1);
    QCOMPARE(run.Messages, QByteArray());
}

void BrokenStreamsTest::FileIsWrittenWithAllStreamsClosed()
{
    const QTemporaryDir folder;
    const Run run = InShell(Curve + " --output " + folder.filePath("a.tvk") + " <&- >&- 2>&-");
    QCOMPARE(run.Status, 0);
    const QByteArray whole = InShell(Curve).Output;
    QCOMPARE(whole.count("\r\n"), 205);
    QCOMPARE(Contents(folder.filePath("a.tvk")), whole);
}

void BrokenStreamsTest::RefusalWithNoPlaceForItLeavesTheOldFile()
{
    const QTemporaryDir folder;
    WriteOld(folder.filePath("a.tvk"));
    const Run run = InShell(Curve + " --ambient 500 --output " + folder.filePath("a.tvk") + " <&- >&- 2>&-");
    QCOMPARE(run.Status, 1);
    QCOMPARE(Contents(folder.filePath("a.tvk")), QByteArray("old"));
}

void BrokenStreamsTest::EndedBatchLeavesTheOldFileAlone_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("hang-up") << SIGHUP;
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("end") << SIGTERM;
    QTest::newRow("kill") << SIGKILL;
}

/// Whether files without a name can be made in a folder, which vanish with their writer.
static bool HasNamelessFiles(const QString& folder)
{
    const int file = open(folder.toLocal8Bit().constData(), O_TMPFILE | O_RDWR, 0600);
    if (file >= 0)
    {
        close(file);
    }
    return file >= 0;
}

void BrokenStreamsTest::EndedBatchLeavesTheOldFileAlone()
{
    QFETCH(int, signal);
    const QTemporaryDir folder;
    const QString file = folder.filePath("answers");
    WriteOld(file);
    QProcess batch;
    batch.start(CommandLineProgram(), {"curve", "--requests", "-", "--output", file});
    const QByteArray request = "{\"part\":\"KTS31NB51E106MA01\",\"chart\":\"capacitance-dc-voltage\"}\n";
    // More than a pipe holds: once all is taken, answers have been written.
    batch.write(request.repeated(3000));
    while (batch.bytesToWrite() > 0)
    {
        QVERIFY(batch.waitForBytesWritten(10000));
    }
    QCOMPARE(::kill(static_cast<pid_t>(batch.processId()), signal), 0);
    QVERIFY(batch.waitForFinished(10000));
    QCOMPARE(batch.exitStatus(), QProcess::CrashExit);
    QCOMPARE(Contents(file), QByteArray("old"));
    if (!HasNamelessFiles(folder.path()))
    {
        QSKIP("this file system keeps a name for what is being written");
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"answers"});
}

QTEST_GUILESS_MAIN(BrokenStreamsTest)
#include "BrokenStreamsTest.moc"
