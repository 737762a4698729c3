#pragma once

/// Tells when files change, however programs write them.

#include "files/FileState.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <optional>
#include <string>
#include <vector>

/// A file as it was when it was read; nothing where there was none.
struct WatchedFile
{
    /// In UTF-8.
    std::string Path;
    std::optional<FileState> State = {};

    bool operator==(const WatchedFile&) const = default;
};

/// Watches files that are written in place, replaced, removed and made anew, alone or with their folders, and
/// tells once when they are at rest again.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject* parent = nullptr);

    /// Watches these files in the place of the former ones; a change since they were read is told as well.
    void Watch(std::vector<WatchedFile> readFiles);

Q_SIGNALS:
    /// A while after the last change of any of the files.
    void Changed();

private:
    void AddPaths();
    void LookAgain();

    QFileSystemWatcher watcher;
    QTimer rest;
    std::vector<WatchedFile> files;
};
