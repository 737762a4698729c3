/// The help viewer with the books that come with the program: pictures, places, languages and keys. Run at
/// several scales of the screen.

#include "frame/HelpBrowser.h"
#include "frame/HelpPaper.h"
#include "frame/HelpPictures.h"
#include "frame/frmHelp.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>

class HelpPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void PicturesAreShownPixelForPixelOrSmooth();
    void PicturesTakeTheirPlace();
    void PicturesGrowWithTheText();
    void NumbersOfListsHaveRoomAtEverySize();
    void PicturesAreAsLargeOnPaper();
    void PagesKeepTogetherWhatBelongsTogether_data();
    void PagesKeepTogetherWhatBelongsTogether();
    void NothingIsToBeScrolledSideways_data();
    void NothingIsToBeScrolledSideways();
    void TopicsThatWindowsAskForFitTheirPage_data();
    void TopicsThatWindowsAskForFitTheirPage();
    void PlaceIsKept_data();
    void PlaceIsKept();
    void PlaceAtTheStartIsKept();
    void WindowBearsTheTitleOfTheBook_data();
    void WindowBearsTheTitleOfTheBook();
    void ToolsSpeakTheLanguageOfTheBook_data();
    void ToolsSpeakTheLanguageOfTheBook();
    void TabReachesEveryToolAndTheAnswer();
    void SpacePressesATool();
    void TheIndexIsReachedAndLeadsOn_data();
    void TheIndexIsReachedAndLeadsOn();
    void EveryLinkLeadsSomewhere_data();
    void EveryLinkLeadsSomewhere();
};

static frmHelp* Viewer()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
    {
        if (auto* viewer = qobject_cast<frmHelp*>(widget))
        {
            return viewer;
        }
    }
    return nullptr;
}

static frmHelp* Open(const QString& book)
{
    OpenHelp(book);
    QApplication::setActiveWindow(Viewer());
    QCoreApplication::processEvents();
    return Viewer();
}

static frmHelp* OpenBook(const char* name)
{
    return Open(QStringLiteral(HELP_BOOKS "/") + name);
}

static HelpBrowser* Page(const frmHelp* viewer)
{
    return viewer->findChild<HelpBrowser*>("txtBook");
}

void HelpPagesTest::cleanup()
{
    CloseHelp();
}

// ---- Pictures ----

