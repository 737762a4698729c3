/// The programs as they are installed: started through their links, beside a stranger's files.

#include "tests/e2e/Display.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

class InstallTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ProgramsHaveAFolderOfTheirOwn();
    void CommandLineKnowsItsPartsThroughItsLink();
    void ProgramStartsThroughItsLink();
    void TellsHelpAndVersionWithoutDisplay_data();
    void TellsHelpAndVersionWithoutDisplay();
    void RefusesAnUnknownArgument();
    void BringsWhatDesktopAndShellsLookFor_data();
    void BringsWhatDesktopAndShellsLookFor();
    void EveryShellCompletes_data();
    void EveryShellCompletes();
    void JapaneseBookIsAComponentOfItsOwn();

private:
    QString In(const QString& name) const { return prefix.filePath(name); }
    QString FilesIn(const QString& name) const;

    QTemporaryDir prefix;
};

/// What a run of a program left behind.
struct Outcome
{
    int status = -1;
    QByteArray output;
    QByteArray messages;
};

static Outcome RunIn(const QProcessEnvironment& environment, const QString& name,
                     const QStringList& arguments)
{
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(name, arguments);
    program.closeWriteChannel();
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
    {
        program.kill();
        program.waitForFinished();
        return {};
    }
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

static QProcessEnvironment WithoutDisplay()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "DESTDIR"})
    {
        environment.remove(QString::fromLatin1(name));
    }
    // The sanitizers of a checked build judge the program, not the libraries it rests on.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    return environment;
}

static void Install(const QStringList& arguments)
{
    const auto done = RunIn(WithoutDisplay(), CMAKE, QStringList{"--install", BUILD_FOLDER} + arguments);
    QVERIFY2(done.status == 0, done.messages);
}

/// The names in a folder, with blanks between them.
QString InstallTest::FilesIn(const QString& name) const
{
    return QDir(In(name)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).join(' ');
}

void InstallTest::initTestCase()
{
    QVERIFY(prefix.isValid());
    Install({"--prefix", prefix.path()});
    // Whoever else puts something into the folder of all programs.
    for (const char* name : {"bin/aaa.dat", "bin/aaa.idx", "bin/tavikj.hlp"})
    {
        QFile file(In(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("a stranger's\n"), 13);
    }
}

void InstallTest::ProgramsHaveAFolderOfTheirOwn()
{
    QCOMPARE(FilesIn("bin"), QString("aaa.dat aaa.idx tavik tavik-cli tavikj.hlp"));
    QCOMPARE(FilesIn("lib"), QString("tavik"));
    QCOMPARE(FilesIn("lib/tavik"), QString("halvex.dat halvex.idx pictures tavik tavik-cli tavike.hlp"));
    QVERIFY(!FilesIn("lib/tavik/pictures").isEmpty());
    for (const char* name : {"tavik", "tavik-cli"})
    {
        const QFileInfo link(In("bin/") + name);
        QVERIFY(link.isSymbolicLink());
        QCOMPARE(link.canonicalFilePath(), QFileInfo(In("lib/tavik/") + name).canonicalFilePath());
        // A prefix may be moved, and is while a package is made.
        QVERIFY(!QFile::symLinkTarget(link.filePath()).isEmpty());
        QCOMPARE(RunIn(WithoutDisplay(), "readlink", {link.filePath()}).output,
                 QByteArray("../lib/tavik/") + name + '\n');
    }
}

void InstallTest::CommandLineKnowsItsPartsThroughItsLink()
{
    const auto list = RunIn(WithoutDisplay(), In("bin/tavik-cli"), {"parts", "--format", "csv"});
    QCOMPARE(list.messages, QByteArray());
    QCOMPARE(list.status, 0);
    QVERIFY(list.output.count('\n') > 1000);
}

void InstallTest::ProgramStartsThroughItsLink()
{
    const TestDisplay display;
    QVERIFY2(display.IsUp(), "Xvfb does not start");
    QProcess program;
    program.setProcessEnvironment(
        display.Environment(QStringLiteral("install-%1").arg(QCoreApplication::applicationPid())));
    program.start(In("bin/tavik"), QStringList());
    const QStringList windows = display.WindowsOf(program, 1);
    QCOMPARE(windows.size(), 1);
    // The box of a failed start is far smaller.
    QVERIFY(display.WidthOf(windows.front()) > 800);
    program.terminate();
    QVERIFY(program.waitForFinished(10000));
    QCOMPARE(program.readAllStandardError(), QByteArray());
}

void InstallTest::TellsHelpAndVersionWithoutDisplay_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("version of the window") << "tavik"
                                           << "--version" << QByteArray("tavik " PROGRAM_VERSION "\n");
    QTest::newRow("help of the window") << "tavik"
                                        << "--help" << QByteArray("Characteristics of multilayer chip");
    QTest::newRow("version of the commands") << "tavik-cli"
                                             << "--version" << QByteArray("tavik-cli " PROGRAM_VERSION "\n");
    QTest::newRow("help of the commands") << "tavik-cli"
                                          << "--help" << QByteArray("Characteristics of multilayer chip");
}

void InstallTest::TellsHelpAndVersionWithoutDisplay()
{
    QFETCH(QString, program);
    QFETCH(QString, option);
    QFETCH(QByteArray, begin);
    const auto told = RunIn(WithoutDisplay(), In("bin/") + program, {option});
    QCOMPARE(told.messages, QByteArray());
    QCOMPARE(told.status, 0);
    QVERIFY2(told.output.startsWith(begin), told.output);
    // Where it cannot be written, that is told.
    const auto full =
        RunIn(WithoutDisplay(), "sh", {"-c", "exec \"$0\" \"$1\" >/dev/full", In("bin/") + program, option});
    QCOMPARE(full.status, 1);
    QCOMPARE(full.messages, program.toUtf8() + ": standard output: cannot be written\n");
}

