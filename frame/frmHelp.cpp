#include "frame/frmHelp.h"

#include "formkit/ClosesWith.h"
#include "formkit/HourglassScope.h"
#include "formkit/Messages.h"
#include "formkit/RunCommand.h"
#include "frame/AskForPrinter.h"
#include "frame/HelpBook.h"
#include "frame/HelpPaper.h"
#include "frame/HelpTopics.h"
#include "frame/PrintJob.h"
#include "frame/PrinterHost.h"
#include "frame/StartPlace.h"
#include "ui_frmHelp.h"

#include <QKeyEvent>
#include <QPointer>
#include <QPrinter>
#include <QShortcut>
#include <QToolButton>
#include <QWindow>

#include <algorithm>

static QPointer<frmHelp> viewer;

void OpenHelp(const QString& bookFile, QWidget* owner, const QString& searchFor)
{
    const auto html = ReadHelpBook(bookFile);
    if (viewer.isNull())
    {
        viewer = new frmHelp;
    }
    viewer->ShowBook(bookFile, html);
    viewer->SearchFor(searchFor);
    if (owner != nullptr)
    {
        viewer->CloseWith(owner->window());
    }
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
}

void ShowHelpTopic(const QString& anchor)
{
    if (!viewer.isNull())
    {
        viewer->ShowTopic(anchor);
    }
}

void ShowMessageInHelp(const QString& message)
{
    if (!viewer.isNull())
    {
        viewer->ShowMessage(message);
    }
}

void CloseHelp()
{
    delete viewer.data();
}

static constexpr int ContentsWidth = 240;
static constexpr int PageWidth = 660;
static constexpr int TopicRole = Qt::UserRole;
/// The chapter of a book that lists its words.
static const QString IndexTopic = QStringLiteral("index");
/// The chapter that explains messages.
static const QString MessagesTopic = QStringLiteral("messages");

frmHelp::frmHelp()
    : ui(std::make_unique<Ui::frmHelp>())
{
    ui->setupUi(this);
    new StartPlace(this, size());
    // The program ends with its main window, also while help is open.
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    ui->splPages->setSizes({ContentsWidth, PageWidth});
    ui->splPages->setStretchFactor(1, 1);
    // Search box and answer stand behind the buttons, which then stay where they are.
    const auto searchBox = ui->tbrHelp->actions().first(2);
    ui->tbrHelp->addActions(searchBox);
    LetTabReachTheTools();
    Connect();
}

frmHelp::~frmHelp() = default;

void frmHelp::Connect()
{
    auto* const page = ui->txtBook;
    connect(ui->mnuBack, &QAction::triggered, page, &QTextBrowser::backward);
    connect(ui->mnuForward, &QAction::triggered, page, &QTextBrowser::forward);
    connect(page, &QTextBrowser::backwardAvailable, ui->mnuBack, &QAction::setEnabled);
    connect(page, &QTextBrowser::forwardAvailable, ui->mnuForward, &QAction::setEnabled);
    connect(ui->mnuHome, &QAction::triggered, this, &frmHelp::GoHome);
    connect(ui->mnuIndex, &QAction::triggered, this, [this] { ShowTopic(IndexTopic); });
    connect(ui->mnuZoomIn, &QAction::triggered, page, [page] { page->ZoomBy(1); });
    connect(ui->mnuZoomOut, &QAction::triggered, page, [page] { page->ZoomBy(-1); });
    connect(ui->mnuZoomReset, &QAction::triggered, page, &HelpBrowser::ResetZoom);
    connect(ui->mnuPrint, &QAction::triggered, this, &frmHelp::Print);
    connect(ui->mnuFindNext, &QAction::triggered, this, &frmHelp::FindNext);
    connect(ui->mnuFindPrevious, &QAction::triggered, this, &frmHelp::FindPrevious);
    connect(ui->treContents, &QTreeWidget::itemActivated, this, &frmHelp::ShowTopicOf);
    connect(ui->treContents, &QTreeWidget::itemClicked, this, &frmHelp::ShowTopicOf);

    connect(ui->txtFind, &QLineEdit::textEdited, this,
            [this](const QString& text) { TellPlaces(ui->txtBook->FindTyped(text)); });
    connect(ui->txtFind, &QLineEdit::returnPressed, this, &frmHelp::FindNext);
    ui->txtFind->installEventFilter(this);

    const auto onKey = [this](const QKeySequence& keys, auto command)
    { connect(new QShortcut(keys, this), &QShortcut::activated, this, command); };
    onKey(QKeySequence::Find,
          [this]
          {
              ui->txtFind->setFocus(Qt::ShortcutFocusReason);
              ui->txtFind->selectAll();
          });
    onKey(Qt::Key_Escape, [this] { Escape(); });
    // The plus sign shares its key with the equals sign on many keyboards.
    onKey(Qt::CTRL | Qt::Key_Equal, [page] { page->ZoomBy(1); });
}

