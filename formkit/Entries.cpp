#include "formkit/Entries.h"

#include "calc/NumberText.h"

#include <QLineEdit>
#include <QLocale>

bool CommaIsDecimal()
{
    return QLocale().decimalPoint() == QStringLiteral(",");
}

std::optional<float> EntryOf(const QLineEdit* box)
{
    return ReadEntry(box->text().toStdString(), CommaIsDecimal());
}
