#include "selection/EntryGuard.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <utility>

EntryGuard::EntryGuard(QWidget* guardedForm, std::vector<GuardedBox> guardedBoxes)
    : QObject(guardedForm)
    , form(guardedForm)
    , boxes(std::move(guardedBoxes))
{
    for (QWidget* control : form->findChildren<QWidget*>())
    {
        control->installEventFilter(this);
    }
}

/// The box that an event is for, or null.
const GuardedBox* EntryGuard::Find(const QObject* watched) const
{
    const auto found = std::ranges::find(boxes, watched, &GuardedBox::Box);
    return found != boxes.end() ? &*found : nullptr;
}

/// A click takes the selection away again until its button is released. Coming back from a menu or another
/// window leaves the text as it was.
void EntryGuard::Enter(const GuardedBox& guarded, Qt::FocusReason reason)
{
    if (reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason &&
        reason != Qt::ActiveWindowFocusReason)
    {
        guarded.GotFocus();
        enteredByClick = reason == Qt::MouseFocusReason ? guarded.Box : nullptr;
    }
}

void EntryGuard::EndClick(const GuardedBox& guarded)
{
    if (std::exchange(enteredByClick, nullptr) == guarded.Box && !guarded.Box->hasSelectedText())
    {
        guarded.GotFocus();
    }
}

static bool ActsOn(const GuardedBox& guarded, const QWidget* control)
{
    return std::ranges::any_of(guarded.ActingControls, [control](const QWidget* acting)
                               { return control == acting || acting->isAncestorOf(control); });
}

bool EntryGuard::IsCauseToCheck(const GuardedBox& guarded, Qt::FocusReason reason) const
{
    const QWidget* next = QApplication::focusWidget();
    if (!guarded.Box->isEnabled() || next == nullptr || next == guarded.Box || !form->isAncestorOf(next))
    {
        return false;
    }
    switch (reason)
    {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    case Qt::MouseFocusReason:
        return !ActsOn(guarded, next);
    default:
        return false;
    }
}

/// Checks a box that is left, if this way of leaving asks for it; false when the entry is refused.
bool EntryGuard::MayLeave(const GuardedBox& guarded, Qt::FocusReason reason)
{
    if (!IsCauseToCheck(guarded, reason) || guarded.LostFocus())
    {
        return true;
    }
    if (reason == Qt::MouseFocusReason)
    {
        swallowPress = true;
        QTimer::singleShot(0, this, [this] { swallowPress = false; });
    }
    return false;
}

bool EntryGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && std::exchange(swallowPress, false))
    {
        return true;
    }
    const GuardedBox* guarded = Find(watched);
    if (guarded == nullptr)
    {
        return false;
    }
    switch (event->type())
    {
    case QEvent::MouseButtonRelease:
        EndClick(*guarded);
        return false;
    case QEvent::FocusIn:
        Enter(*guarded, static_cast<QFocusEvent*>(event)->reason());
        return false;
    case QEvent::FocusOut:
        // A refused box has the focus again by now, so it is not told of having lost it.
        return !MayLeave(*guarded, static_cast<QFocusEvent*>(event)->reason());
    default:
        return false;
    }
}
