#include "frame/SettingsLock.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

void RemoveEmptyLock(const QSettings& settings)
{
    const QFileInfo lock(settings.fileName() + QStringLiteral(".lock"));
    if (lock.isFile() && lock.size() == 0)
    {
        QFile::remove(lock.filePath());
    }
}
