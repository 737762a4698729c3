#pragma once

/// The page of the help viewer: shows one book and nothing else.

#include <QTextBrowser>

#include <functional>
#include <vector>

/// One heading of a book.
struct HelpTopic
{
    QString title;
    /// 2 for a chapter, 3 for a section in it.
    int level;
    /// Name to jump to; empty when the heading has none.
    QString anchor;
    /// Where the heading begins in the text.
    int position;
};

/// A page with zoom and search. Links stay inside the book or go to the desktop's browser; pictures come
/// from the book's own folder, and nothing is fetched from anywhere else.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// Shows a book from its start; `html` is its text, `file` says where its pictures are.
    void ShowBook(const QString& file, const QString& html);
    /// The chapters and sections, in the order of the book.
    std::vector<HelpTopic> Topics() const;
    void ShowTopic(const HelpTopic& topic);

    /// Marks every place of `text`, and selects the next one from where the last search stood; the search
    /// goes round at the end. Returns how many places there are; 0 selects nothing.
    int Find(const QString& text, QTextDocument::FindFlags flags);
    /// The same from the start of the current place on, while the text is being typed.
    int FindTyped(const QString& text);
    void ClearMarks();

    void ZoomBy(int steps);
    void ResetZoom();

protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QVariant loadResource(int type, const QUrl& name) override;

private:
    void GoTo(const QUrl& place);
    void FollowLink(const QUrl& link);
    int MarkAll(const QString& text);
    void KeepPlace(const std::function<void()>& change);

    QUrl book;
    QString bookHtml;
    qreal firstPointSize;
    int zoomSteps = 0;
    /// The character at the top of the page, where the reader has come to.
    int place = 0;
    bool keepsPlace = false;
};
