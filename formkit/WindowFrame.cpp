#include "formkit/WindowFrame.h"

#include <QWidget>

QMargins FrameOf(const QWidget& window)
{
    const QRect outer = window.frameGeometry();
    const QRect inner = window.geometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

QRect CentredOver(const QWidget& other, const QSize& size, const QMargins& frame)
{
    const QMargins around = frame.isNull() ? FrameOf(other) : frame;
    const QSize whole = size.grownBy(around);
    const QRect over = other.frameGeometry();
    const QPoint corner(over.left() + (over.width() - whole.width()) / 2,
                        over.top() + (over.height() - whole.height()) / 2);
    return {corner + QPoint(around.left(), around.top()), size};
}
