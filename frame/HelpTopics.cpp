#include "frame/HelpTopics.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <QWidget>

#include <algorithm>
#include <array>

namespace
{

struct Topic
{
    const char* Name;
    const char* Anchor;
};

/// A cell of less stands for something else than a message.
constexpr qsizetype FewestCharacters = 5;

/// By the names of controls, frames and windows.
constexpr std::array Topics = {
    Topic{"fraChartType", "fields-chart-type"},
    Topic{"fraSelection", "fields-part"},
    Topic{"fraAxes", "fields-axes"},
    Topic{"fraCondition", "fields-conditions"},
    Topic{"fraParameter", "fields-parameter"},
    Topic{"cmdPlot", "fields-plot"},
    Topic{"frmLibrary", "fields"},
    Topic{"frmGraph", "windows"},
    Topic{"frmChartView", "windows-view"},
    Topic{"frmPicture", "windows-view"},
    Topic{"frmSetAxis", "windows-range"},
    Topic{"frmFind", "find-window"},
    Topic{"frmWaveform", "find-waveform"},
    Topic{"frmBom", "board-window"},
    Topic{"frmPrinting", "windows-print"},
    Topic{"frmAbout", "news"},
};

/// By the classes of dialogs that no window of the program tells of.
constexpr std::array Dialogs = {
    Topic{"QFileDialog", "data-save"},
    Topic{"QAbstractPrintDialog", "windows-print"},
};

QString TopicByName(const QString& name)
{
    const auto* const topic = std::ranges::find(Topics, name, &Topic::Name);
    return topic != Topics.end() ? QString::fromLatin1(topic->Anchor) : QString();
}

QString TopicByClass(const QWidget& widget)
{
    const auto* const topic = std::ranges::find_if(Dialogs, [&](const Topic& dialog)
                                                   { return widget.window()->inherits(dialog.Name); });
    return topic != Dialogs.end() ? QString::fromLatin1(topic->Anchor) : QString();
}

/// What a book marks as the program's own words.
bool IsTerminalType(const QTextCharFormat& format)
{
    return format.fontFamilies().toStringList().contains(QStringLiteral("monospace"));
}

/// How many characters of the message stand in the cell as its fixed words; 0 where one of these is not in
/// the message. Fixed words are set in the type of a terminal, values are not.
qsizetype FixedWords(const QTextTableCell& cell, const QString& message)
{
    qsizetype from = 0;
    qsizetype count = 0;
    for (auto block = cell.firstCursorPosition().block();
         block.isValid() && block.position() <= cell.lastPosition(); block = block.next())
    {
        for (auto part = block.begin(); part != block.end(); ++part)
        {
            const QString words = part.fragment().text().simplified();
            if (!IsTerminalType(part.fragment().charFormat()) || words.isEmpty())
            {
                continue;
            }
            const auto at = message.indexOf(words, from);
            if (at < 0)
            {
                return 0;
            }
            from = at + words.size();
            count += words.size();
        }
    }
    return count;
}

} // namespace

QString HelpTopicOf(const QWidget& control)
{
    for (const QWidget* widget = &control; widget != nullptr; widget = widget->parentWidget())
    {
        const QString topic = TopicByName(widget->objectName());
        if (!topic.isEmpty())
        {
            return topic;
        }
    }
    return TopicByClass(control);
}

std::optional<int> PlaceOfMessage(const QTextDocument& book, const QString& message)
{
    const QString text = message.simplified();
    std::optional<int> place;
    qsizetype most = FewestCharacters;
    for (auto* const frame : book.rootFrame()->childFrames())
    {
        const auto* const table = qobject_cast<const QTextTable*>(frame);
        for (int cell = 0; table != nullptr && cell < table->rows() * table->columns(); ++cell)
        {
            const auto shown = table->cellAt(cell / table->columns(), cell % table->columns());
            const auto count = FixedWords(shown, text);
            if (count > most)
            {
                most = count;
                place = shown.firstPosition();
            }
        }
    }
    return place;
}
