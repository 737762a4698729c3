#include "formkit/EdgedStyle.h"

#include "formkit/Edges.h"

#include <QPainter>
#include <QStyleOption>

/// The focus keeps the mark that the desktop gives it.
static bool WantsEdge(const QStyleOption& option)
{
    const bool marked =
        option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Enabled);
    return !marked && NeedsStrongEdges(option.palette);
}

static void DrawBox(QPainter& painter, const QStyleOption& option)
{
    painter.save();
    painter.setPen(EdgeColor(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

static void DrawRing(QPainter& painter, const QStyleOption& option)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(EdgeColor(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

void EdgedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element)
    {
    case PE_FrameLineEdit:
    case PE_Frame:
    case PE_PanelButtonCommand:
    case PE_IndicatorCheckBox:
        if (WantsEdge(*option))
        {
            DrawBox(*painter, *option);
        }
        break;
    case PE_IndicatorRadioButton:
        if (NeedsStrongEdges(option->palette))
        {
            DrawRing(*painter, *option);
        }
        break;
    default:
        break;
    }
}

void EdgedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && WantsEdge(*option))
    {
        DrawBox(*painter, *option);
    }
}
