#include "tests/frame/HelpViewerTest.h"

#include "app/mdlPublic.h"
#include "frame/HelpBook.h"
#include "frame/HelpCommand.h"
#include "frame/frmHelp.h"
#include "partdata/RunTimeError.h"
#include "tests/frame/WhenShown.h"

#include <QAction>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTextBlock>
#include <QTreeWidget>
#include <QWheelEvent>

/// Two chapters, far enough apart that a page shows only one; "bias" stands in it three times.
static QByteArray TwoChapters()
{
    const auto lines = QByteArray("<p>line</p>").repeated(200);
    return "<html><head><title>Capacitors</title></head><body><h1>Capacitors</h1>"
           "<p><a href=\"#two\">to chapter two</a></p>"
           "<h2><a name=\"one\">One</a></h2><p>DC bias</p>" +
           lines +
           "<h3 id=\"detail\">Detail</h3><p>bias again, 25 \xC2\xB0"
           "C</p>" +
           lines + "<h2 id=\"two\">Two</h2><p>Bias once more</p>" + lines + "</body></html>";
}

static QList<frmHelp*> Viewers()
{
    QList<frmHelp*> viewers;
    for (auto* const widget : QApplication::topLevelWidgets())
    {
        if (auto* const viewer = qobject_cast<frmHelp*>(widget))
        {
            viewers += viewer;
        }
    }
    return viewers;
}

static HelpBrowser* Page(const frmHelp* viewer)
{
    return viewer->findChild<HelpBrowser*>("txtBook");
}

/// The text of the first line on the page.
static QString FirstLine(const frmHelp* viewer)
{
    return Page(viewer)->cursorForPosition(QPoint(20, 8)).block().text();
}

static QString BoxText(QWidget& shown)
{
    const auto* const box = qobject_cast<QMessageBox*>(&shown);
    return box != nullptr ? box->text() : QString();
}

void HelpViewerTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void HelpViewerTest::cleanup()
{
    CloseHelp();
}

