#include "frame/HelpBrowser.h"

#include "frame/HelpPictures.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QFileInfo>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

#include <algorithm>

static constexpr int SmallestZoom = -4;
static constexpr int LargestZoom = 16;
/// Pixels to the left of lists at the first size; the numbers of their items stand there.
static constexpr qreal ListIndent = 40;
/// More places than a reader looks through; marking them all would only cost time.
static constexpr int MostMarks = 1000;
/// The columns of a table are rounded to whole pixels each, and together wider than the page by that.
static constexpr int RoomForRounding = 3;
static constexpr QColor MarkColor(255, 230, 128);

HelpBrowser::HelpBrowser(QWidget* parent)
    : QTextBrowser(parent)
    , firstPointSize(font().pointSizeF())
{
    setOpenLinks(false);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    document()->documentLayout()->registerHandler(QTextFormat::ImageObject,
                                                  new HelpPictures(firstPointSize, this));
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this]
            {
                if (!keepsPlace)
                {
                    place = cursorForPosition(QPoint(0, 0)).position();
                }
            });
    // Later, since the page still brings a link that was chosen by key into view.
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::FollowLink, Qt::QueuedConnection);
}

void HelpBrowser::ShowBook(const QString& file, const QString& html)
{
    const QUrl shown = source().adjusted(QUrl::RemoveFragment);
    book = QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath());
    bookHtml = html;
    setSource(book, QTextDocument::HtmlResource);
    if (shown == book)
    {
        // An unchanged name is not read again by itself.
        reload();
    }
    clearHistory();
}

/// The book itself and local pictures; a book cannot make the viewer fetch anything else.
QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    const auto url = book.resolved(name);
    if (type == QTextDocument::HtmlResource)
    {
        return url == book ? QVariant(bookHtml) : QVariant();
    }
    const bool isFile = url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile();
    return type == QTextDocument::ImageResource && isFile ? QTextBrowser::loadResource(type, url)
                                                          : QVariant();
}

/// The cursor goes along, so that a search goes on from there and the way back leads there again.
void HelpBrowser::GoTo(const QUrl& place)
{
    setSource(place, QTextDocument::HtmlResource);
    setTextCursor(cursorForPosition(QPoint(0, 0)));
}

void HelpBrowser::FollowLink(const QUrl& link)
{
    const auto url = book.resolved(link);
    if (url.adjusted(QUrl::RemoveFragment) == book)
    {
        GoTo(url);
    }
    else if (url.scheme() == u"http" || url.scheme() == u"https" || url.scheme() == u"mailto")
    {
        QDesktopServices::openUrl(url);
    }
}

static QString AnchorOf(const QTextBlock& block)
{
    for (auto part = block.begin(); part != block.end(); ++part)
    {
        const auto names = part.fragment().charFormat().anchorNames();
        if (!names.isEmpty())
        {
            return names.constFirst();
        }
    }
    return {};
}

std::vector<HelpTopic> HelpBrowser::Topics() const
{
    std::vector<HelpTopic> topics;
    for (auto block = document()->begin(); block.isValid(); block = block.next())
    {
        const int level = block.blockFormat().headingLevel();
        if (level == 2 || level == 3)
        {
            topics.push_back({.title = block.text().simplified(),
                              .level = level,
                              .anchor = AnchorOf(block),
                              .position = block.position()});
        }
    }
    return topics;
}

void HelpBrowser::ShowTopic(const HelpTopic& topic)
{
    if (!topic.anchor.isEmpty())
    {
        auto url = book;
        url.setFragment(topic.anchor);
        GoTo(url);
        return;
    }
    // From the end upwards, the heading becomes the first line on the page.
    moveCursor(QTextCursor::End);
    auto cursor = textCursor();
    cursor.setPosition(topic.position);
    setTextCursor(cursor);
}

// Search.

int HelpBrowser::MarkAll(const QString& text)
{
    QList<QTextEdit::ExtraSelection> marks;
    for (auto place = document()->find(text); !place.isNull() && marks.size() < MostMarks;
         place = document()->find(text, place))
    {
        QTextEdit::ExtraSelection mark;
        mark.cursor = place;
        mark.format.setBackground(MarkColor);
        mark.format.setForeground(Qt::black);
        marks += mark;
    }
    setExtraSelections(marks);
    return static_cast<int>(marks.size());
}

int HelpBrowser::Find(const QString& text, QTextDocument::FindFlags flags)
{
    const int count = text.isEmpty() ? 0 : MarkAll(text);
    if (count > 0 && !find(text, flags))
    {
        moveCursor(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
        find(text, flags);
    }
    return count;
}

int HelpBrowser::FindTyped(const QString& text)
{
    auto cursor = textCursor();
    cursor.setPosition(cursor.selectionStart());
    setTextCursor(cursor);
    return Find(text, {});
}

void HelpBrowser::ClearMarks()
{
    setExtraSelections({});
    auto cursor = textCursor();
    cursor.clearSelection();
    setTextCursor(cursor);
}

// Zoom and size.

/// Changes how the text breaks into lines, with the line that stood at the top of the page still there. The
/// place stays the same through any number of changes.
void HelpBrowser::KeepPlace(const std::function<void()>& change)
{
    keepsPlace = true;
    change();
    QTextCursor top(document());
    top.setPosition(std::min(place, document()->characterCount() - 1));
    verticalScrollBar()->setValue(place == 0 ? 0 : verticalScrollBar()->value() + cursorRect(top).top());
    keepsPlace = false;
}

void HelpBrowser::resizeEvent(QResizeEvent* event)
{
    KeepPlace(
        [&]
        {
            QTextBrowser::resizeEvent(event);
            setLineWrapColumnOrWidth(viewport()->width() - RoomForRounding);
        });
}

void HelpBrowser::ZoomBy(int steps)
{
    zoomSteps = std::clamp(zoomSteps + steps, SmallestZoom, LargestZoom);
    auto zoomed = font();
    zoomed.setPointSizeF(firstPointSize + zoomSteps);
    KeepPlace(
        [&]
        {
            setFont(zoomed);
            document()->setIndentWidth(ListIndent * zoomed.pointSizeF() / firstPointSize);
        });
}

void HelpBrowser::ResetZoom()
{
    ZoomBy(-zoomSteps);
}

void HelpBrowser::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
    {
        QTextBrowser::wheelEvent(event);
        return;
    }
    const int turned = event->angleDelta().y();
    ZoomBy(turned > 0 ? 1 : turned < 0 ? -1 : 0);
    event->accept();
}
