#pragma once

/// Whether there is anything to write with.

#include <QFont>
#include <QFontInfo>

/// True when the system has a font. Without one every letter is an empty box, in windows and charts alike.
inline bool HasFonts()
{
    return !QFontInfo(QFont()).family().isEmpty();
}
