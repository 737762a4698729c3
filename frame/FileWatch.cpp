#include "frame/FileWatch.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

/// Editors take a few steps to save a file.
static constexpr int RestMilliSeconds = 200;

FileWatch::FileWatch(QObject* parent)
    : QObject(parent)
{
    rest.setSingleShot(true);
    rest.setInterval(RestMilliSeconds);
    const auto begin = qOverload<>(&QTimer::start);
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

/// The name of a file may belong to another one by now, which only a path that is given anew leads to.
void FileWatch::AddPaths()
{
    QStringList paths;
    for (const WatchedFile& file : files)
    {
        const QFileInfo info(QString::fromStdString(file.Path));
        paths << FolderOf(info);
        if (info.exists())
        {
            paths << info.absoluteFilePath() << QFileInfo(info.canonicalFilePath()).absolutePath();
        }
    }
    paths.removeDuplicates();
    const QStringList former = watcher.files() + watcher.directories();
    if (!former.isEmpty())
    {
        watcher.removePaths(former);
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
    if (!std::ranges::all_of(files, IsAsRead))
    {
        Q_EMIT Changed();
    }
}
