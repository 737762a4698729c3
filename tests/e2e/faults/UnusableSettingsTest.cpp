/// A home in which the settings cannot be read or kept: the program starts and saves all the same.

#include "tests/e2e/Program.h"

#include <QDir>
#include <QFile>
#include <QTest>

class UnusableSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NobodyIsHindered_data();
    void NobodyIsHindered();
};

/// What lies where the settings belong.
enum class Settings
{
    NoHome,
    FileForFolder,
    Unreadable
};
Q_DECLARE_METATYPE(Settings)

void UnusableSettingsTest::NobodyIsHindered_data()
{
    QTest::addColumn<Settings>("settings");
    QTest::newRow("a home that is nowhere") << Settings::NoHome;
    QTest::newRow("a file for the settings folder") << Settings::FileForFolder;
    QTest::newRow("a settings file without rights") << Settings::Unreadable;
}

static void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64{bytes.size()});
}

static void Prepare(Settings settings, const QString& home, QProcessEnvironment& environment)
{
    const QString folder = home + "/.config/tavik";
    environment.insert("HOME", home);
    switch (settings)
    {
    case Settings::NoHome:
        environment.insert("HOME", "/proc/nowhere");
        environment.insert("XDG_CONFIG_HOME", "/proc/nowhere/config");
        break;
    case Settings::FileForFolder:
        QVERIFY(QDir().mkpath(home + "/.config"));
        WriteFile(folder, "a file");
        break;
    case Settings::Unreadable:
        QVERIFY(QDir().mkpath(folder));
        WriteFile(folder + "/tavik.conf", "[Settings]\nFilePath=/\n");
        QVERIFY(QFile::setPermissions(folder + "/tavik.conf", {}));
        break;
    }
}

void UnusableSettingsTest::NobodyIsHindered()
{
    QFETCH(Settings, settings);
    const TestDisplay display;
    QVERIFY2(display.IsUp(), "Xvfb does not start");
    const QTemporaryDir home;
    auto environment =
        display.Environment(QStringLiteral("settings-%1").arg(QCoreApplication::applicationPid()));
    Prepare(settings, home.path(), environment);
    const ProgramFolder folder;
    const auto program = folder.Start(environment);
    const QStringList windows = display.WindowsOf(*program, 1);
    QCOMPARE(windows.size(), 1);

    PlotByKeyboard(display, windows.front());
    const QTemporaryDir saved;
    const QString file = saved.filePath("a.tvk");
    const QString box = SaveByKeyboard(display, windows.front(), *program, file);
    QVERIFY(!box.isEmpty());
    QFile data(file);
    QVERIFY(data.open(QIODevice::ReadOnly));
    QCOMPARE(data.readAll().count("\r\n"), 205);
    display.Press(box, "Return");
    QCOMPARE(display.WindowsOf(*program, 1).size(), 1);
    QVERIFY(EndsByExit(display, windows.front(), *program));
    QCOMPARE(program->readAllStandardError(), QByteArray());
}

QTEST_GUILESS_MAIN(UnusableSettingsTest)
#include "UnusableSettingsTest.moc"
