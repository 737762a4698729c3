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

/// Today in the user's short date format, in the code page of a data file. The code page has only the digits
/// 0 to 9 and no marks of writing direction, so other digits are written as these and the marks left out:
/// "2026/11/21" where the user reads "۲۰۲۶/۱۱/۲۱".
inline std::string TodayInFile()
{
    QString text;
    for (const QChar c : Today())
    {
        if (c.category() == QChar::Other_Format)
        {
            continue;
        }
        text += c.isDigit() ? QChar(u'0' + c.digitValue()) : c;
    }
    return ToAnsi(text);
}
