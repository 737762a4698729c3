#pragma once

/// Keeps a folder to one writer at a time.

#include <chrono>
#include <filesystem>

/// How long a writer waits for another one.
inline constexpr std::chrono::milliseconds FolderPatience{5000};

/// While it lives no other lock of the folder does, in any process. The lock of a process that is killed goes
/// with it, and nothing of it is ever in the folder.
class FolderLock
{
public:
    /// Waits for the folder. Throws RunTimeError with the folder: 76 where it is not there, 70 where it may
    /// not be read or another writer keeps it longer than that ("process 1234 (tavik-cli) is writing there"),
    /// and 75 where its file system knows no locks.
    explicit FolderLock(const std::filesystem::path& folder,
                        std::chrono::milliseconds patience = FolderPatience);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Waits for the disk to have all names of the folder as they are now.
    void Sync() const;

private:
    int handle = -1;
};
