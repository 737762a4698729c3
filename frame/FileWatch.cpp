#include "frame/FileWatch.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

/// Editors take a few steps to save a file.
static constexpr int RestMilliSeconds = 200;

FileWatch::FileWatch(QObject* parent)
    : QObject(parent)
{
    rest.setSingleShot(true);
    rest.setInterval(RestMilliSeconds);
    const auto begin = qOverload<>(&QTimer::start);
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, [this] { hasChanged = true; });
    connect(&watcher, &QFileSystemWatcher::fileChanged, &rest, begin);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, &rest, begin);
    connect(&rest, &QTimer::timeout, this, &FileWatch::LookAgain);
}

/// The folder of a file; where it is gone, the nearest above it that is there.
static QString FolderOf(const QFileInfo& file)
{
    QDir folder = file.absoluteDir();
    while (!folder.exists() && !folder.isRoot())
    {
        folder = QFileInfo(folder.absolutePath()).absoluteDir();
    }
    return folder.absolutePath();
}

/// A file that was replaced is no longer watched by itself, so all paths are given anew.
void FileWatch::AddPaths()
{
    QStringList paths;
    for (const WatchedFile& file : files)
    {
        const QFileInfo info(QString::fromStdString(file.Path));
        paths << FolderOf(info);
        if (info.exists())
        {
            paths << info.absoluteFilePath();
        }
    }
    paths.removeDuplicates();
    for (const QString& former : watcher.files() + watcher.directories())
    {
        if (paths.removeAll(former) == 0)
        {
            watcher.removePath(former);
        }
    }
    if (!paths.isEmpty())
    {
        watcher.addPaths(paths);
    }
}

static bool IsAsRead(const WatchedFile& file)
{
    return StateOf(std::filesystem::path(file.Path)) == file.State;
}

void FileWatch::Watch(std::vector<WatchedFile> readFiles)
{
    files = std::move(readFiles);
    AddPaths();
    if (!std::ranges::all_of(files, IsAsRead))
    {
        rest.start();
    }
}

/// Folders also tell of files that are none of ours.
void FileWatch::LookAgain()
{
    AddPaths();
    if (std::exchange(hasChanged, false) || !std::ranges::all_of(files, IsAsRead))
    {
        Q_EMIT Changed();
    }
}
