#include "formkit/PlainTexts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>

PlainTexts::PlainTexts()
{
    QCoreApplication::instance()->installEventFilter(this);
}

/// Boxes and tool tips are made of labels, and each label is polished once before it is first shown.
bool PlainTexts::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Polish)
    {
        auto* const label = qobject_cast<QLabel*>(watched);
        if (label != nullptr && label->textFormat() == Qt::AutoText)
        {
            label->setTextFormat(Qt::PlainText);
        }
    }
    return QObject::eventFilter(watched, event);
}
