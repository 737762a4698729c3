#pragma once

/// A frame with its caption in the upper edge.

#include <QGroupBox>

/// A group box that looks the same on every desktop: a thin line, and the caption within it at the upper
/// left.
class TitledFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit TitledFrame(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};
