#pragma once

/// Which file it is, whatever its name, and whether anybody has changed it.

#include <cstdint>
#include <filesystem>
#include <optional>

/// A file of the system, whatever it is called.
struct FileIdentity
{
    std::uint64_t Device = 0;
    std::uint64_t Node = 0;

    bool operator==(const FileIdentity&) const = default;
};

/// A file as it was at one moment. While it is open no other file has the same identity.
struct FileState
{
    FileIdentity File;
    std::uint64_t Size = 0;
    /// When its bytes and when its name or rights changed last, in nanoseconds since 1970.
    std::int64_t Changed = 0;
    std::int64_t Renamed = 0;
    /// True for a file that keeps bytes; false for a folder, a device and the like.
    bool IsRegular = false;

    bool operator==(const FileState&) const = default;
};

/// The file of a name, links resolved; nothing where there is none or it cannot be asked.
std::optional<FileState> StateOf(const std::filesystem::path& file);

/// The file behind an open handle, such as 0 for standard input.
std::optional<FileState> StateOf(int handle);
