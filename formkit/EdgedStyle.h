#pragma once

/// The desktop's style, with edges that can be seen in every palette.

#include <QProxyStyle>

/// Draws as the desktop does. In a palette in which edges would not be seen it draws them along boxes, lists,
/// buttons and marks once more, in a colour that stands out.
class EdgedStyle : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
};
