#include "files/FileState.h"

#include <sys/stat.h>

static std::int64_t NanosecondsOf(const timespec& time)
{
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

static FileState StateFrom(const struct stat& status)
{
    return {.File = {.Device = status.st_dev, .Node = status.st_ino},
            .Size = static_cast<std::uint64_t>(status.st_size),
            .Changed = NanosecondsOf(status.st_mtim),
            .Renamed = NanosecondsOf(status.st_ctim),
            .IsRegular = S_ISREG(status.st_mode)};
}

std::optional<FileState> StateOf(const std::filesystem::path& file)
{
    struct stat status = {};
    return stat(file.c_str(), &status) == 0 ? std::optional(StateFrom(status)) : std::nullopt;
}

std::optional<FileState> StateOf(int handle)
{
    struct stat status = {};
    return fstat(handle, &status) == 0 ? std::optional(StateFrom(status)) : std::nullopt;
}
