#pragma once

/// Acts as the user on a dialog that blocks the test.

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

/// Runs each step on the dialog that is in front by then, as soon as one is shown; a step that waits in
/// vain fails the test. The steps go with this object.
class WhenShown : public QObject
{
public:
    using Step = std::function<void(QWidget&)>;

    explicit WhenShown(std::vector<Step> stepsInOrder)
        : steps(std::move(stepsInOrder))
    {
        LookLater();
    }
    ~WhenShown() override
    {
        if (done != steps.size())
        {
            QTest::qFail("a dialog that the user answers was not shown", __FILE__, __LINE__);
        }
    }

private:
    /// A timer of its own each time: a step may block in a dialog that the next step answers.
    void LookLater() { QTimer::singleShot(20, this, &WhenShown::Look); }

    void Look()
    {
        LookLater();
        QWidget* const front = QApplication::activeModalWidget();
        // One look more lets a dialog finish reading its folder.
        if (front == nullptr || !front->isVisible() || ++looks < 3)
        {
            return;
        }
        looks = 0;
        if (done == steps.size())
        {
            // A dialog that nobody expects would block for ever.
            QTest::qFail(qPrintable("unexpected dialog: " + front->windowTitle()), __FILE__, __LINE__);
            QTest::keyClick(front, Qt::Key_Escape);
            return;
        }
        steps[done++](*front);
    }

    std::vector<Step> steps;
    std::size_t done = 0;
    int looks = 0;
};

/// Presses a key on the control that has the focus.
inline WhenShown::Step Press(Qt::Key key)
{
    return [key](QWidget& dialog)
    {
        QWidget* const focus = dialog.focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &dialog, key);
    };
}
