#pragma once

/// An option button whose caption wraps onto further lines.

#include <QRadioButton>

/// A radio button for narrow forms: its caption breaks between words where the width ends.
class WrappedRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit WrappedRadioButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }

private:
    QRect CaptionRect(int width) const;
    int CaptionHeight(int width) const;

    /// The height last measured, for the caption and width it was measured for: a form asks many times for
    /// the height of the same caption.
    struct MeasuredCaption
    {
        QString Text;
        int Width = -1;
        int Height = 0;
    };
    mutable MeasuredCaption measured;
};
