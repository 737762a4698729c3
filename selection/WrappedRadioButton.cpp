#include "selection/WrappedRadioButton.h"

#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

static constexpr int CaptionFlags =
    Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

WrappedRadioButton::WrappedRadioButton(QWidget* parent)
    : QRadioButton(parent)
{
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

/// The caption's place in a button of the given width, as high as its lines need.
QRect WrappedRadioButton::CaptionRect(int width) const
{
    const int indicator = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this) +
                          style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this);
    const int captionWidth = std::max(width - indicator, 1);
    return {indicator, 0, captionWidth, CaptionHeight(captionWidth)};
}

/// The height of the caption's lines when they break at the given width.
int WrappedRadioButton::CaptionHeight(int width) const
{
    if (measured.Width != width || measured.Text != text())
    {
        const QRect available(0, 0, width, QWIDGETSIZE_MAX);
        const QRect needed = fontMetrics().boundingRect(available, CaptionFlags & ~Qt::AlignVCenter, text());
        measured = {text(), width, needed.height()};
    }
    return measured.Height;
}

void WrappedRadioButton::changeEvent(QEvent* event)
{
    measured = {};
    QRadioButton::changeEvent(event);
}

int WrappedRadioButton::heightForWidth(int width) const
{
    const int indicator = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, this);
    return std::max(CaptionRect(width).height() + 2, indicator);
}

QSize WrappedRadioButton::sizeHint() const
{
    const int width = QRadioButton::sizeHint().width();
    return {width, heightForWidth(width)};
}

QSize WrappedRadioButton::minimumSizeHint() const
{
    return {1, QRadioButton::sizeHint().height()};
}

void WrappedRadioButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);

    option.rect = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
    painter.drawPrimitive(QStyle::PE_IndicatorRadioButton, option);

    QRect caption = CaptionRect(width());
    caption.moveTop((height() - caption.height()) / 2);
    painter.drawItemText(caption, CaptionFlags, palette(), isEnabled(), text(), QPalette::WindowText);

    if (hasFocus())
    {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = caption;
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}
