#include "frame/VerdictLook.h"

#include <QColor>

#include <array>

/// White on each of these is read well, on light and dark desktops alike.
QVariant VerdictLook(BomVerdict verdict, int role)
{
    static const std::array<QColor, 4> grounds = {QColor(176, 0, 32), QColor(92, 92, 92), QColor(138, 83, 0),
                                                  QColor(22, 105, 45)};
    switch (role)
    {
    case Qt::BackgroundRole:
        return grounds.at(static_cast<std::size_t>(verdict));
    case Qt::ForegroundRole:
        return QColor(Qt::white);
    default:
        return {};
    }
}
