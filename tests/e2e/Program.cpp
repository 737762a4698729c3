#include "tests/e2e/Program.h"

#include <QFile>
#include <QTest>

void FillWithProgram(const QTemporaryDir& folder, bool withParts)
{
    QVERIFY(QFile::copy(PROGRAM, folder.filePath("tavik")));
    if (withParts)
    {
        QVERIFY(QFile::copy(SAMPLE_RANGE "/halvex.idx", folder.filePath("halvex.idx")));
        QVERIFY(QFile::copy(SAMPLE_RANGE "/halvex.dat", folder.filePath("halvex.dat")));
    }
}

std::unique_ptr<QProcess> ProgramFolder::Start(const QProcessEnvironment& environment) const
{
    auto program = std::make_unique<QProcess>();
    program->setProcessEnvironment(environment);
    program->start(File("tavik"), QStringList());
    return program;
}

/// The keys of a text.
static QStringList KeysOf(const QString& text)
{
    static const QHash<QChar, QString> names = {
        {'/', "slash"}, {'.', "period"}, {'-', "minus"}, {'_', "underscore"}};
    QStringList keys;
    for (const QChar& c : text)
    {
        keys << names.value(c, c);
    }
    return keys;
}

void PlotByKeyboard(const TestDisplay& display, const QString& window)
{
    // A button that is chosen by key stays down for a moment before it acts.
    constexpr int moment = 400;
    display.Press(window, "alt+u");
    QTest::qWait(moment);
    display.Press(window, QStringList{"alt+n"} + KeysOf("KTU033R71E101KA01") + QStringList{"alt+d", "0"});
    display.Press(window, "alt+p");
    QTest::qWait(moment);
}

QString SaveByKeyboard(const TestDisplay& display, const QString& window, const QProcess& program,
                       const QString& file)
{
    display.Press(window, "ctrl+s");
    QStringList windows = display.WindowsOf(program, 2);
    windows.removeAll(window);
    if (windows.size() != 1)
    {
        return {};
    }
    const QString dialog = windows.front();
    display.Press(dialog, QStringList{"ctrl+a"} + KeysOf(file) + QStringList{"Return"});
    const auto answered = [&]
    {
        windows = display.WindowsOf(program, 2);
        windows.removeAll(window);
        return !windows.isEmpty() && windows.front() != dialog;
    };
    return QTest::qWaitFor(answered, 10000) ? windows.front() : QString();
}

bool EndsByExit(const TestDisplay& display, const QString& window, QProcess& program)
{
    display.Press(window, "alt+f");
    display.Press(window, "x");
    return program.waitForFinished(10000) && program.exitStatus() == QProcess::NormalExit &&
           program.exitCode() == 0;
}

void Kill(QProcess& program)
{
    program.kill();
    program.waitForFinished(10000);
}
