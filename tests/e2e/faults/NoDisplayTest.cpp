/// The program without a display, and with one that goes away.

#include "tests/e2e/Program.h"

#include <QTest>

class NoDisplayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EndsInOneLineWithoutDisplay_data();
    void EndsInOneLineWithoutDisplay();
    void EndsWhenItsDisplayGoes_data();
    void EndsWhenItsDisplayGoes();
};

static QString Login(const QString& name)
{
    return QStringLiteral("display-%1-%2").arg(QCoreApplication::applicationPid()).arg(name);
}

void NoDisplayTest::EndsInOneLineWithoutDisplay_data()
{
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QByteArray>("cause");
    QTest::newRow("no display named") << ""
                                      << "xcb" << QByteArray("could not connect to display");
    QTest::newRow("no such display") << ":65001"
                                     << "xcb" << QByteArray("could not connect to display :65001");
    QTest::newRow("no such host") << "nowhere.invalid:0"
                                  << "xcb" << QByteArray("could not connect to display nowhere.invalid:0");
    QTest::newRow("no such window system") << ""
                                           << "papyrus" << QByteArray("papyrus");
}

void NoDisplayTest::EndsInOneLineWithoutDisplay()
{
    QFETCH(QString, display);
    QFETCH(QString, platform);
    QFETCH(QByteArray, cause);
    const ProgramFolder folder;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove("WAYLAND_DISPLAY");
    // Rules that silence the toolkit would silence the cause.
    environment.remove("QT_LOGGING_RULES");
    environment.insert("DISPLAY", display);
    environment.insert("QT_QPA_PLATFORM", platform);
    environment.insert("XDG_SESSION_ID", Login("none"));
    const auto program = folder.Start(environment);
    QVERIFY(program->waitForFinished(20000));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 1);
    QCOMPARE(program->readAllStandardOutput(), QByteArray());
    const QByteArray said = program->readAllStandardError();
    QCOMPARE(said.count('\n'), 1);
    QVERIFY2(said.startsWith("tavik: no window can be shown: "), said);
    QVERIFY2(said.contains(cause), said);
}

void NoDisplayTest::EndsWhenItsDisplayGoes_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<int>("windows");
    QTest::newRow("main window alone") << QStringList() << 1;
    QTest::newRow("about box") << QStringList{"alt+h", "a"} << 2;
    QTest::newRow("dialog of a save") << QStringList{"ctrl+s"} << 2;
}

void NoDisplayTest::EndsWhenItsDisplayGoes()
{
    QFETCH(QStringList, keys);
    QFETCH(int, windows);
    TestDisplay display;
    QVERIFY2(display.IsUp(), "Xvfb does not start");
    const ProgramFolder folder;
    const auto program = folder.Start(display.Environment(Login("gone")));
    const QStringList main = display.WindowsOf(*program, 1);
    QCOMPARE(main.size(), 1);
    if (windows > 1)
    {
        PlotByKeyboard(display, main.front());
    }
    for (const QString& key : keys)
    {
        display.Press(main.front(), key);
        QTest::qWait(300);
    }
    QCOMPARE(display.WindowsOf(*program, windows).size(), windows);
    display.Break();
    QVERIFY2(program->waitForFinished(10000), "the program hangs without its display");
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 1);
    QVERIFY(!program->readAllStandardError().isEmpty());
}

QTEST_GUILESS_MAIN(NoDisplayTest)
#include "NoDisplayTest.moc"
