#pragma once

/// Texts of the core as the forms show them.

#include "partdata/Windows1252.h"

#include <QDate>
#include <QLocale>
#include <QString>

/// A text of the part files.
inline QString FromAnsi(std::string_view text)
{
    return QString::fromStdString(Utf8FromWindows1252(text));
}

/// A text of a form in the code page of the part files.
inline std::string ToAnsi(const QString& text)
{
    return Windows1252FromUtf8(text.toStdString());
}

/// Today in the user's short date format.
inline QString Today()
{
    return QLocale().toString(QDate::currentDate(), QLocale::ShortFormat);
}
