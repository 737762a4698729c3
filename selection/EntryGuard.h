#pragma once

/// What happens as the user comes to an entry box and leaves it.

#include <QObject>

#include <functional>
#include <vector>

class QLineEdit;
class QWidget;

/// A box that is watched, and what is to happen there.
struct GuardedBox
{
    QLineEdit* Box;
    /// The focus has come to the box by key or click: selects the whole text, so that typing replaces it.
    std::function<void()> GotFocus;
    /// Checks the entry; false when it is refused and the box has the focus again.
    std::function<bool()> LostFocus;
    /// Controls whose action empties, refills or disables the box: on the way to them nothing is checked.
    std::vector<const QWidget*> ActingControls;
};

/// Watches the boxes of a form. A box is checked when the user leaves it for another control of the form, by
/// key or by click, unless the click itself is going to change the box. A click whose box was refused has no
/// effect.
class EntryGuard : public QObject
{
    Q_OBJECT

public:
    /// Watches these boxes of a form, whose controls all exist by now.
    EntryGuard(QWidget* guardedForm, std::vector<GuardedBox> guardedBoxes);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const GuardedBox* Find(const QObject* watched) const;
    void Enter(const GuardedBox& guarded, Qt::FocusReason reason);
    void EndClick(const GuardedBox& guarded);
    bool MayLeave(const GuardedBox& guarded, Qt::FocusReason reason);
    bool IsCauseToCheck(const GuardedBox& guarded, Qt::FocusReason reason) const;

    QWidget* form;
    std::vector<GuardedBox> boxes;
    /// A click moved the focus and the box it left was refused: the click itself is to have no effect.
    bool swallowPress = false;
    /// The box that the focus came to by a click whose button is still down.
    const QLineEdit* enteredByClick = nullptr;
};
