#pragma once

/// Which control of a form in the child area the user was last at.

#include <QObject>
#include <QPointer>

class QMdiSubWindow;
class QWidget;

/// Remembers the control of a form that had the focus last. A form that comes to the front is given the focus
/// somewhere by the child area, as a rule at its first control; that place is not remembered.
class LastControl : public QObject
{
    Q_OBJECT

public:
    /// Watches the controls of a form, which all exist by now.
    explicit LastControl(QMdiSubWindow* watchedForm);

    /// The control to come back to, or null where it is disabled or out of sight, or no control had the
    /// focus.
    QWidget* Control() const;
    /// A control that the program leads the user to, also from another window.
    void Remember(QWidget* control) { last = control; }
    /// The form is in front and its focus in its place: where it goes from now on is the user's doing.
    void Settle() { comingToFront = false; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> last;
    bool comingToFront = false;
};
