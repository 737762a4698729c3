#include "chart/LineDelegate.h"

#include "chart/LineTable.h"
#include "chart/drawing/LegendTable.h"

#include <QPainter>

/// How much of the colour of chosen rows a row has that the pointer is at.
static constexpr int HoverAlpha = 48;

void LineDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    const auto* const lines = static_cast<const LineTable*>(index.model());
    const int line = lines->LineOf(index.row());
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    const QString text = std::exchange(ground.text, {});
    ground.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, ground.widget);
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    if (scene.Hovered == line && !isChosen)
    {
        QColor tint = option.palette.color(QPalette::Highlight);
        tint.setAlpha(HoverAlpha);
        painter->fillRect(option.rect, tint);
    }
    if (lines->ColumnAt(index.column()) == CursorColumn::Number)
    {
        DrawLegendChip(line, option.rect, scene.Marks, *painter);
    }
    else
    {
        const auto group =
            option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        const auto role = isChosen ? QPalette::HighlightedText : QPalette::Text;
        const int blank = Blank(option.fontMetrics.height());
        painter->setPen(option.palette.color(group, role));
        painter->setFont(ground.font);
        painter->drawText(
            option.rect.adjusted(blank, 0, -blank, 0),
            static_cast<int>(ground.displayAlignment) | Qt::TextSingleLine,
            option.fontMetrics.elidedText(text, Qt::ElideRight, option.rect.width() - 2 * blank));
    }
    painter->restore();
}
