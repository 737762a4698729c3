#pragma once

/// The cells of the table of a chart view.

#include "chart/ChartCanvas.h"

#include <QStyledItemDelegate>

/// Paints the cells: the number of a line as the chart shows it, a piece of the line and its badge, on a
/// white ground on every desktop; the row of the line that the pointer is at stands out.
class LineDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The scene must outlive the delegate.
    LineDelegate(const ViewScene& shownScene, QObject* parent)
        : QStyledItemDelegate(parent)
        , scene(shownScene)
    {
    }

    /// Blank on either side of a text, in pixels, for a height of text.
    static int Blank(int textHeight) { return textHeight / 3; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const ViewScene& scene;
};
