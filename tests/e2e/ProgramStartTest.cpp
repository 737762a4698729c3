/// Starting the built program: with sound and with broken part files, once, twice, and after a crash.

#include "tests/e2e/Program.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>
#include <memory>

static const QString Title = "Halvex Chip Capacitor Characteristics Data Library";

class ProgramStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ShowsMainWindowAndEndsByExit();
    void BrokenPartFilesEndIt_data();
    void BrokenPartFilesEndIt();
    void BrokenPartFilesEndItWithoutDisplay();
    void SecondInstanceLeavesWithoutWindow();
    void KilledInstanceBlocksNobody();
    void OtherLoginIsNotDisturbed();

private:
    /// Starts the program in a folder, for a login of this test run.
    std::unique_ptr<QProcess> Start(const QTemporaryDir& folder, const QString& login,
                                    const QString& platform = "xcb") const;
    void Exit(QProcess& program) const;

    TestDisplay display;
};

static void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64{bytes.size()});
}

std::unique_ptr<QProcess> ProgramStartTest::Start(const QTemporaryDir& folder, const QString& login,
                                                  const QString& platform) const
{
    auto program = std::make_unique<QProcess>();
    auto environment =
        display.Environment(QStringLiteral("e2e-%1-%2").arg(QCoreApplication::applicationPid()).arg(login));
    environment.insert("QT_QPA_PLATFORM", platform);
    program->setProcessEnvironment(environment);
    program->start(folder.filePath("tavik"), QStringList());
    return program;
}

void ProgramStartTest::Exit(QProcess& program) const
{
    const QStringList windows = display.WindowsOf(program, 1);
    QCOMPARE(windows.size(), 1);
    QVERIFY(EndsByExit(display, windows.front(), program));
}

void ProgramStartTest::initTestCase()
{
    QVERIFY2(display.IsUp(), "Xvfb does not start");
}

void ProgramStartTest::ShowsMainWindowAndEndsByExit()
{
    const QTemporaryDir folder;
    FillWithProgram(folder, true);
    const auto program = Start(folder, "plain");
    const QStringList windows = display.WindowsOf(*program, 1);
    QCOMPARE(windows.size(), 1);
    QCOMPARE(display.TitleOf(windows.front()), Title);
    Exit(*program);
    QCOMPARE(program->readAllStandardError(), QByteArray());
}

/// A line of an index file whose part numbers all carry the given mark.
static QByteArray IndexLine(const QByteArray& mark)
{
    return "\"GE" + mark + "\",\"GJ" + mark + "\",\"PE" + mark + "\",\"PJ" + mark +
           "\",\"0805\",\"2012\",\"X7R\",\"R\"\r\n";
}

static QByteArray IndexOf(int parts)
{
    QByteArray lines;
    for (int i = 0; i < parts; ++i)
    {
        lines += IndexLine(QByteArray::number(i));
    }
    return lines;
}

void ProgramStartTest::BrokenPartFilesEndIt_data()
{
    QTest::addColumn<bool>("hasIndex");
    QTest::addColumn<QByteArray>("index");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no index file") << false << QByteArray()
                                   << QByteArray("Run-time error '53': File not found: *.idx");
    QTest::newRow("end within a record")
        << true << IndexOf(2) + "\"A\",\"B\",\"C\""
        << QByteArray("Run-time error '62': Input past end of file: parts.idx: record 3");
    QTest::newRow("too many parts") << true << IndexOf(32768)
                                    << QByteArray("Run-time error '6': Overflow: parts.idx: record 32768");
    QTest::newRow("same number twice")
        << true << IndexOf(4) + IndexLine("2")
        << QByteArray("Run-time error '457': This key is already associated with an element of this "
                      "collection: parts.idx: record 5");
}

void ProgramStartTest::BrokenPartFilesEndIt()
{
    QFETCH(bool, hasIndex);
    QFETCH(QByteArray, index);
    QFETCH(QByteArray, line);
    const QTemporaryDir folder;
    FillWithProgram(folder, false);
    WriteFile(folder.filePath("parts.dat"), QByteArray());
    if (hasIndex)
    {
        WriteFile(folder.filePath("parts.idx"), index);
    }
    const auto program = Start(folder, "broken");
    const QStringList windows = display.WindowsOf(*program, 1);
    QCOMPARE(windows.size(), 1);
    QCOMPARE(display.TitleOf(windows.front()), Title);
    display.Press(windows.front(), "Return");
    QVERIFY(program->waitForFinished(10000));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 1);
    const QByteArray said = program->readAllStandardError();
    QCOMPARE(said.count('\n'), 1);
    QVERIFY2(said.startsWith(line), said.constData());
}

void ProgramStartTest::BrokenPartFilesEndItWithoutDisplay()
{
    // Nobody could answer a box there.
    const QTemporaryDir folder;
    FillWithProgram(folder, false);
    const auto program = Start(folder, "invisible", "offscreen");
    QVERIFY(program->waitForFinished(10000));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 1);
    QCOMPARE(program->readAllStandardError(), QByteArray("Run-time error '53': File not found: *.idx\n"));
}

void ProgramStartTest::SecondInstanceLeavesWithoutWindow()
{
    const QTemporaryDir folder;
    FillWithProgram(folder, true);
    const auto first = Start(folder, "twice");
    QCOMPARE(display.WindowsOf(*first, 1).size(), 1);

    // The second one loads nothing: it does not even miss its part files.
    const QTemporaryDir empty;
    FillWithProgram(empty, false);
    const auto second = Start(empty, "twice");
    const QStringList box = display.WindowsOf(*second, 1);
    QCOMPARE(box.size(), 1);
    QCOMPARE(display.TitleOf(box.front()), Title);
    display.Press(box.front(), "Return");
    QVERIFY(second->waitForFinished(10000));
    QCOMPARE(second->exitStatus(), QProcess::NormalExit);
    QCOMPARE(second->exitCode(), 0);
    QCOMPARE(second->readAllStandardError(), QByteArray());

    QCOMPARE(first->state(), QProcess::Running);
    QCOMPARE(display.WindowsOf(*first, 1).size(), 1);
    Exit(*first);

    // With the first one gone its place is free.
    const auto third = Start(folder, "twice");
    Exit(*third);
}

void ProgramStartTest::KilledInstanceBlocksNobody()
{
    const QTemporaryDir folder;
    FillWithProgram(folder, true);
    const auto first = Start(folder, "killed");
    QCOMPARE(display.WindowsOf(*first, 1).size(), 1);
    QCOMPARE(::kill(static_cast<pid_t>(first->processId()), SIGKILL), 0);
    QVERIFY(first->waitForFinished(10000));
    QCOMPARE(first->exitStatus(), QProcess::CrashExit);

    const auto next = Start(folder, "killed");
    Exit(*next);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList({"halvex.dat", "halvex.idx", "tavik"}));
}

void ProgramStartTest::OtherLoginIsNotDisturbed()
{
    const QTemporaryDir folder;
    FillWithProgram(folder, true);
    const auto here = Start(folder, "here");
    QCOMPARE(display.WindowsOf(*here, 1).size(), 1);
    const auto there = Start(folder, "there");
    Exit(*there);
    Exit(*here);
}

QTEST_GUILESS_MAIN(ProgramStartTest)
#include "ProgramStartTest.moc"
