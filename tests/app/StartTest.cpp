/// The start-up order: one instance, path separator, help language, part data, main window, degree sign.

#include "app/Main.h"
#include "app/SingleInstance.h"
#include "app/mdlPublic.h"
#include "partdata/RunTimeError.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

class StartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void StepsStandInOrder();
    void HelpLanguageFollowsTheBooks_data();
    void HelpLanguageFollowsTheBooks();
    void NamedFolderHoldsPartsButNoBooks();
    void MissingPartFilesShowNoWindow();
    void SecondStartIsRefusedBeforeAnythingElse();

private:
    static QString FreshFolder();

    QByteArray session;
    int starts = 0;
};

/// Each start is one of a login of its own, since this very process holds the former ones.
void StartTest::init()
{
    if (starts == 0)
    {
        session = qgetenv("XDG_SESSION_ID");
    }
    qputenv("XDG_SESSION_ID", QByteArray("start-test-") +
                                  QByteArray::number(QCoreApplication::applicationPid()) + "-" +
                                  QByteArray::number(++starts));
    mdlPublic = PublicModule{};
}

void StartTest::cleanupTestCase()
{
    qputenv("XDG_SESSION_ID", session);
}

static void CopyRange(const QString& folder)
{
    for (const char* name : {"halvex.idx", "halvex.dat"})
    {
        QVERIFY(QFile::copy(QStringLiteral(SAMPLE_RANGE "/%1").arg(name), folder + "/" + name));
    }
}

static void WriteFile(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void StartTest::StepsStandInOrder()
{
    const QTemporaryDir folder;
    CopyRange(folder.path());
    bool shown = false;
    const bool started = Main(folder.path().toStdString(),
                              [&]
                              {
                                  shown = true;
                                  // All is there for the main window but the degree sign, which is settled
                                  // last.
                                  QCOMPARE(mdlPublic.PathSep, std::string("/"));
                                  QCOMPARE(mdlPublic.HelpLanguage, std::int16_t{2});
                                  QVERIFY(!mdlPublic.Parts.PartData.empty());
                                  QCOMPARE(mdlPublic.DegreeSign, std::string());
                              });
    QVERIFY(started);
    QVERIFY(shown);
    QCOMPARE(mdlPublic.DegreeSign, std::string(1, static_cast<char>(176)));
    QVERIFY(!mdlPublic.Updating);
}

void StartTest::HelpLanguageFollowsTheBooks_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<int>("language");
    QTest::newRow("no book") << QStringList() << QStringList() << 2;
    QTest::newRow("English book") << QStringList("tavike.hlp") << QStringList() << 2;
    QTest::newRow("Japanese book") << QStringList("tavikj.hlp") << QStringList() << 1;
    QTest::newRow("both books") << QStringList({"tavike.hlp", "tavikj.hlp"}) << QStringList() << 1;
    QTest::newRow("longer name") << QStringList("tavikj.hlp.old") << QStringList() << 2;
    QTest::newRow("folder of that name") << QStringList() << QStringList("tavikj.hlp") << 2;
}

void StartTest::HelpLanguageFollowsTheBooks()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, folders);
    const QTemporaryDir folder;
    CopyRange(folder.path());
    for (const QString& name : files)
    {
        WriteFile(folder.filePath(name));
    }
    for (const QString& name : folders)
    {
        QVERIFY(QDir(folder.path()).mkdir(name));
    }
    QVERIFY(Main(folder.path().toStdString(), [] {}));
    QTEST(static_cast<int>(mdlPublic.HelpLanguage), "language");
}

void StartTest::NamedFolderHoldsPartsButNoBooks()
{
    const QTemporaryDir program;
    const QTemporaryDir parts;
    CopyRange(parts.path());
    WriteFile(parts.filePath("tavikj.hlp"));
    QVERIFY(Main(
        program.path().toStdString(), [] {}, parts.path().toStdString()));
    QCOMPARE(mdlPublic.HelpLanguage, std::int16_t{2});
    QVERIFY(!mdlPublic.Parts.PartData.empty());
}

void StartTest::MissingPartFilesShowNoWindow()
{
    const QTemporaryDir folder;
    bool shown = false;
    try
    {
        Main(folder.path().toStdString(), [&] { shown = true; });
        QFAIL("started without part files");
    }
    catch (const RunTimeError& error)
    {
        QCOMPARE(error.Number(), 53);
    }
    QVERIFY(!shown);
}

void StartTest::SecondStartIsRefusedBeforeAnythingElse()
{
    QVERIFY(ClaimSingleInstance());
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QTimer::singleShot(0, this,
                       [&]
                       {
                           auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                           title = box->windowTitle();
                           text = box->text();
                           icon = box->icon();
                           QTest::keyClick(box, Qt::Key_Return);
                       });
    // The folder has no part files, and nobody finds out.
    const QTemporaryDir folder;
    bool shown = false;
    QVERIFY(!Main(folder.path().toStdString(), [&] { shown = true; }));
    QVERIFY(!shown);
    QCOMPARE(text, QString("It is already started."));
    QCOMPARE(icon, QMessageBox::Critical);
    QCOMPARE(title, QString("Halvex Chip Capacitor Characteristics Data Library"));
    QCOMPARE(mdlPublic.PathSep, std::string());
    QVERIFY(mdlPublic.Parts.PartData.empty());
}

QTEST_MAIN(StartTest)
#include "StartTest.moc"
