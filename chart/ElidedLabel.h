#pragma once

/// A label whose text may be longer than its place.

#include <QLabel>

/// Cuts a text that is too long with an ellipsis when painting, and shows it whole in a tool tip. `text()` is
/// always the whole text.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool IsCut() const;
};
