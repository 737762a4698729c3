#include "files/WholeFile.h"

#include "files/SystemFault.h"

#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>
#include <tuple>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
/// Small pieces are collected before they are written.
constexpr std::size_t BufferBytes = std::size_t{64} * 1024;
/// Links behind one another, after which they are taken for a circle.
constexpr int MostLinks = 40;
/// Names that are tried for the new file.
constexpr int MostNames = 100;

/// The file that a link leads to, whether it is there or not.
fs::path BehindLinks(const fs::path& file)
{
    std::error_code fault;
    auto target = file;
    for (int i = 0; fs::is_symlink(target, fault); ++i)
    {
        if (i == MostLinks)
        {
            FailWith(ELOOP, file);
        }
        target = target.parent_path() / fs::read_symlink(target, fault);
    }
    return target;
}

/// True for what is there, but is no file: it must not become one.
bool IsNoFile(const fs::path& path)
{
    std::error_code fault;
    const auto status = fs::status(path, fault);
    return fs::exists(status) && !fs::is_regular_file(status);
}

std::string RandomSuffix(std::random_device& random)
{
    constexpr std::string_view Letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    std::string suffix = ".";
    while (suffix.size() < 7)
    {
        suffix += Letters[random() % Letters.size()];
    }
    return suffix;
}

/// Makes a file of a new name beside the target; the system gives it the rights of any new file.
std::pair<int, fs::path> OpenBeside(const fs::path& target, mode_t mode)
{
    std::random_device random;
    fs::path path;
    int handle = -1;
    for (int i = 0; i < MostNames && handle < 0 && (i == 0 || errno == EEXIST); ++i)
    {
        path = target.string() + RandomSuffix(random);
        handle = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    }
    return {handle, path};
}

/// A file without a name in the target's folder, which vanishes with a killed program; -1 where the file
/// system has no such files, or where none could be given a name later.
int OpenNameless(const fs::path& target, mode_t mode)
{
#ifdef O_TMPFILE
    if (access("/proc/self/fd", X_OK) != 0)
    {
        return -1;
    }
    const auto folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    return open(folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, mode);
#else
    return -1;
#endif
}

/// Gives a nameless file a new name beside the target; empty when that fails, with the fault in `errno`.
fs::path NameBeside(int handle, const fs::path& target)
{
    std::random_device random;
    const auto source = "/proc/self/fd/" + std::to_string(handle);
    for (int i = 0; i < MostNames; ++i)
    {
        const fs::path path = target.string() + RandomSuffix(random);
        if (linkat(AT_FDCWD, source.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0)
        {
            return path;
        }
        if (errno != EEXIST)
        {
            break;
        }
    }
    return {};
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
} // namespace

bool IsSpecialFile(const fs::path& file)
{
    std::error_code fault;
    return IsNoFile(file) && !fs::is_directory(file, fault);
}

void RequireReplaceable(const fs::path& file)
{
    if (IsNoFile(file))
    {
        FailWith(EEXIST, file);
    }
    // A file in a writable folder can be replaced even if it is write-protected; its owner did not mean that.
    std::error_code fault;
    if (fs::exists(file, fault) && access(file.c_str(), W_OK) != 0)
    {
        FailWith(errno, file);
    }
}

WholeFile::WholeFile(const fs::path& file)
    : name(file)
    , target(BehindLinks(file))
{
    RequireReplaceable(name);
    struct stat old = {};
    const bool replaces = stat(target.c_str(), &old) == 0;
    const mode_t mode = replaces ? 0600 : 0666;
    handle = OpenNameless(target, mode);
    if (handle < 0)
    {
        std::tie(handle, path) = OpenBeside(target, mode);
    }
    if (handle < 0)
    {
        Fail(errno);
    }
    if (replaces)
    {
        // A file system without rights of its own refuses; all its files have the same.
        static_cast<void>(fchmod(handle, old.st_mode & 0777U));
    }
}

WholeFile::WholeFile(const fs::path& file, std::string_view contents)
    : WholeFile(file)
{
    Write(contents);
    Finish();
}

WholeFile::~WholeFile()
{
    if (handle >= 0)
    {
        close(handle);
    }
    Remove();
}

/// Takes the new file away; after a renaming there is nothing of its name left.
void WholeFile::Remove() const
{
    if (!path.empty())
    {
        unlink(path.c_str());
    }
}

void WholeFile::Write(std::string_view piece)
{
    if (buffer.size() + piece.size() > BufferBytes)
    {
        WriteOut(std::exchange(buffer, {}));
    }
    if (piece.size() > BufferBytes)
    {
        WriteOut(piece);
        return;
    }
    buffer += piece;
}

void WholeFile::WriteOut(std::string_view bytes) const
{
    while (!bytes.empty())
    {
        const auto written = write(handle, bytes.data(), bytes.size());
        if (written == 0 || (written < 0 && errno != EINTR))
        {
            // A write that ends early without an error has filled the disk.
            Fail(written == 0 ? ENOSPC : errno);
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
}

void WholeFile::Finish()
{
    if (handle < 0)
    {
        return;
    }
    WriteOut(std::exchange(buffer, {}));
    if (fsync(handle) != 0)
    {
        Fail(errno);
    }
    if (path.empty())
    {
        path = NameBeside(handle, target);
    }
    if (path.empty() || close(std::exchange(handle, -1)) != 0)
    {
        Fail(errno);
    }
}

void WholeFile::Commit()
{
    Finish();
    PutInPlace(path, target);
}

void WholeFile::Fail(int fault) const
{
    FailWith(fault, name);
}

void PutInPlace(const fs::path& finished, const fs::path& target)
{
    if (IsNoFile(target))
    {
        // A device or pipe must not become a file.
        FailWith(EEXIST, target);
    }
    if (std::rename(finished.c_str(), target.c_str()) != 0)
    {
        FailWith(errno, target);
    }
    SyncFolderOf(target);
}

void WriteWholeFile(const fs::path& file, std::string_view contents)
{
    WholeFile whole(file);
    whole.Write(contents);
    whole.Commit();
}
