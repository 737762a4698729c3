/// Many starts at once: one program lives, all others leave as a second one does, also where strangers sit on
/// the names under which they meet. The long form makes fifty at once, in as many rounds as TAVIK_TEST_RUNS
/// says.

#include "app/SingleInstance.h"
#include "tests/app/Stranger.h"
#include "tests/e2e/Program.h"

#include <QTest>

#include <unistd.h>

class StartRushTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OneOfManyLives_data();
    void OneOfManyLives();
};

Q_DECLARE_METATYPE(Manner)

static constexpr std::size_t FewStarts = 16;
static constexpr std::size_t ManyStarts = 50;
static constexpr int WidestBox = 500;

/// Answers the box of a program that leaves; on a crowded display a key may come before the box can take it.
static bool LeavesByKey(const TestDisplay& display, const QString& box, QProcess& program)
{
    for (int tries = 0; tries < 10; ++tries)
    {
        display.Press(box, "Return");
        if (program.waitForFinished(2000))
        {
            return true;
        }
    }
    return false;
}

static void StartAtOnce(std::size_t starts, const QString& login)
{
    const TestDisplay display;
    QVERIFY2(display.IsUp(), "Xvfb does not start");
    const ProgramFolder folder;
    const auto environment = display.Environment(login);
    std::vector<std::unique_ptr<QProcess>> programs;
    for (std::size_t i = 0; i < starts; ++i)
    {
        programs.push_back(folder.Start(environment));
    }
    // Whoever shows a window has decided: it is the main window or the box of one that leaves.
    std::vector<QProcess*> living;
    for (const auto& program : programs)
    {
        const QStringList windows = display.WindowsOf(*program, 1);
        QCOMPARE(windows.size(), 1);
        QCOMPARE(display.TitleOf(windows.front()), "Halvex Chip Capacitor Characteristics Data Library");
        if (display.WidthOf(windows.front()) > WidestBox)
        {
            living.push_back(program.get());
            continue;
        }
        QVERIFY(LeavesByKey(display, windows.front(), *program));
        QCOMPARE(program->exitStatus(), QProcess::NormalExit);
        QCOMPARE(program->exitCode(), 0);
        QCOMPARE(program->readAllStandardError(), QByteArray());
    }
    QCOMPARE(living.size(), std::size_t{1});
    QProcess& survivor = *living.front();
    QCOMPARE(survivor.state(), QProcess::Running);
    const QStringList window = display.WindowsOf(survivor, 1);
    QCOMPARE(window.size(), 1);
    QVERIFY(EndsByExit(display, window.front(), survivor));
}

void StartRushTest::OneOfManyLives_data()
{
    QTest::addColumn<bool>("beside");
    QTest::addColumn<uint>("user");
    QTest::addColumn<Manner>("manner");
    QTest::newRow("alone") << false << uint{getuid()} << Manner::Listens;
    QTest::newRow("beside another user") << true << uint{Stranger::OtherUser} << Manner::Listens;
    QTest::newRow("beside one that gives no answer") << true << uint{getuid()} << Manner::IsSilent;
}

void StartRushTest::OneOfManyLives()
{
    QFETCH(bool, beside);
    QFETCH(uint, user);
    QFETCH(Manner, manner);
    if (user != getuid() && getuid() != 0)
    {
        QSKIP("only root can be another user");
    }
    const QString login = QStringLiteral("rush-%1").arg(QCoreApplication::applicationPid());
    qputenv("XDG_SESSION_ID", login.toLatin1());
    std::vector<std::string> names;
    if (beside)
    {
        names = {SingleInstanceName(0), SingleInstanceName(1)};
    }
    const Stranger stranger(names, user, manner);
    QVERIFY(stranger.Holds());
    const int rounds = qEnvironmentVariableIntValue("TAVIK_TEST_RUNS");
    for (int round = 0; round < std::max(rounds, 1) && !QTest::currentTestFailed(); ++round)
    {
        StartAtOnce(rounds > 0 ? ManyStarts : FewStarts, login);
    }
}

QTEST_GUILESS_MAIN(StartRushTest)
#include "StartRushTest.moc"
