/// Files that are watched, written as programs write them.

#include "frame/FileWatch.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class FileWatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TellsWhatIsWrittenInPlace();
    void TellsWhatIsReplaced();
    void GoesOnAfterAReplacement();
    void TellsWhatIsRemovedAndMadeAnew();
    void TellsWhatComesIntoBeing();
    void TellsOfAFolderThatIsMadeAnew();
    void TellsWhatChangedSinceItWasRead();
    void TellsWhatALinkLeadsTo();
    void TellsSeveralChangesOnce();
    void IsSilentOnOtherFiles();

private:
    QString File(const QString& name) const { return folder->filePath(name); }
    void Write(const QString& name, const QByteArray& text) const;
    void Watch(const QString& name);
    bool Told() { return spy->count() > 0 || spy->wait(5000); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<FileWatch> watch;
    std::unique_ptr<QSignalSpy> spy;
};

void FileWatchTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    watch = std::make_unique<FileWatch>();
    spy = std::make_unique<QSignalSpy>(watch.get(), &FileWatch::Changed);
    Write("board.csv", "one");
}

void FileWatchTest::Write(const QString& name, const QByteArray& text) const
{
    QFile file(File(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
}

/// As it stands now.
void FileWatchTest::Watch(const QString& name)
{
    const auto path = File(name).toStdString();
    spy->clear();
    watch->Watch({{.Path = path, .State = StateOf(std::filesystem::path(path))}});
}

void FileWatchTest::TellsWhatIsWrittenInPlace()
{
    Watch("board.csv");
    Write("board.csv", "another");
    QVERIFY(Told());
}

void FileWatchTest::TellsWhatIsReplaced()
{
    Watch("board.csv");
    Write("board.csv~", "two");
    QVERIFY(QFile::remove(File("board.csv")));
    QVERIFY(QFile::rename(File("board.csv~"), File("board.csv")));
    QVERIFY(Told());
}

void FileWatchTest::GoesOnAfterAReplacement()
{
    TellsWhatIsReplaced();
    Watch("board.csv");
    Write("board.csv", "three");
    QVERIFY(Told());
    // While another program still has the former file open.
    QFile former(File("board.csv"));
    QVERIFY(former.open(QIODevice::ReadOnly));
    Watch("board.csv");
    Write("board.csv~", "four");
    std::filesystem::rename(File("board.csv~").toStdString(), File("board.csv").toStdString());
    QVERIFY(Told());
    Watch("board.csv");
    Write("board.csv", "five");
    QVERIFY(Told());
}

void FileWatchTest::TellsWhatIsRemovedAndMadeAnew()
{
    Watch("board.csv");
    QVERIFY(QFile::remove(File("board.csv")));
    QVERIFY(Told());
    Watch("board.csv");
    Write("board.csv", "one");
    QVERIFY(Told());
}

void FileWatchTest::TellsWhatComesIntoBeing()
{
    Watch("rails.csv");
    Write("rails.csv", "one");
    QVERIFY(Told());
}

void FileWatchTest::TellsOfAFolderThatIsMadeAnew()
{
    QVERIFY(QDir(folder->path()).mkpath("a/b"));
    Write("a/b/board.csv", "one");
    Watch("a/b/board.csv");
    QVERIFY(QDir(File("a")).removeRecursively());
    QVERIFY(Told());
    Watch("a/b/board.csv");
    QVERIFY(QDir(folder->path()).mkpath("a/b"));
    QTest::qWait(400);
    Write("a/b/board.csv", "one");
    QVERIFY(Told());
}

void FileWatchTest::TellsWhatChangedSinceItWasRead()
{
    const auto path = File("board.csv").toStdString();
    const auto asRead = StateOf(std::filesystem::path(path));
    Write("board.csv", "another");
    watch->Watch({{.Path = path, .State = asRead}});
    QVERIFY(Told());
}

void FileWatchTest::TellsWhatALinkLeadsTo()
{
    QVERIFY(QDir(folder->path()).mkpath("real"));
    Write("real/board.csv", "one");
    QVERIFY(QFile::link(File("real/board.csv"), File("link.csv")));
    Watch("link.csv");
    Write("real/board.csv~", "two");
    QVERIFY(QFile::remove(File("real/board.csv")));
    QVERIFY(QFile::rename(File("real/board.csv~"), File("real/board.csv")));
    QVERIFY(Told());
}

void FileWatchTest::TellsSeveralChangesOnce()
{
    Watch("board.csv");
    for (int i = 0; i < 5; ++i)
    {
        Write("board.csv", QByteArray::number(i));
        QTest::qWait(50);
    }
    QCOMPARE(spy->count(), 0);
    QVERIFY(Told());
    QTest::qWait(400);
    QCOMPARE(spy->count(), 1);
}

void FileWatchTest::IsSilentOnOtherFiles()
{
    Watch("board.csv");
    Write("other.csv", "one");
    QTest::qWait(500);
    QCOMPARE(spy->count(), 0);
}

QTEST_GUILESS_MAIN(FileWatchTest)
#include "FileWatchTest.moc"
