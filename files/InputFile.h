#pragma once

/// A file opened for reading, whose faults are run-time errors that name it.

#include "partdata/DataReader.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

/// A regular file, read from its start.
class InputFile final : public ByteSource
{
public:
    /// Throws RunTimeError 53 when there is no such file, and 75 when it cannot be read or is something
    /// else than a file, such as a folder.
    explicit InputFile(const std::filesystem::path& path);

    /// Size in bytes when the file was opened.
    std::uintmax_t Size() const { return size; }

    /// The file's name without its folder, for messages.
    const std::string& Name() const { return name; }

    /// Reads on until `bytes` is full or the file ends; returns how many bytes were read. Throws
    /// RunTimeError 75 when reading fails.
    std::size_t Read(std::span<char> bytes) override;

private:
    std::string name;
    std::uintmax_t size;
    std::ifstream stream;
};

/// All bytes of a file. Throws RunTimeError 53 or 75, and 6 for more than the most bytes.
std::string ReadBytes(const std::filesystem::path& file, std::uintmax_t most);