void InstallTest::RefusesAnUnknownArgument()
{
    auto environment = WithoutDisplay();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    const auto refused = RunIn(environment, In("bin/tavik"), {"-style", "fusion", "range.idx"});
    QCOMPARE(refused.status, 2);
    // The toolkit may have a remark of its own before.
    const QByteArray line = "tavik: unexpected argument \"range.idx\" (see tavik --help)\n";
    QVERIFY2(("\n" + refused.messages).endsWith("\n" + line), refused.messages);
}

void InstallTest::BringsWhatDesktopAndShellsLookFor_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("share/doc/tavik/copyright") << QByteArray("MIT License");
    QTest::newRow("share/doc/tavik/answers.md") << QByteArray("# Answers for scripts");
    QTest::newRow("share/doc/tavik/answers.schema.json") << QByteArray("{");
    QTest::newRow("share/doc/tavik/own-parts.md") << QByteArray("# ");
    QTest::newRow("share/doc/tavik/part-files.md") << QByteArray("# ");
    QTest::newRow("share/doc/tavik/part-table.md") << QByteArray("# The part table");
    QTest::newRow("share/doc/tavik/banks.md") << QByteArray("# Banks of parts");
    QTest::newRow("share/doc/tavik/board.md") << QByteArray("# Checking a board");
    QTest::newRow("share/doc/tavik/stress.md") << QByteArray("# From the ripple of a circuit to the part");
    QTest::newRow("share/doc/tavik/simulation.md") << QByteArray("# Capacitors in a circuit simulator");
    QTest::newRow("share/doc/tavik/tavik.py") << QByteArray("\"\"\"Curves of capacitors");
    QTest::newRow("share/man/man1/tavik.1") << QByteArray(".TH TAVIK 1 ");
    QTest::newRow("share/man/man1/tavik-cli.1") << QByteArray(".TH TAVIK-CLI 1 ");
    QTest::newRow("share/man/man1/tavik-cli-data.1") << QByteArray(".TH TAVIK-CLI-DATA 1 ");
    QTest::newRow("share/applications/tavik.desktop") << QByteArray("[Desktop Entry]");
    QTest::newRow("share/metainfo/tavik.metainfo.xml") << QByteArray("<?xml");
    QTest::newRow("share/icons/hicolor/scalable/apps/tavik.svg") << QByteArray("<?xml");
    QTest::newRow("share/bash-completion/completions/tavik-cli") << QByteArray("# Completion");
    QTest::newRow("share/zsh/site-functions/_tavik-cli") << QByteArray("#compdef tavik-cli\n");
    QTest::newRow("share/fish/vendor_completions.d/tavik-cli.fish") << QByteArray("# Completion");
}

void InstallTest::BringsWhatDesktopAndShellsLookFor()
{
    QFETCH(QByteArray, begin);
    QFile file(In(QString::fromLatin1(QTest::currentDataTag())));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY2(content.startsWith(begin), content.left(40));
}

void InstallTest::EveryShellCompletes_data()
{
    QTest::addColumn<QString>("shell");
    QTest::addColumn<QString>("script");
    QTest::newRow("bash") << "bash"
                          << "cd \"$0\"; . share/bash-completion/completions/tavik-cli\n"
                             "COMP_WORDS=(tavik-cli curve --chart '') COMP_CWORD=3\n"
                             "_tavik_cli tavik-cli; printf '%s\\n' \"${COMPREPLY[@]}\"";
    QTest::newRow("fish") << "fish"
                          << "source $argv[1]/share/fish/vendor_completions.d/tavik-cli.fish\n"
                             "complete -C 'tavik-cli curve --chart '";
    // Outside a line editor there is no list to fill; what would be filled in is printed instead.
    QTest::newRow("zsh") << "zsh"
                         << "compadd() { shift $(( ${@[(i)--]} )); print -l -- $@; }; _files() { }\n"
                            "words=(tavik-cli curve --chart '') CURRENT=4\n"
                            ". $0/share/zsh/site-functions/_tavik-cli";
}

void InstallTest::EveryShellCompletes()
{
    QFETCH(QString, shell);
    QFETCH(QString, script);
    if (RunIn(WithoutDisplay(), "sh", {"-c", "command -v " + shell}).status != 0)
    {
        QSKIP("this shell is not installed");
    }
    auto environment = WithoutDisplay();
    environment.insert("PATH", In("bin") + ':' + environment.value("PATH"));
    // Some shells write into their user's home as they start.
    for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
    {
        environment.insert(QString::fromLatin1(folder), prefix.path());
    }
    const auto offered = RunIn(environment, shell, {"-c", script, prefix.path()});
    QCOMPARE(offered.messages, QByteArray());
    auto names = offered.output.split('\n');
    names.removeAll(QByteArray());
    std::ranges::sort(names);
    QCOMPARE(names.join(' '), QByteArray("allowable-power capacitance-dc-voltage capacitance-temperature "
                                         "loss-resistance temperature-rise"));
}

void InstallTest::JapaneseBookIsAComponentOfItsOwn()
{
    const QTemporaryDir alone;
    Install({"--prefix", alone.path(), "--component", "tavik-japanese"});
    QVERIFY(QFile::exists(alone.filePath("lib/tavik/tavikj.hlp")));
    QVERIFY(!QFile::exists(alone.filePath("lib/tavik/tavike.hlp")));
    QVERIFY(!QFile::exists(alone.filePath("bin")));
}

QTEST_GUILESS_MAIN(InstallTest)
#include "InstallTest.moc"
