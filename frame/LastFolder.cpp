#include "frame/LastFolder.h"

#include <QDir>
#include <QSettings>

static const QString FilePathKey = QStringLiteral("Settings/FilePath");

/// The per-user settings of the application.
class UserSettings : public QSettings
{
public:
    UserSettings()
        : QSettings(QSettings::UserScope, QStringLiteral("tavik"), QStringLiteral("tavik"))
    {
    }
};

QString LastFolder()
{
    const QString folder = UserSettings().value(FilePathKey).toString();
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::currentPath();
}

void RememberFolder(const QString& fileName, const QString& fileTitle)
{
    const QString folder = fileName.left(fileName.size() - fileTitle.size() - 1);
    UserSettings().setValue(FilePathKey, folder.isEmpty() ? QStringLiteral("/") : folder);
}
