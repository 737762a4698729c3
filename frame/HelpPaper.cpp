#include "frame/HelpPaper.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPagedPaintDevice>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <memory>

namespace
{
/// What is longer than this share of a page may go on overleaf.
constexpr qreal MostKept = 0.6;
constexpr qreal MarginCentimetres = 2;
constexpr qreal CentimetresToTheInch = 2.54;

bool IsHeading(const QTextBlock& block)
{
    return block.blockFormat().headingLevel() > 0;
}

/// A line of code, which is a block of the text by itself; the name of a file above it, too.
bool IsCode(const QTextBlock& block)
{
    const auto begin = block.begin();
    return !begin.atEnd() && begin.fragment().length() == block.length() - 1 &&
           begin.fragment().charFormat().fontFamilies().toStringList().contains(
               QStringLiteral("monospace")) &&
           block.textList() == nullptr;
}

QTextTable* TableOf(const QTextBlock& block)
{
    return QTextCursor(block).currentTable();
}

/// Sets breaks between the pages of a book that is laid out on them.
class Pages
{
public:
    explicit Pages(QTextDocument& document)
        : book(document)
        , layout(*document.documentLayout())
    {
    }

    void Break()
    {
        for (auto block = book.begin(); block.isValid(); block = After(block))
        {
            const qreal top = TopOf(block);
            const qreal bottom = BottomOfKept(block);
            if (PageOf(top) != PageOf(bottom) && bottom - top < MostKept * book.pageSize().height())
            {
                BreakBefore(block);
            }
        }
    }

private:
    int PageOf(qreal y) const { return static_cast<int>(std::floor(y / book.pageSize().height())); }

    /// The block behind a group that is kept together.
    static QTextBlock After(const QTextBlock& block)
    {
        if (const auto* const table = TableOf(block))
        {
            return table->lastCursorPosition().block().next();
        }
        return IsHeading(block) ? EndOfHeadings(block) : IsCode(block) ? EndOfCode(block) : block.next();
    }

    static QTextBlock EndOfHeadings(QTextBlock block)
    {
        while (block.isValid() && IsHeading(block))
        {
            block = block.next();
        }
        return block;
    }

    static QTextBlock EndOfCode(QTextBlock block)
    {
        while (block.isValid() && IsCode(block) && TableOf(block) == nullptr)
        {
            block = block.next();
        }
        return block;
    }

    /// Where what must stand on one page with the beginning of a block ends.
    qreal BottomOfKept(const QTextBlock& block) const
    {
        if (IsHeading(block))
        {
            const auto next = EndOfHeadings(block);
            return next.isValid() ? BottomOfKept(next) : BottomOf(block);
        }
        if (auto* const table = TableOf(block))
        {
            const auto whole = layout.frameBoundingRect(table);
            return IsShort(whole.height()) || table->rows() < 2 ? whole.bottom() : BottomOfRow(*table, 1);
        }
        const auto last = IsCode(block) ? EndOfCode(block).previous() : block;
        const qreal bottom = BottomOf(last.isValid() ? last : book.lastBlock());
        const bool isWhole = IsCode(block) && IsShort(bottom - TopOf(block));
        return isWhole ? bottom : LineOf(block, 0).bottom();
    }

    bool IsShort(qreal height) const { return height < MostKept * book.pageSize().height(); }

    qreal BottomOfRow(const QTextTable& table, int row) const
    {
        qreal bottom = 0;
        for (int column = 0; column < table.columns(); ++column)
        {
            const auto last = table.cellAt(row, column).lastCursorPosition().block();
            bottom = std::max(bottom, BottomOf(last));
        }
        return bottom;
    }

    QRectF LineOf(const QTextBlock& block, int line) const
    {
        const auto rect = layout.blockBoundingRect(block);
        const auto* const lines = block.layout();
        return line < 0 || line >= lines->lineCount() ? rect
                                                      : lines->lineAt(line).rect().translated(rect.topLeft());
    }

    qreal TopOf(const QTextBlock& block) const { return LineOf(block, 0).top(); }

    qreal BottomOf(const QTextBlock& block) const
    {
        return LineOf(block, block.layout()->lineCount() - 1).bottom();
    }

    static void BreakBefore(const QTextBlock& block)
    {
        if (auto* const table = TableOf(block))
        {
            auto format = table->format();
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            table->setFormat(format);
            return;
        }
        QTextBlockFormat format;
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).mergeBlockFormat(format);
    }

    QTextDocument& book;
    QAbstractTextDocumentLayout& layout;
};

/// Lays a book out as it is printed later.
void LayOut(QTextDocument& book, const QTextDocument& shown, QPagedPaintDevice& paper)
{
    auto* const pictures = shown.documentLayout()->handlerForObject(QTextFormat::ImageObject);
    book.documentLayout()->registerHandler(QTextFormat::ImageObject, dynamic_cast<QObject*>(pictures));
    book.documentLayout()->setPaintDevice(&paper);
    auto page = book.rootFrame()->frameFormat();
    page.setMargin(std::floor(MarginCentimetres / CentimetresToTheInch *
                              QGuiApplication::primaryScreen()->logicalDotsPerInchY()));
    book.rootFrame()->setFrameFormat(page);
    book.setPageSize(QSizeF(paper.width(), paper.height()));
}
} // namespace

void BreakPages(QTextDocument& document)
{
    Pages(document).Break();
}

void PrintBook(QTextDocument& book, QPagedPaintDevice& paper)
{
    // The pictures come from the book that it is a copy of.
    const std::unique_ptr<QTextDocument> printed(book.clone(&book));
    LayOut(*printed, book, paper);
    BreakPages(*printed);
    // Without pages of its own the copy is printed with margins and page numbers.
    printed->setPageSize({});
    printed->print(&paper);
}