void frmHelp::ShowBook(const QString& file, const QString& html)
{
    words = HelpWordsOf(html);
    ShowWords();
    ui->txtBook->ShowBook(file, html);
    const auto title = ui->txtBook->documentTitle();
    setWindowTitle(title.isEmpty() ? ProgramTitle() : title);
    FillContents();
    ui->txtFind->clear();
    ui->lblFound->clear();
    ui->txtBook->setFocus();
}

void frmHelp::SearchFor(const QString& text)
{
    ui->txtFind->setText(text);
    if (!text.isEmpty())
    {
        FindNext();
    }
}

/// The tools and answers speak the language of the book.
void frmHelp::ShowWords()
{
    const auto show = [](QAction* action, const QString& text, const QString& tip)
    {
        action->setText(text);
        action->setToolTip(tip);
    };
    show(ui->mnuHome, words.Start, words.StartTip);
    show(ui->mnuIndex, words.Index, words.IndexTip);
    show(ui->mnuBack, words.Back, words.BackTip);
    show(ui->mnuForward, words.Forward, words.ForwardTip);
    show(ui->mnuPrint, words.Print, words.PrintTip);
    show(ui->mnuFindPrevious, words.Previous, words.PreviousTip);
    show(ui->mnuFindNext, words.Next, words.NextTip);
    ui->mnuZoomOut->setToolTip(words.SmallerTip);
    ui->mnuZoomReset->setToolTip(words.NormalTip);
    ui->mnuZoomIn->setToolTip(words.LargerTip);
    ui->txtFind->setPlaceholderText(words.Search);
    ui->txtFind->setAccessibleName(words.Search);
    ui->treContents->setAccessibleName(words.Contents);
    ui->txtBook->setAccessibleName(words.Page);
    ui->tbrHelp->setWindowTitle(words.Tools);
}

/// A tool bar keeps its buttons to the mouse otherwise.
void frmHelp::LetTabReachTheTools()
{
    for (QAction* action : ui->tbrHelp->actions())
    {
        if (auto* button = qobject_cast<QToolButton*>(ui->tbrHelp->widgetForAction(action)))
        {
            button->setFocusPolicy(Qt::TabFocus);
        }
    }
    // An answer can be gone through, and copied, by keys.
    ui->lblFound->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    ui->lblFound->setFocusPolicy(Qt::NoFocus);
}

void frmHelp::FillContents()
{
    ui->treContents->clear();
    topics = ui->txtBook->Topics();
    QTreeWidgetItem* chapter = nullptr;
    for (std::size_t i = 0; i < topics.size(); ++i)
    {
        auto* const item = new QTreeWidgetItem({topics[i].title});
        item->setData(0, TopicRole, static_cast<int>(i));
        item->setToolTip(0, topics[i].title);
        if (topics[i].level == 2 || chapter == nullptr)
        {
            ui->treContents->addTopLevelItem(item);
            chapter = item;
        }
        else
        {
            chapter->addChild(item);
        }
    }
    ui->treContents->expandAll();
    ui->mnuIndex->setEnabled(std::ranges::find(topics, IndexTopic, &HelpTopic::anchor) != topics.end());
}

