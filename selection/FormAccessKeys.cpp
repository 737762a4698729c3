#include "selection/FormAccessKeys.h"

#include "formkit/TitledFrame.h"

#include <QAbstractButton>
#include <QLabel>
#include <QRadioButton>
#include <QShortcut>

/// The control that an access key leads to: a label's box, a frame's button that is on, or a button itself.
static QWidget* TargetOf(QWidget* owner)
{
    if (const auto* label = qobject_cast<QLabel*>(owner))
    {
        return label->buddy();
    }
    const auto* frame = qobject_cast<TitledFrame*>(owner);
    return frame != nullptr ? frame->ButtonThatIsOn() : owner;
}

static void Use(QWidget* owner)
{
    QWidget* target = TargetOf(owner);
    if (target == nullptr || !target->isEnabled())
    {
        return;
    }
    target->setFocus(Qt::ShortcutFocusReason);
    if (auto* button = qobject_cast<QAbstractButton*>(owner))
    {
        button->animateClick();
    }
}

FormAccessKeys::FormAccessKeys(QWidget& form, QWidget* window)
    : QObject(window)
{
    for (auto* label : form.findChildren<QLabel*>())
    {
        Add(label->text(), label, window);
    }
    for (auto* button : form.findChildren<QAbstractButton*>())
    {
        Add(button->text(), button, window);
    }
    for (auto* frame : form.findChildren<TitledFrame*>())
    {
        Add(frame->title(), frame, window);
    }
    SetEnabled(false);
}

void FormAccessKeys::Add(const QString& caption, QWidget* owner, QWidget* window)
{
    const auto key = QKeySequence::mnemonic(caption);
    if (!key.isEmpty())
    {
        keys.push_back(new QShortcut(key, window));
        connect(keys.back(), &QShortcut::activated, owner, [owner] { Use(owner); });
    }
}

void FormAccessKeys::SetEnabled(bool enabled)
{
    for (QShortcut* key : keys)
    {
        key->setEnabled(enabled);
    }
}
