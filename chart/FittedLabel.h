#pragma once

/// A label whose text may be longer than its place.

#include "chart/drawing/FittedText.h"

#include <QLabel>

/// Condenses a text that is too long, sets it smaller where that is not enough, and only then cuts it with an
/// ellipsis and shows it whole in a tool tip. `text()` is always the whole text.
class FittedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    const FittedText& Fitted();

    /// What is fitted, and what it was fitted to: a text is measured when it changes, not at each painting.
    FittedText fitted;
    QString fittedText;
    QFont fittedFont;
    int fittedRoom = -1;
};
