#include "tests/e2e/Display.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

TestDisplay::TestDisplay(const QString& screen)
{
    // The server finds a free number itself and writes it down once it is ready.
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp"});
    if (server.waitForReadyRead(20000))
    {
        name = ":" + QString::fromLatin1(server.readAllStandardOutput()).trimmed();
    }
}

TestDisplay::~TestDisplay()
{
    server.terminate();
    server.waitForFinished(5000);
}

void TestDisplay::Break()
{
    server.kill();
    server.waitForFinished(5000);
}

QProcessEnvironment TestDisplay::Environment(const QString& session) const
{
    QProcessEnvironment environment;
    environment.insert("PATH", qEnvironmentVariable("PATH"));
    environment.insert("HOME", home.path());
    environment.insert("XDG_RUNTIME_DIR", home.path());
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert("DISPLAY", name);
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("XDG_SESSION_ID", session + '-' + QString::number(QCoreApplication::applicationPid()));
    // The sanitizers of a checked build judge the program, not the libraries it rests on.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    return environment;
}

QString TestDisplay::Ask(const QStringList& command) const
{
    QProcess hands;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", name);
    hands.setProcessEnvironment(environment);
    hands.start("xdotool", command);
    hands.waitForFinished(20000);
    return QString::fromUtf8(hands.readAllStandardOutput()).trimmed();
}

QStringList TestDisplay::WindowsOf(const QProcess& program, int count) const
{
    QElapsedTimer waited;
    waited.start();
    QStringList windows;
    do
    {
        QTest::qWait(50);
        windows = Ask({"search", "--all", "--onlyvisible", "--pid", QString::number(program.processId()),
                       "--name", "."})
                      .split('\n', Qt::SkipEmptyParts);
    } while (windows.size() != count && waited.elapsed() < 60000);
    return windows;
}

void TestDisplay::Press(const QString& window, const QStringList& keys) const
{
    Ask(QStringList{"windowfocus", "--sync", window, "key"} + keys);
}

QString TestDisplay::TitleOf(const QString& window) const
{
    return Ask({"getwindowname", window});
}

int TestDisplay::WidthOf(const QString& window) const
{
    for (const QString& line : Ask({"getwindowgeometry", "--shell", window}).split('\n'))
    {
        if (line.startsWith("WIDTH="))
        {
            return line.mid(6).toInt();
        }
    }
    return 0;
}
