#pragma once

/// The access keys of the selection form while a chart is in front.

#include <QObject>

#include <vector>

class QShortcut;
class QWidget;

/// Gives the access keys of a form to the window that holds it: a key acts on its control as if the form were
/// in front, which brings the form there. A key whose control is disabled does nothing.
class FormAccessKeys : public QObject
{
    Q_OBJECT

public:
    /// Takes the keys of the captions that the form has by now.
    FormAccessKeys(QWidget& form, QWidget* window);

    /// To be off while the form is in front: its controls then answer themselves.
    void SetEnabled(bool enabled);

private:
    void Add(const QString& caption, QWidget* owner, QWidget* window);

    std::vector<QShortcut*> keys;
};
