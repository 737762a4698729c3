/// Every output of the command line on a disk that is full or read-only, and in a folder that is gone.

#include "tests/cli/CommandLine.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

class NoRoomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void OldFileStaysAndTheFaultIsTold_data();
    void OldFileStaysAndTheFaultIsTold();
};

/// Runs a script on a small disk of its own, mounted on $D for this script alone; the command line is $P.
static Run OnSmallDisk(const QString& folder, const QString& script)
{
    QProcess shell;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("P", CommandLineProgram());
    environment.insert("D", folder);
    shell.setProcessEnvironment(environment);
    // Who is no administrator can be one in a space of their own.
    const QStringList space = geteuid() == 0 ? QStringList{"-m"} : QStringList{"-U", "-r", "-m"};
    shell.start("unshare",
                space +
                    QStringList{"sh", "-c", "mount -t tmpfs -o size=64k none \"$D\" || exit 77; " + script});
    shell.closeWriteChannel();
    if (!shell.waitForFinished(30000) || shell.exitStatus() != QProcess::NormalExit)
    {
        shell.kill();
        shell.waitForFinished();
        return {};
    }
    return {.Status = shell.exitCode(),
            .Output = shell.readAllStandardOutput(),
            .Messages = shell.readAllStandardError()};
}

void NoRoomTest::initTestCase()
{
    const QTemporaryDir folder;
    const int status = OnSmallDisk(folder.path(), "true").Status;
    if (status != 0)
    {
        QSKIP("this system lets nobody mount a small disk for a test");
    }
}

void NoRoomTest::OldFileStaysAndTheFaultIsTold_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("disk");
    QTest::addColumn<QByteArray>("fault");
    const std::pair<const char*, const char*> outputs[] = {
        {"data file", "curve KTS31NB51E106MA01 --chart capacitance-dc-voltage"},
        {"table", "curve KTS31NB51E106MA01 --chart capacitance-dc-voltage --format csv"},
        {"answers", "curve --requests \"$D.requests\""},
        {"part list", "parts"},
        {"PNG", "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png"},
        {"SVG", "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format svg"},
        {"PDF", "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format pdf"}};
    const std::tuple<const char*, const char*, const char*> disks[] = {
        {"full disk", "head -c 100000 /dev/zero >\"$D/filler\" 2>/dev/null", "'61': Disk full"},
        {"read-only disk", "mount -o remount,ro \"$D\"", "'70': Permission denied"},
        {"folder that is gone", "umount \"$D\" && rmdir \"$D\"", "'76': Path not found"}};
    for (const auto& [output, command] : outputs)
    {
        for (const auto& [name, disk, fault] : disks)
        {
            QTest::addRow("%s, %s", output, name) << command << disk << QByteArray(fault);
        }
    }
    // Its beginning still fits on the disk.
    QTest::addRow("part list, nearly full disk")
        << "parts"
        << "head -c 57344 /dev/zero >\"$D/filler\"" << QByteArray("'61': Disk full");
    QTest::addRow("PNG, nearly full disk")
        << "chart KTS31NB51E106MA01 --chart capacitance-dc-voltage --format png"
        << "head -c 57344 /dev/zero >\"$D/filler\"" << QByteArray("'61': Disk full");
    QTest::addRow("table of parts, nearly full disk")
        << "data export \"$(dirname \"$P\")\""
        << "head -c 57344 /dev/zero >\"$D/filler\"" << QByteArray("'61': Disk full");
}

void NoRoomTest::OldFileStaysAndTheFaultIsTold()
{
    QFETCH(QString, command);
    QFETCH(QString, disk);
    QFETCH(QByteArray, fault);
    const QTemporaryDir parent;
    const QString folder = parent.filePath("disk");
    QVERIFY(QDir().mkdir(folder));
    QFile requests(folder + ".requests");
    QVERIFY(requests.open(QIODevice::WriteOnly));
    requests.write("{\"part\":\"KTS31NB51E106MA01\",\"chart\":\"capacitance-dc-voltage\"}\n");
    requests.close();

    // What is in the folder afterwards follows the message, behind the status.
    const Run run =
        OnSmallDisk(folder, "echo old >\"$D/file\"; " + disk + "; \"$P\" " + command +
                                " --output \"$D/file\"; echo $?; rm -f \"$D/filler\" 2>/dev/null; "
                                "cd \"$D\" 2>/dev/null && ls -A && cat file; true");
    QCOMPARE(run.Messages, "tavik-cli: Run-time error " + fault + ": " + folder.toLocal8Bit() + "/file\n");
    QCOMPARE(run.Output, fault.contains("76") ? QByteArray("1\n") : QByteArray("1\nfile\nold\n"));
}

QTEST_GUILESS_MAIN(NoRoomTest)
#include "NoRoomTest.moc"