/// Fine black and white squares, one pixel each.
static QImage FineSquares()
{
    QImage picture(200, 100, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
    {
        for (int x = 0; x < picture.width(); ++x)
        {
            picture.setPixelColor(x, y, (x + y) % 2 == 0 ? Qt::black : Qt::white);
        }
    }
    return picture;
}

/// A book that gives the squares half as much room as they have pixels.
static QString BookOfSquares(const QTemporaryDir& folder)
{
    FineSquares().save(folder.filePath("squares.png"));
    QFile book(folder.filePath("book.hlp"));
    if (book.open(QIODevice::WriteOnly))
    {
        book.write("<html><body><img width=\"100\" height=\"50\" src=\"squares.png\"/></body></html>");
    }
    return book.fileName();
}

/// What is shown of the page, in pixels of the screen, from the upper left corner of its picture.
static QImage ShownPicture(const HelpBrowser* page, const QSize& size)
{
    QImage shown = page->viewport()->grab().toImage();
    shown.setDevicePixelRatio(1);
    for (int y = 0; y < shown.height() / 2; ++y)
    {
        for (int x = 0; x < shown.width() / 2; ++x)
        {
            if (shown.pixelColor(x, y) != QColor(Qt::white))
            {
                return shown.copy(QRect(QPoint(x, y), size));
            }
        }
    }
    return {};
}

void HelpPagesTest::PicturesAreShownPixelForPixelOrSmooth()
{
    const QTemporaryDir folder;
    const frmHelp* viewer = Open(BookOfSquares(folder));
    const qreal scale = viewer->devicePixelRatioF();
    if (scale == 2)
    {
        const QImage expected = FineSquares();
        QCOMPARE(ShownPicture(Page(viewer), expected.size()), expected);
        return;
    }
    // Half of each: no pixel of it is left black or white.
    const QImage shown = ShownPicture(Page(viewer), (QSizeF(100, 50) * scale).toSize());
    for (const QPoint& place : {QPoint(10, 10), QPoint(11, 10), QPoint(50, 25), QPoint(90, 41)})
    {
        const int grey = shown.pixelColor(place).red();
        QVERIFY2(grey > 40 && grey < 215, qPrintable(QString::number(grey)));
    }
}

void HelpPagesTest::PicturesTakeTheirPlace()
{
    const QTemporaryDir folder;
    const frmHelp* viewer = Open(BookOfSquares(folder));
    const qreal height = Page(viewer)->document()->size().height();
    QVERIFY2(height >= 50 && height < 100, qPrintable(QString::number(height)));
}

void HelpPagesTest::PicturesGrowWithTheText()
{
    const QTemporaryDir folder;
    const frmHelp* viewer = Open(BookOfSquares(folder));
    auto* const page = viewer->findChild<HelpBrowser*>();
    const qreal pointSize = page->font().pointSizeF();
    page->ZoomBy(9);
    const qreal growth = page->font().pointSizeF() / pointSize;
    const qreal height = page->document()->size().height();
    QVERIFY2(height >= 50 * growth && height < 100 * growth, qPrintable(QString::number(height)));
    for (const int narrow : {130, 60})
    {
        page->setLineWrapColumnOrWidth(narrow);
        QVERIFY(page->document()->idealWidth() <= narrow);
    }
    page->setLineWrapColumnOrWidth(600);
    page->ZoomBy(-13);
    QVERIFY(page->document()->size().height() >= 50);
}

void HelpPagesTest::NumbersOfListsHaveRoomAtEverySize()
{
    const QTemporaryDir folder;
    const frmHelp* viewer = Open(BookOfSquares(folder));
    auto* const page = viewer->findChild<HelpBrowser*>();
    for (const int steps : {0, 10, 6, -20})
    {
        page->ZoomBy(steps);
        const qreal needed = QFontMetricsF(page->font()).horizontalAdvance(QStringLiteral("24. "));
        QVERIFY2(page->document()->indentWidth() >= needed, qPrintable(QString::number(needed)));
    }
}

void HelpPagesTest::PicturesAreAsLargeOnPaper()
{
    static constexpr int ScreenDots = 96;
    QImage paper(8, 8, QImage::Format_RGB32);
    paper.setDotsPerMeterX(qRound(10 * ScreenDots / 0.0254));
    paper.setDotsPerMeterY(qRound(10 * ScreenDots / 0.0254));
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setHtml("<img width=\"100\" height=\"50\" src=\"squares.png\"/>");
    auto* const layout = document.documentLayout();
    layout->registerHandler(QTextFormat::ImageObject,
                            new HelpPictures(document.defaultFont().pointSizeF(), layout));
    layout->setPaintDevice(&paper);
    document.setTextWidth(5000);
    QVERIFY2(std::abs(document.idealWidth() - 1000) < 20, qPrintable(QString::number(document.idealWidth())));
    document.setTextWidth(800);
    QVERIFY2(document.idealWidth() <= 800, qPrintable(QString::number(document.idealWidth())));
}

void HelpPagesTest::PagesKeepTogetherWhatBelongsTogether_data()
{
    QTest::addColumn<QString>("kept");
    QTest::newRow("heading and text") << "<h2>first</h2><h3>A heading</h3><p>last</p>";
    QTest::newRow("table")
        << "<table><tr><td>first</td></tr><tr><td>2</td></tr><tr><td>last</td></tr></table>";
    QTest::newRow("heading and table")
        << "<h3>first</h3><table><tr><td>1</td></tr><tr><td>last</td></tr></table>";
    QTest::newRow("code") << "<pre>first\nmore\nlast</pre>";
}

void HelpPagesTest::PagesKeepTogetherWhatBelongsTogether()
{
    QFETCH(QString, kept);
    bool isCutWithoutBreaks = false;
    for (int lines = 1; lines < 30; ++lines)
    {
        QTextDocument document;
        document.setHtml(QString("<p>line</p>").repeated(lines) + kept + QString("<p>line</p>").repeated(9));
        document.setPageSize(QSizeF(400, 300));
        const auto pageOf = [&document](const char* text)
        {
            const auto block = document.find(text).block();
            const qreal top = document.documentLayout()->blockBoundingRect(block).top();
            return static_cast<int>((top + block.layout()->lineAt(0).rect().center().y()) / 300);
        };
        isCutWithoutBreaks = isCutWithoutBreaks || pageOf("first") != pageOf("last");
        BreakPages(document);
        QCOMPARE(pageOf("first"), pageOf("last"));
    }
    QVERIFY(isCutWithoutBreaks);
}

// ---- Size and place ----

static void AddBooks()
{
    QTest::addColumn<QByteArray>("book");
    QTest::newRow("English") << QByteArray("tavike.hlp");
    QTest::newRow("Japanese") << QByteArray("tavikj.hlp");
}

void HelpPagesTest::NothingIsToBeScrolledSideways_data()
{
    AddBooks();
}

void HelpPagesTest::NothingIsToBeScrolledSideways()
{
    QFETCH(QByteArray, book);
    const frmHelp* viewer = OpenBook(book);
    // The page is laid out to its end only as it comes into view.
    Page(viewer)->moveCursor(QTextCursor::End);
    QVERIFY(Page(viewer)->document()->size().height() > 10000);
    QCOMPARE(Page(viewer)->horizontalScrollBar()->maximum(), 0);
    QVERIFY(!Page(viewer)->horizontalScrollBar()->isVisible());
    QVERIFY(Page(viewer)->verticalScrollBar()->maximum() > 0);
}

void HelpPagesTest::TopicsThatWindowsAskForFitTheirPage_data()
{
    QTest::addColumn<QByteArray>("book");
    QTest::addColumn<QString>("anchor");
    for (const QByteArray book : {"tavike.hlp", "tavikj.hlp"})
    {
        for (const QString anchor : {"find", "windows-view", "glossary"})
        {
            QTest::newRow(book + ' ' + anchor.toLatin1()) << book << anchor;
        }
    }
}

void HelpPagesTest::TopicsThatWindowsAskForFitTheirPage()
{
    QFETCH(QByteArray, book);
    QFETCH(QString, anchor);
    // As F1 does: the page is asked for before the window has been painted.
    const QString file = QStringLiteral(HELP_BOOKS "/") + book;
    OpenHelp(file);
    ShowHelpTopic(anchor);
    frmHelp* viewer = Viewer();
    QVERIFY(QTest::qWaitForWindowExposed(viewer));
    QCoreApplication::processEvents();
    QCOMPARE(viewer->width(), 920);
    QVERIFY(Page(viewer)->verticalScrollBar()->value() > 0);
    QCOMPARE(Page(viewer)->horizontalScrollBar()->maximum(), 0);
}

/// The text of the first line on the page.
static QString FirstLine(const frmHelp* viewer)
{
    return Page(viewer)->cursorForPosition(QPoint(0, 4)).block().text().simplified();
}

void HelpPagesTest::PlaceIsKept_data()
{
    QTest::addColumn<int>("topic");
    for (const int topic : {3, 12, 25, 40})
    {
        QTest::newRow(qPrintable(QString::number(topic))) << topic;
    }
}

void HelpPagesTest::PlaceIsKept()
{
    QFETCH(int, topic);
    frmHelp* viewer = OpenBook("tavike.hlp");
    auto* page = Page(viewer);
    const HelpTopic shown = page->Topics().at(static_cast<std::size_t>(topic));
    page->ShowTopic(shown);
    QCOMPARE(FirstLine(viewer), shown.title);
    const int first = page->verticalScrollBar()->value();
    for (int step = 0; step < 6; ++step)
    {
        QTest::keyClick(viewer, Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(FirstLine(viewer), shown.title);
    }
    for (const int width : {700, 760, 1200, 640})
    {
        viewer->resize(width, 640);
        QCoreApplication::processEvents();
        QCOMPARE(FirstLine(viewer), shown.title);
    }
    viewer->resize(920, 640);
    QTest::keyClick(viewer, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(FirstLine(viewer), shown.title);
    QVERIFY(std::abs(page->verticalScrollBar()->value() - first) <= 4);
}

void HelpPagesTest::PlaceAtTheStartIsKept()
{
    frmHelp* viewer = OpenBook("tavike.hlp");
    QTest::keyClick(viewer, Qt::Key_Plus, Qt::ControlModifier);
    viewer->resize(700, 500);
    QCoreApplication::processEvents();
    QCOMPARE(Page(viewer)->verticalScrollBar()->value(), 0);
}

// ---- Languages ----

void HelpPagesTest::WindowBearsTheTitleOfTheBook_data()
{
    QTest::addColumn<QByteArray>("book");
    QTest::addColumn<QString>("title");
    const QString library = " - Halvex Chip Capacitor Characteristics Data Library";
    QTest::newRow("English") << QByteArray("tavike.hlp") << "Help" + library;
    QTest::newRow("Japanese") << QByteArray("tavikj.hlp") << QStringLiteral("ヘルプ") + library;
}

void HelpPagesTest::WindowBearsTheTitleOfTheBook()
{
    QFETCH(QByteArray, book);
    QFETCH(QString, title);
    QCOMPARE(OpenBook(book)->windowTitle(), title);
}

void HelpPagesTest::ToolsSpeakTheLanguageOfTheBook_data()
{
    QTest::addColumn<QByteArray>("book");
    QTest::addColumn<QStringList>("tools");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("answers");
    QTest::newRow("English") << QByteArray("tavike.hlp")
                             << QStringList{"Start", "Index", "Back",     "Forward",  "A−",
                                            "A",     "A+",    "Print...", "Previous", "Next"}
                             << "Search the help" << QStringList{"Not found", "Found once", "Found %1 times"};
    QTest::newRow("Japanese") << QByteArray("tavikj.hlp")
                              << QStringList{"先頭", "索引", "戻る",    "進む", "A−",
                                             "A",    "A+",   "印刷...", "前へ", "次へ"}
                              << "ヘルプを検索"
                              << QStringList{"見つかりません", "1か所見つかりました", "%1か所見つかりました"};
}

static QString Answer(frmHelp* viewer, const QString& text)
{
    auto* box = viewer->findChild<QLineEdit*>("txtFind");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
    return viewer->findChild<QLabel*>("lblFound")->text();
}

void HelpPagesTest::ToolsSpeakTheLanguageOfTheBook()
{
    QFETCH(QByteArray, book);
    QFETCH(QStringList, tools);
    QFETCH(QString, search);
    QFETCH(QStringList, answers);
    // A book of the other language has been shown before.
    OpenBook(book == "tavike.hlp" ? "tavikj.hlp" : "tavike.hlp");
    frmHelp* viewer = OpenBook(book);
    QStringList shown;
    for (QAction* action : viewer->findChild<QToolBar*>("tbrHelp")->actions())
    {
        if (!action->text().isEmpty())
        {
            shown << action->text();
            QVERIFY(action->toolTip().contains('('));
        }
    }
    QCOMPARE(shown, tools);
    QCOMPARE(viewer->findChild<QLineEdit*>("txtFind")->placeholderText(), search);
    QCOMPARE(Answer(viewer, "xyzzy"), answers[0]);
    QCOMPARE(Answer(viewer, "682ZA01"), answers[1]);
    const QString often = Answer(viewer, "DC Bias");
    const auto count = Page(viewer)->extraSelections().size();
    QVERIFY(count > 1);
    QCOMPARE(often, answers[2].arg(count));
}

// ---- Keys ----

void HelpPagesTest::TabReachesEveryToolAndTheAnswer()
{
    frmHelp* viewer = OpenBook("tavike.hlp");
    Page(viewer)->ShowTopic(Page(viewer)->Topics().at(3));
    Page(viewer)->ShowTopic(Page(viewer)->Topics().at(5));
    QTest::keyClick(viewer, Qt::Key_Left, Qt::AltModifier);
    QVERIFY(Answer(viewer, "bias").startsWith("Found"));
    QList<QWidget*> wanted = {viewer->findChild<QLabel*>("lblFound"),
                              viewer->findChild<QLineEdit*>("txtFind"),
                              viewer->findChild<QTreeWidget*>("treContents"), Page(viewer)};
    for (auto* button :
         viewer->findChild<QToolBar*>("tbrHelp")->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly))
    {
        if (button->isVisible())
        {
            QVERIFY2(button->isEnabled(), qPrintable(button->text()));
            wanted << button;
        }
    }
    QCOMPARE(wanted.size(), 4 + 10);
    // The page has links of its own on the way.
    for (int i = 0; i < 1000 && !wanted.isEmpty(); ++i)
    {
        wanted.removeAll(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QVERIFY2(wanted.isEmpty(), qPrintable(wanted.isEmpty() ? QString() : QDebug::toString(wanted.front())));
    // Without an answer there is nothing to stop at.
    Answer(viewer, "b");
    QTest::keyClick(viewer->findChild<QLineEdit*>("txtFind"), Qt::Key_Backspace);
    QCOMPARE(viewer->findChild<QLabel*>("lblFound")->focusPolicy(), Qt::NoFocus);
}

void HelpPagesTest::SpacePressesATool()
{
    frmHelp* viewer = OpenBook("tavike.hlp");
    const qreal before = Page(viewer)->font().pointSizeF();
    const auto* bar = viewer->findChild<QToolBar*>("tbrHelp");
    QWidget* larger = bar->widgetForAction(viewer->findChild<QAction*>("mnuZoomIn"));
    larger->setFocus(Qt::TabFocusReason);
    QTest::keyClick(larger, Qt::Key_Space);
    QCOMPARE(Page(viewer)->font().pointSizeF(), before + 1);
}

// ---- Index ----

void HelpPagesTest::TheIndexIsReachedAndLeadsOn_data()
{
    QTest::addColumn<QByteArray>("book");
    QTest::addColumn<QString>("index");
    QTest::addColumn<QString>("word");
    QTest::newRow("English") << QByteArray("tavike.hlp") << "Index"
                             << "snubber";
    QTest::newRow("Japanese") << QByteArray("tavikj.hlp") << QStringLiteral("索引")
                              << QStringLiteral("スナバ");
}

void HelpPagesTest::TheIndexIsReachedAndLeadsOn()
{
    QFETCH(QByteArray, book);
    QFETCH(QString, index);
    QFETCH(QString, word);
    frmHelp* viewer = OpenBook(book);
    QTest::keyClick(viewer, Qt::Key_I, Qt::ControlModifier);
    auto* page = Page(viewer);
    QVERIFY2(FirstLine(viewer).endsWith(". " + index), qPrintable(FirstLine(viewer)));
    // From the index on, the word is an entry; the link behind it leads to its section.
    QVERIFY(page->find(word + ": "));
    QTextCursor link = page->textCursor();
    link.movePosition(QTextCursor::EndOfBlock);
    const QString address = link.charFormat().anchorHref();
    QCOMPARE(address, "#loads-snubber");
    Q_EMIT page->anchorClicked(QUrl(address));
    QTRY_VERIFY2(FirstLine(viewer).contains(word, Qt::CaseInsensitive), qPrintable(FirstLine(viewer)));
}

void HelpPagesTest::EveryLinkLeadsSomewhere_data()
{
    AddBooks();
}

/// As the page knows its links and places, not as the book spells them.
void HelpPagesTest::EveryLinkLeadsSomewhere()
{
    QFETCH(QByteArray, book);
    QSet<QString> places;
    QSet<QString> links;
    const auto* const document = Page(OpenBook(book))->document();
    for (auto block = document->begin(); block.isValid(); block = block.next())
    {
        for (auto part = block.begin(); part != block.end(); ++part)
        {
            const auto format = part.fragment().charFormat();
            for (const QString& name : format.anchorNames())
            {
                places << '#' + name;
            }
            links << format.anchorHref();
        }
    }
    links.remove(QString());
    QVERIFY(links.size() > 80);
    QVERIFY2(places.contains(links), qPrintable(QStringList((links - places).values()).join(' ')));
}

QTEST_MAIN(HelpPagesTest)
#include "HelpPagesTest.moc"
