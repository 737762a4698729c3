#include "tests/selection/MessageWatch.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <utility>

MessageWatch::MessageWatch()
{
    connect(&timer, &QTimer::timeout, this, &MessageWatch::Look);
    timer.start(1);
}

void MessageWatch::Look()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr)
    {
        return;
    }
    QString text = box->text().replace('\n', '|');
    if (box->windowTitle() != "Halvex Chip Capacitor Characteristics Data Library")
    {
        text.prepend("foreign title: ");
    }
    if (box->icon() != QMessageBox::Warning)
    {
        text.prepend("other icon: ");
    }
    texts << text;
    QWidget* owner = box->parentWidget();
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    // A desktop goes back to the window below; without a display nobody does.
    owner->window()->activateWindow();
}

QStringList MessageWatch::Taken()
{
    // A box that is still on its way shows now.
    QTest::qWait(5);
    return std::exchange(texts, {});
}