void frmHelp::ShowTopicOf(const QTreeWidgetItem* item)
{
    const auto topic = static_cast<std::size_t>(item->data(0, TopicRole).toInt());
    ui->txtBook->ShowTopic(topics.at(topic));
}

void frmHelp::ShowTopic(const QString& anchor)
{
    const auto topic = std::ranges::find(topics, anchor, &HelpTopic::anchor);
    if (topic != topics.end())
    {
        ui->txtBook->ShowTopic(*topic);
    }
}

void frmHelp::ShowMessage(const QString& message)
{
    if (const auto place = PlaceOfMessage(*ui->txtBook->document(), message))
    {
        ui->txtBook->ShowTopic({.title = message, .level = 3, .anchor = {}, .position = *place});
        return;
    }
    ShowTopic(MessagesTopic);
}

void frmHelp::GoHome()
{
    ui->txtBook->moveCursor(QTextCursor::Start);
    ui->txtBook->home();
    ui->txtBook->setFocus();
}

// Search.

void frmHelp::FindNext()
{
    TellPlaces(ui->txtBook->Find(ui->txtFind->text(), {}));
}

void frmHelp::FindPrevious()
{
    TellPlaces(ui->txtBook->Find(ui->txtFind->text(), QTextDocument::FindBackward));
}

void frmHelp::TellPlaces(int count)
{
    const auto text = ui->txtFind->text();
    if (count == 0)
    {
        ui->txtBook->ClearMarks();
    }
    ui->lblFound->setText(text.isEmpty() ? QString()
                          : count == 0   ? words.NotFound
                          : count == 1   ? words.FoundOnce
                                         : words.FoundTimes.arg(count));
    ui->lblFound->setFocusPolicy(text.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
}

/// Leaves the search first, then the viewer.
void frmHelp::Escape()
{
    if (ui->txtFind->hasFocus() || !ui->txtFind->text().isEmpty())
    {
        ui->txtFind->clear();
        TellPlaces(0);
        ui->txtBook->setFocus();
        return;
    }
    close();
}

void frmHelp::Print()
{
    RunCommand(this,
               [this]
               {
                   QPrinter ownPrinter(QPrinter::HighResolution);
                   QPrinter& printer = printers != nullptr ? printers->Printer() : ownPrinter;
                   if (AskForPrinter(printer, {}, 0, {}, this))
                   {
                       const HourglassScope hourglass;
                       PrintPages(
                           printer, [this](QPrinter& pages) { PrintBook(*ui->txtBook->document(), pages); },
                           windowTitle());
                   }
               });
}

// The window.

void frmHelp::CloseWith(QWidget* window)
{
    printers = dynamic_cast<PrinterHost*>(window);
    if (owner != window)
    {
        delete closing;
        owner = window;
        closing = new ClosesWith(*this, *window);
        printers = dynamic_cast<PrinterHost*>(window);
    }
}

/// A window in front of everything else lets those alone be used that belong to it. The viewer belongs to it
/// for that time, without being its child: it is there when the other one goes.
void frmHelp::StayUsable()
{
    QWindow* const front = QGuiApplication::modalWindow();
    // A box or dialog of the viewer's own belongs to it: the two must not belong to each other.
    if (front == nullptr || front == windowHandle() ||
        windowHandle()->isAncestorOf(front, QWindow::IncludeTransients))
    {
        return;
    }
    windowHandle()->setTransientParent(front);
    // Later, when the other one blocks nothing any more; another one may stand behind it.
    connect(
        front, &QWindow::visibleChanged, this,
        [this]
        {
            windowHandle()->setTransientParent(nullptr);
            StayUsable();
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

bool frmHelp::event(QEvent* event)
{
    const bool done = QMainWindow::event(event);
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::Show)
    {
        StayUsable();
    }
    return done;
}

bool frmHelp::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui->txtFind)
    {
        const auto* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
        const bool isReturn = key != nullptr && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
        if (isReturn && key->modifiers().testFlag(Qt::ShiftModifier))
        {
            FindPrevious();
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}
