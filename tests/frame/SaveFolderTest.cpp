/// The folder of the last save: what is kept of it between runs, and what may lie in the way of keeping it.

#include "frame/LastFolder.h"
#include "tests/frame/Desk.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

class SaveFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void FolderIsRememberedAcrossRuns();
    void FolderThatIsGoneIsForgotten();
    void FolderIsRememberedWithoutSteps();
    void StepsAreNotOfferedAgain();
    void RootFolderIsRemembered();
    void LockOfAKilledProgramKeepsNobodyWaiting();
    void LockOfTheFileDialogsSettingsKeepsNobodyWaiting();
    void UnreadableSettingsAreNoHindrance_data();
    void UnreadableSettingsAreNoHindrance();

private:
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<QTemporaryDir> settings;
};

void SaveFolderTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    settings = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings->path());
}

/// A curve that can be saved.
static void ChooseCurve(Desk& desk)
{
    desk.ClickChartType(2);
    desk.TypePart("KTU155R71H101KA01");
    desk.Type("txtDCBiasVol", "0");
}

void SaveFolderTest::FolderIsRememberedAcrossRuns()
{
    for (const bool firstRun : {true, false})
    {
        Desk desk;
        ChooseCurve(desk);
        const auto offered = desk.SaveAs(folder->filePath(firstRun ? "a.tvk" : "b.tvk"));
        QCOMPARE(offered.first, firstRun ? QDir::currentPath() : folder->path());
    }
    const QSettings stored(settings->filePath("tavik/tavik.conf"), QSettings::IniFormat);
    QCOMPARE(stored.value("Settings/FilePath").toString(), folder->path());
}

void SaveFolderTest::FolderThatIsGoneIsForgotten()
{
    RememberFolder(folder->filePath("a.tvk"), "a.tvk");
    QCOMPARE(LastFolder(), folder->path());
    folder.reset();
    QCOMPARE(LastFolder(), QDir::currentPath());
}

void SaveFolderTest::FolderIsRememberedWithoutSteps()
{
    QVERIFY(QDir(folder->path()).mkpath("down/below"));
    const auto remembered = [&](const QString& typed)
    {
        RememberFolder(folder->filePath(typed + "/a.tvk"), "a.tvk");
        const QSettings now(settings->filePath("tavik/tavik.conf"), QSettings::IniFormat);
        return now.value("Settings/FilePath").toString();
    };
    QCOMPARE(remembered("down/.."), folder->path());
    QCOMPARE(remembered("down/below/.."), folder->filePath("down"));
    QCOMPARE(remembered("./down/../down/."), folder->filePath("down"));
    QCOMPARE(remembered("gone/../down"), folder->filePath("down"));
    // A step up from a link leads to where the linked folder lies.
    QVERIFY(QFile::link(folder->filePath("down/below"), folder->filePath("link")));
    QCOMPARE(remembered("link/.."), folder->filePath("down"));
    QCOMPARE(remembered("link"), folder->filePath("link"));
}

void SaveFolderTest::StepsAreNotOfferedAgain()
{
    QVERIFY(QDir(folder->path()).mkpath("down"));
    Desk desk;
    ChooseCurve(desk);
    desk.SaveAs(folder->filePath("down/../a.tvk"));
    QVERIFY(QFile::exists(folder->filePath("a.tvk")));
    QCOMPARE(desk.SaveAs(QString()).first, folder->path());
    const QSettings stored(settings->filePath("tavik/tavik.conf"), QSettings::IniFormat);
    QCOMPARE(stored.value("Settings/FilePath").toString(), folder->path());
}

void SaveFolderTest::RootFolderIsRemembered()
{
    RememberFolder("/a.tvk", "a.tvk");
    QCOMPARE(LastFolder(), QString("/"));
    const QSettings stored(settings->filePath("tavik/tavik.conf"), QSettings::IniFormat);
    QCOMPARE(stored.value("Settings/FilePath").toString(), QString("/"));
}

void SaveFolderTest::LockOfAKilledProgramKeepsNobodyWaiting()
{
    QVERIFY(QDir().mkpath(settings->filePath("tavik")));
    QFile lock(settings->filePath("tavik/tavik.conf.lock"));
    QVERIFY(lock.open(QIODevice::WriteOnly));
    lock.close();
    QElapsedTimer timer;
    timer.start();
    RememberFolder(folder->filePath("a.tvk"), "a.tvk");
    QVERIFY2(timer.elapsed() < 10000, "the save waited for a lock that nobody holds");
    QCOMPARE(LastFolder(), folder->path());
    QVERIFY(!lock.exists());
}

void SaveFolderTest::LockOfTheFileDialogsSettingsKeepsNobodyWaiting()
{
    QFile lock(settings->filePath("QtProject.conf.lock"));
    QVERIFY(lock.open(QIODevice::WriteOnly));
    lock.close();
    Desk desk;
    ChooseCurve(desk);
    QElapsedTimer timer;
    timer.start();
    desk.SaveAs(folder->filePath("a.tvk"));
    QVERIFY2(timer.elapsed() < 10000, "the dialog waited for a lock that nobody holds");
    QVERIFY(QFile::exists(folder->filePath("a.tvk")));
    QVERIFY(!lock.exists());
}

void SaveFolderTest::UnreadableSettingsAreNoHindrance_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("nonsense") << false;
    QTest::newRow("a folder in the place of the file") << true;
}

void SaveFolderTest::UnreadableSettingsAreNoHindrance()
{
    QFETCH(bool, isFolder);
    const QString path = settings->filePath("tavik/tavik.conf");
    QVERIFY(QDir().mkpath(isFolder ? path : settings->filePath("tavik")));
    if (!isFolder)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray("\0[[\xFF=\\x", 8)) == 8);
    }
    Desk desk;
    ChooseCurve(desk);
    QCOMPARE(desk.SaveAs(folder->filePath("a.tvk")).first, QDir::currentPath());
    QCOMPARE(desk.TakeText(), "tavik Data saved to " + folder->filePath("a.tvk"));
}

QTEST_MAIN(SaveFolderTest)
#include "SaveFolderTest.moc"
