#pragma once

/// A frame with its caption in the upper edge.

#include <QGroupBox>

class QRadioButton;

/// A group box that looks the same on every desktop: a thin line, and the caption within it at the upper
/// left.
class TitledFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit TitledFrame(QWidget* parent = nullptr);

    /// The option button in the frame that is on, which its access key leads to; null without one.
    QRadioButton* ButtonThatIsOn() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};