QString HelpViewerTest::MakeBook(const QString& name, const QByteArray& bytes) const
{
    QFile file(folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
    {
        QTest::qFail("the book cannot be written", __FILE__, __LINE__);
    }
    return file.fileName();
}

frmHelp* HelpViewerTest::Open(const QByteArray& html) const
{
    OpenHelp(MakeBook("book.hlp", html));
    auto* const viewer = Viewers().constFirst();
    if (!QTest::qWaitForWindowActive(viewer))
    {
        QTest::qFail("the viewer is not shown", __FILE__, __LINE__);
    }
    return viewer;
}

void HelpViewerTest::ContentsFollowTheHeadings()
{
    const auto* const viewer = Open(TwoChapters());
    QCOMPARE(viewer->windowTitle(), "Capacitors");
    const auto* const contents = viewer->findChild<QTreeWidget*>("treContents");
    QCOMPARE(contents->topLevelItemCount(), 2);
    QCOMPARE(contents->topLevelItem(0)->text(0), "One");
    QCOMPARE(contents->topLevelItem(0)->childCount(), 1);
    QCOMPARE(contents->topLevelItem(0)->child(0)->text(0), "Detail");
    QCOMPARE(contents->topLevelItem(1)->text(0), "Two");
    QVERIFY(Page(viewer)->toPlainText().contains(QStringLiteral("25 °C")));
    QVERIFY(!viewer->isModal());
}

void HelpViewerTest::AContentsEntryShowsItsHeading()
{
    const auto* const viewer = Open(TwoChapters());
    auto* const contents = viewer->findChild<QTreeWidget*>("treContents");
    for (auto* const item : {contents->topLevelItem(1), contents->topLevelItem(0)->child(0)})
    {
        QTest::mouseClick(contents->viewport(), Qt::LeftButton, {}, contents->visualItemRect(item).center());
        QCOMPARE(FirstLine(viewer), item->text(0));
    }
}

void HelpViewerTest::BackAndForwardRetraceTheWay()
{
    auto* const viewer = Open(TwoChapters());
    const auto* const back = viewer->findChild<QAction*>("mnuBack");
    const auto* const forward = viewer->findChild<QAction*>("mnuForward");
    QVERIFY(!back->isEnabled() && !forward->isEnabled());

    // The link of the page, by keys.
    QTest::keyClick(Page(viewer), Qt::Key_Tab);
    QTest::keyClick(Page(viewer), Qt::Key_Return);
    QTRY_COMPARE(FirstLine(viewer), "Two");
    QVERIFY(back->isEnabled());
    QTest::keyClick(viewer, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(Page(viewer)->verticalScrollBar()->value(), 0);
    QVERIFY(forward->isEnabled());
    QTest::keyClick(viewer, Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(FirstLine(viewer), "Two");
    QTest::keyClick(viewer, Qt::Key_F1);
    QCOMPARE(Page(viewer)->verticalScrollBar()->value(), 0);
}

void HelpViewerTest::SearchGoesThroughEveryPlaceAndRound()
{
    auto* const viewer = Open(TwoChapters());
    const auto block = [&] { return Page(viewer)->textCursor().block().text(); };
    QTest::keyClick(viewer, Qt::Key_F, Qt::ControlModifier);
    auto* const box = viewer->findChild<QLineEdit*>("txtFind");
    QVERIFY(box->hasFocus());
    QTest::keyClicks(box, "bias");
    QCOMPARE(block(), "DC bias");
    QCOMPARE(viewer->findChild<QLabel*>("lblFound")->text(), "Found 3 times");
    QCOMPARE(Page(viewer)->extraSelections().size(), 3);
    QCOMPARE(Page(viewer)->textCursor().selectedText(), "bias");

    QTest::keyClick(box, Qt::Key_Return);
    QVERIFY(block().startsWith("bias again"));
    QTest::keyClick(viewer, Qt::Key_F3);
    QCOMPARE(block(), "Bias once more");
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(block(), "DC bias");
    QTest::keyClick(box, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(block(), "Bias once more");
    QTest::keyClick(viewer, Qt::Key_F3, Qt::ShiftModifier);
    QVERIFY(block().startsWith("bias again"));
}

void HelpViewerTest::SearchTellsWhatIsNotThere()
{
    auto* const viewer = Open(TwoChapters());
    auto* const box = viewer->findChild<QLineEdit*>("txtFind");
    const auto* const found = viewer->findChild<QLabel*>("lblFound");
    QTest::keyClicks(box, "biasx");
    QCOMPARE(found->text(), "Not found");
    QVERIFY(Page(viewer)->extraSelections().isEmpty());
    QVERIFY(!Page(viewer)->textCursor().hasSelection());
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(found->text(), "Found 3 times");
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QCOMPARE(found->text(), "");
}

void HelpViewerTest::ZoomByKeysAndWheel()
{
    auto* const viewer = Open(TwoChapters());
    auto* const page = Page(viewer);
    const auto size = [page] { return page->font().pointSizeF(); };
    const auto first = size();
    const auto height = page->document()->size().height();
    QTest::keyClick(viewer, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(viewer, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(size(), first + 2);
    QVERIFY(page->document()->size().height() > height);
    QTest::keyClick(viewer, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(size(), first + 1);
    QTest::keyClick(viewer, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(size(), first);

    const auto turn = [page](int delta, Qt::KeyboardModifiers keys)
    {
        QWheelEvent wheel({50, 50}, page->viewport()->mapToGlobal(QPoint(50, 50)), {}, {0, delta},
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page->viewport(), &wheel);
    };
    turn(120, Qt::ControlModifier);
    QCOMPARE(size(), first + 1);
    turn(-120, {});
    QCOMPARE(size(), first + 1);
    QVERIFY(page->verticalScrollBar()->value() > 0);
    for (int i = 0; i < 100; ++i)
    {
        turn(-120, Qt::ControlModifier);
    }
    QVERIFY(size() > 0 && size() < first);
}

void HelpViewerTest::EscapeLeavesTheSearchThenTheViewer()
{
    QPointer<frmHelp> viewer = Open(TwoChapters());
    auto* const box = viewer->findChild<QLineEdit*>("txtFind");
    QTest::keyClick(viewer, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(box, "bias");
    QTest::keyClick(box, Qt::Key_Escape);
    QVERIFY(viewer->isVisible());
    QCOMPARE(box->text(), "");
    QVERIFY(Page(viewer)->extraSelections().isEmpty());
    QTest::keyClick(Page(viewer), Qt::Key_Escape);
    QTRY_VERIFY(viewer.isNull());
}

void HelpViewerTest::PicturesComeFromTheFolderOfTheBook()
{
    QImage picture(300, 400, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(QDir(folder->path()).mkdir("pictures"));
    QVERIFY(picture.save(folder->filePath("pictures/chart.png")));
    auto* const viewer = Open("<html><body><img src=\"pictures/chart.png\"/></body></html>");
    QVERIFY(Page(viewer)->document()->size().height() >= 400);
    QCOMPARE(Page(viewer)->grab().toImage().pixelColor(100, 100), QColor(Qt::red));
}

void HelpViewerTest::PrintWithoutPrinterIsTold()
{
    auto* const viewer = Open(TwoChapters());
    QString told;
    WhenShown user({[&](QWidget& shown)
                    {
                        told = BoxText(shown);
                        Press(Qt::Key_Return)(shown);
                    }});
    QTest::keyClick(viewer, Qt::Key_P, Qt::ControlModifier);
    QVERIFY2(told.contains("There is no printer in this system."), qPrintable(told));
}

void HelpViewerTest::ThereIsOneViewer()
{
    OpenHelp(MakeBook("a.hlp", "<html><head><title>A</title></head><body>a</body></html>"));
    OpenHelp(MakeBook("b.hlp", "<html><head><title>B</title></head><body>b</body></html>"));
    QCOMPARE(Viewers().size(), 1);
    QCOMPARE(Viewers().constFirst()->windowTitle(), "B");
    QCOMPARE(Page(Viewers().constFirst())->toPlainText(), "b");
}

void HelpViewerTest::ABookIsReadAgain()
{
    Open(TwoChapters());
    ShowHelpTopic("two");
    const auto* const viewer = Open(TwoChapters());
    QCOMPARE(FirstLine(viewer), "Capacitors");
    QVERIFY(Page(viewer)->toPlainText().contains("Bias once more"));
    Open("<html><body>afresh</body></html>");
    QCOMPARE(Page(viewer)->toPlainText(), "afresh");
}

void HelpViewerTest::TheViewerClosesWithItsOwner()
{
    const auto book = MakeBook("book.hlp", TwoChapters());
    {
        QWidget owner;
        owner.show();
        OpenHelp(book, &owner);
        OpenHelp(book, &owner);
        QCOMPARE(Viewers().size(), 1);
        owner.close();
        QTRY_VERIFY(Viewers().isEmpty());
        owner.show();
        OpenHelp(book, &owner);
        QCOMPARE(Viewers().size(), 1);
    }
    QVERIFY(Viewers().isEmpty());
}

// Bad books.

void HelpViewerTest::BadBooksAreErrors_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("description");
    QTest::newRow("empty") << QByteArray() << "The help file bad.hlp is empty.";
    QTest::newRow("zero bytes") << QByteArray(5000, '\0') << "The help file bad.hlp is not a help file.";
    QTest::newRow("zero bytes in a book")
        << QByteArray("<html><body>a\0b</body></html>", 29) << "The help file bad.hlp is not a help file.";
    QTest::newRow("another code page") << QByteArray("<html><body>25 \xB0"
                                                     "C</body></html>")
                                       << "The help file bad.hlp is not a help file.";
    QTest::newRow("plain text") << QByteArray("just words") << "The help file bad.hlp is not a help file.";
    QTest::newRow("too large") << "<html><body>" + QByteArray(3 * 1024 * 1024, 'x')
                               << "The help file bad.hlp is too large.";
}

void HelpViewerTest::BadBooksAreErrors()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, description);
    const auto book = MakeBook("bad.hlp", bytes);
    try
    {
        OpenHelp(book);
        QFAIL("no error");
    }
    catch (const RunTimeError& error)
    {
        QCOMPARE(QString::fromStdString(error.Description()), description);
    }
    QVERIFY(Viewers().isEmpty());
}

void HelpViewerTest::ABadBookLeavesTheViewerAsItWas()
{
    const auto* const viewer = Open(TwoChapters());
    const auto numberOf = [](const QString& file)
    {
        try
        {
            OpenHelp(file);
        }
        catch (const RunTimeError& error)
        {
            return error.Number();
        }
        return 0;
    };
    QCOMPARE(numberOf(folder->filePath("none.hlp")), 53);
    QCOMPARE(numberOf(folder->path()), 75);
    QCOMPARE(Viewers(), QList<frmHelp*>{const_cast<frmHelp*>(viewer)});
    QCOMPARE(viewer->windowTitle(), "Capacitors");
}

/// What this process has read from files so far, as the system counts it.
static qint64 BytesRead()
{
    QFile counts("/proc/self/io");
    const QByteArray text = counts.open(QIODevice::ReadOnly) ? counts.readAll() : QByteArray();
    return text.startsWith("rchar: ") ? text.mid(7, text.indexOf('\n') - 7).toLongLong() : -1;
}

void HelpViewerTest::AnEndlessFileIsNotRead()
{
    for (const auto* file : {"/dev/zero", "/dev/null"})
    {
        QVERIFY_EXCEPTION_THROWN(OpenHelp(file), RunTimeError);
    }
    // A sparse file of 100 GiB takes no room.
    QFile huge(folder->filePath("huge.hlp"));
    QVERIFY(huge.open(QIODevice::WriteOnly));
    QVERIFY(huge.resize(100LL * 1024 * 1024 * 1024));
    huge.close();
    const auto before = BytesRead();
    QVERIFY(before >= 0);
    QVERIFY_EXCEPTION_THROWN(OpenHelp(huge.fileName()), RunTimeError);
    QVERIFY(BytesRead() - before < 2 * LargestHelpBook);
}

void HelpViewerTest::ALargeBookIsShownInTime()
{
    // Just below the largest size: many more pages than any book has.
    const QByteArray line = "<p>One line of a long book about capacitors and DC bias.</p>\n";
    const auto lines = line.repeated((LargestHelpBook - 100) / line.size());
    QElapsedTimer clock;
    clock.start();
    const auto* const viewer = Open("<html><body>" + lines + "</body></html>");
    QTest::keyClicks(viewer->findChild<QLineEdit*>("txtFind"), "bias");
    QVERIFY2(clock.elapsed() < 20000, qPrintable(QString::number(clock.elapsed())));
}

// The help command.

/// Stands in the program folder for one test.
class ProgramFile
{
public:
    ProgramFile(const QString& name, const QByteArray& bytes)
        : file(QCoreApplication::applicationDirPath() + '/' + name)
    {
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || file.write(bytes) != bytes.size())
        {
            QTest::qFail("the book stands in the program folder already", __FILE__, __LINE__);
        }
        file.close();
    }
    ~ProgramFile() { file.remove(); }
    ProgramFile(const ProgramFile&) = delete;
    ProgramFile& operator=(const ProgramFile&) = delete;

private:
    QFile file;
};

static const QByteArray EnglishBook = "<html><head><title>English</title></head><body>en</body></html>";
static const QByteArray JapaneseBook = "<html><head><title>Japanese</title></head><body>ja</body></html>";

void HelpViewerTest::TheHelpCommandTakesTheBookOfTheLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("title");
    QTest::newRow("2 is English") << 2 << "English";
    QTest::newRow("1 is Japanese") << 1 << "Japanese";
    QTest::newRow("any other is Japanese") << 0 << "Japanese";
}

void HelpViewerTest::TheHelpCommandTakesTheBookOfTheLanguage()
{
    QFETCH(int, language);
    QFETCH(QString, title);
    const ProgramFile english("tavike.hlp", EnglishBook);
    const ProgramFile japanese("tavikj.hlp", JapaneseBook);
    mdlPublic.PathSep = "/";
    mdlPublic.HelpLanguage = static_cast<std::int16_t>(language);
    ShowHelpContents(nullptr);
    QCOMPARE(Viewers().size(), 1);
    QCOMPARE(Viewers().constFirst()->windowTitle(), title);
}

void HelpViewerTest::TheHelpCommandOpensAtATopic()
{
    const ProgramFile english("tavike.hlp", TwoChapters());
    mdlPublic.PathSep = "/";
    mdlPublic.HelpLanguage = 2;
    ShowHelpContents(nullptr, "two");
    QCOMPARE(FirstLine(Viewers().constFirst()), "Two");
    ShowHelpContents(nullptr, "no such topic");
    QCOMPARE(Page(Viewers().constFirst())->verticalScrollBar()->value(), 0);
}

void HelpViewerTest::TheHelpCommandTellsThatThereIsNoBook()
{
    const ProgramFile japanese("tavikj.hlp", JapaneseBook);
    mdlPublic.PathSep = "/";
    mdlPublic.HelpLanguage = 2;
    WhenShown user({[](QWidget& shown)
                    {
                        QCOMPARE(BoxText(shown), "There is no Help File.");
                        QCOMPARE(dynamic_cast<QMessageBox&>(shown).icon(), QMessageBox::Information);
                        Press(Qt::Key_Return)(shown);
                    }});
    ShowHelpContents(nullptr);
    QVERIFY(Viewers().isEmpty());
}

void HelpViewerTest::TheHelpCommandTellsWhyABookIsNotShown()
{
    const ProgramFile english("tavike.hlp", "");
    mdlPublic.PathSep = "/";
    mdlPublic.HelpLanguage = 2;
    WhenShown user({[](QWidget& shown)
                    {
                        QCOMPARE(BoxText(shown), "The help file tavike.hlp is empty.");
                        QCOMPARE(dynamic_cast<QMessageBox&>(shown).icon(), QMessageBox::NoIcon);
                        Press(Qt::Key_Return)(shown);
                    }});
    ShowHelpContents(nullptr);
    QVERIFY(Viewers().isEmpty());
}
