#pragma once

/// Files that are written whole beside their target before they take its place.

#include <filesystem>
#include <string_view>

/// A finished file beside its target, safely on the disk; removed with the object unless it has been moved.
class StagedFile
{
public:
    /// Writes all bytes. Throws RunTimeError with the target's name: 76 for a folder that is not there, 70
    /// without permission, 61 when the disk is full, 75 for anything else.
    StagedFile(const std::filesystem::path& target, std::string_view bytes);
    ~StagedFile();
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    const std::filesystem::path& Path() const { return path; }
    const std::filesystem::path& Target() const { return target; }

private:
    std::filesystem::path target;
    std::filesystem::path path;
};

/// Lets a finished file take the place of the target in one step. Throws RunTimeError as `StagedFile`.
void PutInPlace(const std::filesystem::path& finished, const std::filesystem::path& target);
