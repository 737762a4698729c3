#pragma once

/// A file opened for reading, whose faults are run-time errors that name it.

#include "files/FileState.h"
#include "partdata/DataReader.h"

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <span>
#include <string>

/// A regular file, read from its start.
class InputFile final : public ByteSource
{
public:
    /// Throws RunTimeError 53 when there is no such file, and 75 when it cannot be read or is something
    /// else than a file, such as a folder.
    explicit InputFile(const std::filesystem::path& path);
    /// As above, for a file that messages call by another name.
    InputFile(const std::filesystem::path& path, std::string shownName);
    ~InputFile() override;
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    /// Size in bytes when the file was opened.
    std::uintmax_t Size() const { return state.Size; }

    /// The file as it was when it was opened.
    const FileState& State() const { return state; }

    /// The file's name without its folder, for messages.
    const std::string& Name() const { return name; }

    /// Reads on until `bytes` is full or the file ends; returns how many bytes were read. Throws
    /// RunTimeError 75 when reading fails.
    std::size_t Read(std::span<char> bytes) override;

    /// The next reading begins at the file's start again.
    void Rewind() const;

private:
    std::string name;
    FileState state;
    int handle = -1;
};

/// The bytes that are left of an opened file. Throws RunTimeError 75, and 6 for more than the most bytes.
std::string ReadBytes(InputFile& input, std::uintmax_t most);

/// All bytes of a stream that messages call by a name. Throws RunTimeError 75 when reading fails, and 6 for
/// more than the most bytes, of which it reads little more.
std::string ReadBytes(std::istream& stream, const std::string& name, std::uintmax_t most);

/// All bytes of a file. Throws RunTimeError 53 or 75, and 6 for more than the most bytes.
std::string ReadBytes(const std::filesystem::path& file, std::uintmax_t most);
