#include "chart/LineDelegate.h"

#include "chart/LineTable.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/QtColors.h"

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
        PaintMark(line, QRectF(option.rect).adjusted(2, 1, -2, -1), *painter);
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

/// A piece of the line, and its badge at the right end, on white.
void LineDelegate::PaintMark(int line, const QRectF& chip, QPainter& painter) const
{
    const bool thick = scene.Hovered ? scene.Hovered == line : scene.Chosen == line;
    const double radius = std::min(badgeRadius * scene.TextSize, chip.height() / 2);
    const QPointF center(chip.right() - radius - 2, chip.center().y());
    const QColor color = QtColor(GetLineColor(line, ButtonTextColor()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(chip, 3, 3);
    QPen pen(color, (thick ? 3.5 : 1.5) * scene.TextSize / chartFontSize);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.drawLine(QPointF(chip.left() + 4, center.y()), QPointF(center.x() - radius, center.y()));
    DrawBadge(center, radius, scene.TextSize, line + 1, color, painter);
}
