#pragma once

/// The part of the selection form that scrolls where the window is short.

#include <QScrollArea>

/// As high as its contents where there is room for them, else it scrolls; what stands below it in the form
/// stays in sight. The control that gets the focus is brought into view.
class FormScroller : public QScrollArea
{
    Q_OBJECT

public:
    explicit FormScroller(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int WholeHeight() const;
    void ScrollWhereNeeded();
};
