#pragma once

/// Writing a file so that it is the old or the new one, never half of either.

#include <filesystem>
#include <string>
#include <string_view>

/// True for a device, a pipe and the like: there is nothing to put a file in the place of.
bool IsSpecialFile(const std::filesystem::path& file);

/// Throws RunTimeError, as `WholeFile` does, for what no file may take the place of: 75 for a folder and a
/// special file, 70 for a write-protected file.
void RequireReplaceable(const std::filesystem::path& file);

/// A file that is written beside its target and takes the target's place by `Commit`. Until then, and
/// whatever goes wrong on the way, a file that stood there is as it was; without a commit nothing of the new
/// one stays, even when the program is killed before the file is finished.
///
/// A link stays a link: the file that it names is replaced, and keeps its rights. A write-protected file is
/// not replaced, even where its folder would permit it.
///
/// Every step throws RunTimeError with the file's name: 76 for a folder that is not there, 70 without
/// permission, 61 when the disk is full or the file grows too large, 75 for anything else, a folder and a
/// special file included.
class WholeFile
{
public:
    explicit WholeFile(const std::filesystem::path& file);
    /// A file that is finished at once.
    WholeFile(const std::filesystem::path& file, std::string_view contents);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void Write(std::string_view piece);
    /// Ends the file and waits for the disk; it can then be put in place.
    void Finish();
    /// Finishes the file, unless that is done, and puts it in place.
    void Commit();

    /// Where the finished file stands, and the file whose place it is to take.
    const std::filesystem::path& Path() const { return path; }
    const std::filesystem::path& Target() const { return target; }

private:
    void WriteOut(std::string_view bytes) const;
    void Remove() const;
    [[noreturn]] void Fail(int fault) const;

    std::filesystem::path name;
    std::filesystem::path target;
    std::filesystem::path path;
    std::string buffer;
    int handle = -1;
};

/// Lets a finished file take the place of the target in one step. Throws RunTimeError as `WholeFile`.
void PutInPlace(const std::filesystem::path& finished, const std::filesystem::path& target);

/// Writes all of a file at once; see `WholeFile`.
void WriteWholeFile(const std::filesystem::path& file, std::string_view contents);
