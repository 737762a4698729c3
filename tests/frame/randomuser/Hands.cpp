#include "tests/frame/randomuser/Hands.h"

#include "formkit/Messages.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QRadioButton>
#include <QStyleOptionTitleBar>
#include <QTest>

Hands::Hands()
{
    const auto* form = Find<frmLibrary>("frmLibrary");
    for (QWidget* control : form->findChildren<QWidget*>())
    {
        if (!control->objectName().isEmpty() && !control->objectName().startsWith("qt_"))
        {
            controls.insert(control->objectName(), control);
        }
    }
}

void Hands::Ready()
{
    Settle();
    // What is left to hear of a window that closed may take the activity away again.
    for (int i = 0; i < 5 && QApplication::activeWindow() != main.get(); ++i)
    {
        QApplication::setActiveWindow(main.get());
        Settle();
    }
}

QString Hands::Focus() const
{
    const QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr)
    {
        return {};
    }
    const auto* list = qobject_cast<const QComboBox*>(focus->parentWidget());
    return list != nullptr ? list->objectName() : focus->objectName();
}

void Hands::Click(const QString& name)
{
    QWidget* control = Of(name);
    auto* list = qobject_cast<QComboBox*>(control);
    if (list != nullptr && list->isEditable())
    {
        control = list->lineEdit();
    }
    // The button of an option stands at its left end.
    const bool isOption = qobject_cast<QRadioButton*>(control) != nullptr;
    QTest::mouseClick(control, Qt::LeftButton, {},
                      isOption ? QPoint(8, control->height() / 2) : control->rect().center());
    Settle();
}

void Hands::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* focus = QApplication::focusWidget();
    QWidget* target = focus != nullptr ? focus : main.get();
    // With Alt a letter is a command, and no text that a box might take.
    modifiers.testFlag(Qt::AltModifier) ? QTest::sendKeyEvent(QTest::Click, target, key, QString(), modifiers)
                                        : QTest::keyClick(target, key, modifiers);
    Settle();
}

void Hands::Replace(QLineEdit* box, const QString& text, bool paste)
{
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
    if (paste && !text.isEmpty())
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    }
    else
    {
        for (const QChar letter : text)
        {
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(letter), Qt::NoModifier);
        }
    }
    Settle();
}

void Hands::ClickArrow(const QString& name)
{
    auto* list = Of<QComboBox>(name);
    QTest::mouseClick(list, Qt::LeftButton, {}, QPoint(list->width() - 8, list->height() / 2));
    Settle();
}

void Hands::PickOpen(const QString& name, int row)
{
    auto* list = Of<QComboBox>(name);
    QAbstractItemView* view = list->view();
    view->setCurrentIndex(view->model()->index(row, list->modelColumn()));
    QTest::keyClick(view, Qt::Key_Return);
    Settle();
}

void Hands::CloseMenus()
{
    for (int i = 0; i < 3 && QApplication::activePopupWidget() != nullptr; ++i)
    {
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        Settle();
    }
    Ready();
    // The menu bar itself still waits for the next key, and has not heard which control had the focus.
    if (QApplication::focusWidget() == main->menuBar())
    {
        QTest::keyClick(main->menuBar(), Qt::Key_Escape);
        if (beforeMenu != nullptr)
        {
            beforeMenu->setFocus(Qt::MenuBarFocusReason);
        }
        Settle();
    }
}

// ---- Windows ----

static QRect PlaceOf(QMdiSubWindow* window, QStyle::SubControl part)
{
    QStyleOptionTitleBar bar;
    bar.initFrom(window);
    bar.subControls = QStyle::SC_All;
    bar.titleBarFlags = window->windowFlags();
    bar.titleBarState = static_cast<int>(window->windowState()) | QStyle::State_Active;
    const int height = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, &bar, window);
    bar.rect = QRect(0, 0, window->width(), height);
    return window->style()->subControlRect(QStyle::CC_TitleBar, &bar, part, window);
}

void Hands::ClickTitleButton(QMdiSubWindow* window, QStyle::SubControl button)
{
    const QPoint place = PlaceOf(window, button).center();
    // The first move only ends what the pointer was about to do where it came from.
    MoveMouse(window, place);
    MoveMouse(window, place);
    QTest::mouseClick(window, Qt::LeftButton, {}, place);
    Settle();
}

void Hands::ClickTitle(QMdiSubWindow* window)
{
    ClickTitleButton(window, QStyle::SC_TitleBarLabel);
}

void Hands::DragTitle(QMdiSubWindow* window, const QPoint& way)
{
    ClickTitle(window);
    const QPoint from = PlaceOf(window, QStyle::SC_TitleBarLabel).center();
    MoveMouse(window, from);
    MoveMouse(window, from);
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    MoveMouse(window, from + way, Qt::LeftButton);
    // The window is under the pointer again.
    QTest::mouseRelease(window, Qt::LeftButton, {}, from);
    Settle();
}

void DoubleClickAt(QWidget* widget, const QPoint& place)
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, place);
    QTest::mouseDClick(widget, Qt::LeftButton, {}, place);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, place);
    Settle();
}

void Hands::DoubleClickTitle(QMdiSubWindow* window)
{
    const QPoint place = PlaceOf(window, QStyle::SC_TitleBarLabel).center();
    MoveMouse(window, place);
    MoveMouse(window, place);
    DoubleClickAt(window, place);
}

// ---- Dialogs and boxes ----

QMenu* Hands::OpenMenu(const QString& entry)
{
    beforeMenu = QApplication::focusWidget();
    return OpenMenuOf(entry);
}

bool Hands::InDialog(const char* className, const std::function<void()>& open,
                     const std::function<void(QDialog&)>& act)
{
    bool shown = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look,
                     [&]
                     {
                         auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                         if (dialog == nullptr || !dialog->isVisible() || !dialog->inherits(className))
                         {
                             return;
                         }
                         QApplication::setActiveWindow(dialog);
                         if (!std::exchange(shown, true))
                         {
                             act(*dialog);
                         }
                         if (dialog->isVisible() && QApplication::activeModalWidget() == dialog)
                         {
                             QTest::keyClick(dialog, Qt::Key_Escape);
                         }
                     });
    look.start(1);
    open();
    look.stop();
    Ready();
    return shown;
}

static QString IconName(QMessageBox::Icon icon)
{
    static const QStringList names = {"no icon", "information", "exclamation", "critical", "question"};
    return names.at(icon);
}

QStringList Hands::TakeTold()
{
    QStringList told;
    for (const Said& box : TakeBoxes())
    {
        const QString foreign = box.title == ProgramTitle() ? "" : "titled " + box.title + ", ";
        told << foreign + IconName(box.icon) + ": " + box.text;
    }
    return told;
}

QString Exclamation(const QString& text)
{
    return "exclamation: " + text;
}

QString Information(const QString& text)
{
    return "information: " + text;
}

QString Question(const QString& text)
{
    return "question: " + text;
}

QString Critical(const QString& text)
{
    return "critical: " + text;
}
