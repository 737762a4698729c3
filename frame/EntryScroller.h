#pragma once

/// Rows of entries that scroll where the window is small.

#include <QScrollArea>

/// As high as its contents, and higher by a scroll bar where the window is narrower than they are.
class EntryScroller : public QScrollArea
{
    Q_OBJECT

public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override;
    /// Scrolls so that the whole of an entry is seen.
    void ShowWhole(const QWidget& entry);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};
