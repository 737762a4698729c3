#include "frame/HelpKey.h"

#include "frame/HelpCommand.h"
#include "frame/HelpTopics.h"
#include "frame/frmHelp.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>

/// The help viewer has a help key of its own, and what pops up goes first.
static bool IsForUs(const QWidget& control)
{
    return qobject_cast<frmHelp*>(control.window()) == nullptr &&
           QApplication::activePopupWidget() == nullptr;
}

static void ShowHelpOn(QWidget& owner, const QWidget& control)
{
    if (const auto* const box = qobject_cast<QMessageBox*>(control.window()))
    {
        ShowHelpOnMessage(&owner, box->text());
        return;
    }
    ShowHelpContents(&owner, HelpTopicOf(control));
}

HelpKey::HelpKey(QWidget& helpOwner)
    : QObject(&helpOwner)
    , owner(helpOwner)
{
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    const auto* const key = isKey ? static_cast<QKeyEvent*>(event) : nullptr;
    auto* const control = isKey ? qobject_cast<QWidget*>(watched) : nullptr;
    if (control == nullptr || key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier ||
        !IsForUs(*control))
    {
        return QObject::eventFilter(watched, event);
    }
    event->accept();
    if (event->type() == QEvent::KeyPress)
    {
        ShowHelpOn(owner, *control);
    }
    return true;
}
