#pragma once

/// Lines that may be many, in a low place.

#include <QScrollArea>

/// As high as its lines, up to a few of them; further ones are scrolled to, by the keyboard, too.
class NoticeScroller : public QScrollArea
{
    Q_OBJECT

public:
    explicit NoticeScroller(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};
