#pragma once

/// A display without a screen, and the user's hands on it.

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

/// An X server of its own for one test program.
class TestDisplay
{
public:
    explicit TestDisplay(const QString& screen = QStringLiteral("1280x1024x24"));
    ~TestDisplay();
    TestDisplay(const TestDisplay&) = delete;
    TestDisplay& operator=(const TestDisplay&) = delete;

    /// Takes the display away from everybody, as a broken connection does.
    void Break();

    bool IsUp() const { return !name.isEmpty(); }

    /// What a program on this display sees: nothing of the tester's own settings or login.
    /// The login is this test's own: a program of another run of the tests is in nobody's way.
    QProcessEnvironment Environment(const QString& session) const;

    /// The windows of a process that are to be seen, waiting until there are as many.
    QStringList WindowsOf(const QProcess& program, int count) const;
    /// Gives a window the keyboard and presses a key there.
    void Press(const QString& window, const QString& key) const { Press(window, QStringList{key}); }
    void Press(const QString& window, const QStringList& keys) const;
    QString TitleOf(const QString& window) const;
    /// Width in pixels of the screen.
    int WidthOf(const QString& window) const;

private:
    QString Ask(const QStringList& command) const;

    QTemporaryDir home;
    QProcess server;
    QString name;
};
