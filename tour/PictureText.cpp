#include "tour/PictureText.h"

#include <QAccessible>
#include <QSize>
#include <QStringList>
#include <QWidget>

namespace
{

/// One line of what a control says; nothing where it says nothing.
QString LineOf(const QAccessibleInterface& control)
{
    QStringList said;
    for (const auto text : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
    {
        const QString words = control.text(text).simplified();
        if (!words.isEmpty() && !said.contains(words))
        {
            said << words;
        }
    }
    const QAccessible::State state = control.state();
    if (!said.isEmpty() && state.checked != 0U)
    {
        said << QStringLiteral("(on)");
    }
    return said.join(QStringLiteral(" | "));
}

void AddLines(const QAccessibleInterface& control, int depth, QStringList& lines)
{
    if (control.state().invisible != 0U)
    {
        return;
    }
    const QString line = LineOf(control);
    if (!line.isEmpty())
    {
        lines << QString(2 * depth, u' ') + line;
    }
    for (int i = 0; i < control.childCount(); ++i)
    {
        const auto* const child = control.child(i);
        if (child != nullptr && child->isValid())
        {
            AddLines(*child, depth + (line.isEmpty() ? 0 : 1), lines);
        }
    }
}

} // namespace

QString PictureText(QWidget& window, const QSize& pixels)
{
    QStringList lines{QStringLiteral("%1 x %2 pixels").arg(pixels.width()).arg(pixels.height())};
    if (const auto* const control = QAccessible::queryAccessibleInterface(&window))
    {
        AddLines(*control, 0, lines);
    }
    return lines.join(u'\n') + u'\n';
}
