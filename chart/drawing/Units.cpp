#include "chart/drawing/Units.h"

#include "calc/Units.h"

QString GetUnit(const QString& name, const QString& degreeSign)
{
    return QString::fromStdString(UnitOf(name.toStdString(), degreeSign.toStdString()));
}
