/// The part files of another folder: by option or variable, in both programs.

#include "tests/cli/CommandLine.h"
#include "tests/e2e/Program.h"

#include <QTest>

class PartFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void WindowTakesTheNamedFolder_data();
    void WindowTakesTheNamedFolder();
    void WindowRefusesANameOfNothing();
    void CommandLineTakesTheNamedFolder_data();
    void CommandLineTakesTheNamedFolder();

private:
    /// The rows: what option and variable name, and whether there are parts then, where the program's own
    /// folder has them or not.
    static void AddRows();
    QString Named(const QString& name) const;

    /// A folder with the program and parts, one with the program alone.
    QTemporaryDir withParts;
    QTemporaryDir withoutParts;
    TestDisplay display;
};

void PartFolderTest::initTestCase()
{
    QVERIFY2(display.IsUp(), "Xvfb does not start");
    FillWithProgram(withParts, true);
    FillWithProgram(withoutParts, false);
}

void PartFolderTest::AddRows()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<bool>("ownParts");
    QTest::addColumn<bool>("found");
    QTest::newRow("option, with parts") << "full"
                                        << "" << false << true;
    QTest::newRow("option, without parts") << "bare"
                                           << "" << true << false;
    QTest::newRow("variable, with parts") << ""
                                          << "full" << false << true;
    QTest::newRow("variable, without parts") << ""
                                             << "bare" << true << false;
    QTest::newRow("option before variable") << "full"
                                            << "bare" << false << true;
    QTest::newRow("empty variable") << ""
                                    << "" << true << true;
}

QString PartFolderTest::Named(const QString& name) const
{
    return name.isEmpty() ? name : (name == "full" ? withParts : withoutParts).path();
}

void PartFolderTest::WindowTakesTheNamedFolder_data()
{
    AddRows();
}

void PartFolderTest::WindowTakesTheNamedFolder()
{
    QFETCH(const QString, option);
    QFETCH(const QString, variable);
    QFETCH(const bool, ownParts);
    QFETCH(const bool, found);
    auto environment = display.Environment(
        QStringLiteral("folder-%1-%2").arg(QCoreApplication::applicationPid()).arg(QTest::currentDataTag()));
    environment.insert("TAVIK_DATA", Named(variable));
    QProcess program;
    program.setProcessEnvironment(environment);
    const QTemporaryDir& folder = ownParts ? withParts : withoutParts;
    program.start(folder.filePath("tavik"),
                  option.isEmpty() ? QStringList() : QStringList{"--data", Named(option)});
    const QStringList windows = display.WindowsOf(program, 1);
    QCOMPARE(windows.size(), 1);
    QCOMPARE(display.TitleOf(windows.front()), "Halvex Chip Capacitor Characteristics Data Library");
    if (found)
    {
        QVERIFY(EndsByExit(display, windows.front(), program));
        QCOMPARE(program.readAllStandardError(), QByteArray());
        return;
    }
    display.Press(windows.front(), "Return");
    QVERIFY(program.waitForFinished(10000));
    QCOMPARE(program.exitCode(), 1);
    QCOMPARE(program.readAllStandardError(), QByteArray("Run-time error '53': File not found: *.idx\n"));
}

void PartFolderTest::WindowRefusesANameOfNothing()
{
    QProcess program;
    program.setProcessEnvironment(display.Environment(QStringLiteral("nothing")));
    program.start(withParts.filePath("tavik"), {"--data", ""});
    QVERIFY(program.waitForFinished(10000));
    QCOMPARE(program.exitCode(), 2);
    QCOMPARE(program.readAllStandardError(), QByteArray("tavik: --data wants the name of a folder\n"));
}

void PartFolderTest::CommandLineTakesTheNamedFolder_data()
{
    AddRows();
}

void PartFolderTest::CommandLineTakesTheNamedFolder()
{
    QFETCH(const QString, option);
    QFETCH(const QString, variable);
    QFETCH(const bool, found);
    qputenv("TAVIK_DATA", Named(variable).toLocal8Bit());
    const Run run = RunCommandLine(QStringList{"parts", "--format", "csv"} +
                                   (option.isEmpty() ? QStringList() : QStringList{"--data", Named(option)}));
    qunsetenv("TAVIK_DATA");
    QCOMPARE(run.Status, found ? 0 : 1);
    QCOMPARE(run.Output.count('\n') > 1000, found);
    QCOMPARE(run.Messages, found ? QByteArray()
                                 : "tavik-cli: Run-time error '53': File not found: " +
                                       withoutParts.path().toLocal8Bit() + "/*.idx\n");
}

QTEST_GUILESS_MAIN(PartFolderTest)
#include "PartFolderTest.moc"
