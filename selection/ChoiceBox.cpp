#include "selection/ChoiceBox.h"

#include <QStylePainter>

ChoiceBox::ChoiceBox(QWidget* parent)
    : QComboBox(parent)
{
    FollowEntries();
}

void ChoiceBox::FollowEntries()
{
    const QAbstractItemModel* entries = model();
    connect(entries, &QAbstractItemModel::rowsInserted, this, &ChoiceBox::ShowWhetherEmpty);
    connect(entries, &QAbstractItemModel::rowsRemoved, this, &ChoiceBox::ShowWhetherEmpty);
    connect(entries, &QAbstractItemModel::modelReset, this, &ChoiceBox::ShowWhetherEmpty);
    ShowWhetherEmpty();
}

void ChoiceBox::ShowWhetherEmpty()
{
    setAccessibleDescription(model()->rowCount() == 0 ? QStringLiteral("Empty") : QString());
    update();
}

void ChoiceBox::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (count() == 0)
    {
        option.state &= ~QStyle::State_Enabled;
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    if (!isEditable())
    {
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    }
    if (count() == 0 && hasFocus())
    {
        // A disabled list shows no focus of its own.
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}
