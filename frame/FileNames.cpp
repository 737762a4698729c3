#include "frame/FileNames.h"

#include <QFile>

QString FileNameOf(QString partNum)
{
#ifdef _WIN32
    static const QString forbidden = QStringLiteral("\\/:*?\"<>|");
#else
    // The dialog takes quotes for the marks between several names.
    static const QString forbidden = QStringLiteral("/\"");
#endif
    for (QChar& c : partNum)
    {
        if (forbidden.contains(c) || c.category() == QChar::Other_Control)
        {
            c = QLatin1Char('_');
        }
    }
    // The dialog takes a leading one for a home folder.
    return partNum.startsWith(u'~') ? u'_' + partNum.mid(1) : partNum;
}

bool CanBeWritten(const QString& path)
{
    return !path.contains(QChar::ReplacementCharacter) && QFile::decodeName(QFile::encodeName(path)) == path;
}
