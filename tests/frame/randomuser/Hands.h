#pragma once

/// Hands on the real main window that do what the shared desk has no gestures for.

#include "tests/frame/Desk.h"

#include <QHash>
#include <QPointer>
#include <QStyle>

#include <functional>

class QComboBox;
class QDialog;
class QLineEdit;
class QMdiSubWindow;

class Hands : public Desk
{
public:
    Hands();

    /// Makes the main window the active one, as a desktop does when a dialog closes.
    void Ready();

    /// A control of the selection form.
    template <class Control = QWidget> Control* Of(const QString& name) const
    {
        return static_cast<Control*>(controls.value(name));
    }

    /// The name of the control that has the focus, of a list rather than of its edit.
    QString Focus() const;

    /// Clicks a control of the selection form where a user would.
    void Click(const QString& name);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Puts a text in the place of the one in the box that has the focus, key by key or from the clipboard.
    void Replace(QLineEdit* box, const QString& text, bool paste);
    /// Clicks the arrow of a list.
    void ClickArrow(const QString& list);
    /// Picks an entry of an open list.
    void PickOpen(const QString& list, int row);

    /// Opens the menu that holds an entry, and leaves it open.
    QMenu* OpenMenu(const QString& entry);
    /// Closes the open menu or list, and those it came from, by Escape.
    void CloseMenus();

    void ClickTitle(QMdiSubWindow* window);
    void DragTitle(QMdiSubWindow* window, const QPoint& way);
    void DoubleClickTitle(QMdiSubWindow* window);
    void ClickTitleButton(QMdiSubWindow* window, QStyle::SubControl button);

    /// Does what opens a dialog of this class, and acts on the dialog; what is left open is closed by
    /// Escape. False when no dialog came.
    bool InDialog(const char* className, const std::function<void()>& open,
                  const std::function<void(QDialog&)>& act);

    /// The boxes shown since the last call, as "icon: text".
    QStringList TakeTold();

private:
    QHash<QString, QWidget*> controls;
    QPointer<QWidget> beforeMenu;
};

/// All that a mouse sends for a double click.
void DoubleClickAt(QWidget* widget, const QPoint& place);

/// How `TakeTold` writes boxes.
QString Exclamation(const QString& text);
QString Information(const QString& text);
QString Question(const QString& text);
QString Critical(const QString& text);
