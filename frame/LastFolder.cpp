#include "frame/LastFolder.h"

#include "frame/SettingsLock.h"
#include "frame/SettingsText.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace
{
const QString FilePathKey = QStringLiteral("Settings/FilePath");

const QString Program = QStringLiteral("tavik");

#if defined(Q_OS_WIN) || defined(Q_OS_DARWIN)
/// The per-user settings of the application.
class UserSettings : public QSettings
{
public:
    UserSettings()
        : QSettings(QSettings::UserScope, Program, Program)
    {
    }
};
#else
/// The per-user settings of the application: a text file, which anything may have been written to.
class UserSettings : public QSettings
{
public:
    UserSettings()
        : QSettings(File(), SettingsText())
    {
    }

private:
    /// Where the system keeps it. It is found by a neighbour's name, since QSettings remembers in which
    /// format a file was first opened.
    static QString File()
    {
        const QSettings neighbour(QSettings::UserScope, Program, QStringLiteral("neighbour"));
        return QFileInfo(neighbour.fileName()).path() + QStringLiteral("/tavik.conf");
    }
};
#endif
} // namespace

QString LastFolder()
{
    const QString folder = UserSettings().value(FilePathKey).toString();
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::currentPath();
}

/// The folder without steps up and down again: what it is called where it lies. A step up from a link leads
/// to where the link's folder lies.
static QString WithoutSteps(const QString& folder)
{
    const QStringList names = folder.split('/');
    if (!names.contains(QStringLiteral("..")) && !names.contains(QStringLiteral(".")))
    {
        return folder;
    }
    const QString place = QFileInfo(folder).canonicalFilePath();
    return place.isEmpty() ? QDir::cleanPath(folder) : place;
}

void RememberFolder(const QString& fileName, const QString& fileTitle)
{
    const QString folder = fileName.left(fileName.size() - fileTitle.size() - 1);
    UserSettings settings;
    RemoveEmptyLock(settings);
    settings.setValue(FilePathKey, folder.isEmpty() ? QStringLiteral("/") : WithoutSteps(folder));
}
