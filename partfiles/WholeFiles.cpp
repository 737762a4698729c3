#include "partfiles/WholeFiles.h"

#include "partdata/RunTimeError.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
RunTimeErrorNumber NumberOf(int fault)
{
    switch (fault)
    {
    case ENOENT:
    case ENOTDIR:
        return RunTimeErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return RunTimeErrorNumber::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
        return RunTimeErrorNumber::DiskFull;
    default:
        return RunTimeErrorNumber::PathFileAccessError;
    }
}

[[noreturn]] void Fail(int fault, const fs::path& target)
{
    throw RunTimeError(NumberOf(fault)).At(target.string());
}

/// Writes everything and waits for the disk; 0, or the number of the fault.
int WriteAll(int file, std::string_view bytes)
{
    while (!bytes.empty())
    {
        const auto written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
        {
            return errno;
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return fsync(file) == 0 ? 0 : errno;
}

/// The rights of the file that is replaced, or those of any new file.
mode_t ModeFor(const fs::path& target)
{
    struct stat old = {};
    if (stat(target.c_str(), &old) == 0)
    {
        return old.st_mode & 0777U;
    }
    const mode_t masked = umask(0);
    umask(masked);
    return 0666U & ~masked;
}

/// A renaming is on the disk once its folder is.
void SyncFolderOf(const fs::path& file)
{
    const auto folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0)
    {
        fsync(handle);
        close(handle);
    }
}

/// A link stays a link: the file that it names is replaced.
fs::path BehindLinks(const fs::path& target)
{
    std::error_code fault;
    const auto real = fs::is_symlink(target, fault) ? fs::canonical(target, fault) : target;
    return fault ? target : real;
}
} // namespace

StagedFile::StagedFile(const fs::path& wanted, std::string_view bytes)
    : target(BehindLinks(wanted))
{
    // A file in a writable folder can be replaced even if it is write-protected; its owner did not mean that.
    if (access(target.c_str(), F_OK) == 0 && access(target.c_str(), W_OK) != 0)
    {
        Fail(errno, target);
    }
    auto pattern = target.string() + "." + std::string(6, 'X');
    const int file = mkstemp(pattern.data());
    if (file < 0)
    {
        Fail(errno, target);
    }
    path = pattern;
    int fault = WriteAll(file, bytes);
    if (fault == 0 && fchmod(file, ModeFor(target)) != 0)
    {
        fault = errno;
    }
    if (close(file) != 0 && fault == 0)
    {
        fault = errno;
    }
    if (fault != 0)
    {
        unlink(path.c_str());
        Fail(fault, target);
    }
}

StagedFile::~StagedFile()
{
    // After a renaming there is nothing of this name left.
    unlink(path.c_str());
}

void PutInPlace(const fs::path& finished, const fs::path& target)
{
    if (fs::exists(target) && !fs::is_regular_file(target))
    {
        // A device or pipe must not become a file.
        throw RunTimeError(RunTimeErrorNumber::PathFileAccessError).At(target.string());
    }
    if (std::rename(finished.c_str(), target.c_str()) != 0)
    {
        Fail(errno, target);
    }
    SyncFolderOf(target);
}
