#include "partfiles/PairReplacement.h"

#include "files/FolderLock.h"
#include "files/InputFile.h"
#include "files/PartFiles.h"
#include "files/StagedPair.h"
#include "files/SystemFault.h"
#include "files/WholeFile.h"
#include "partdata/RunTimeError.h"

#include <array>
#include <cerrno>
#include <system_error>
#include <vector>

#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
/// Size of the largest file that is copied behind a link, far beyond any of a pair.
constexpr std::uintmax_t MostCopiedBytes = std::uintmax_t{256} << 20;

fs::path FolderOf(const fs::path& name)
{
    return name.has_parent_path() ? name.parent_path() : fs::path(".");
}

/// One replacement, with the folder locked.
class Replacement
{
public:
    Replacement(const fs::path& pairName, const BeforeStep& everyStep)
        : name(pairName)
        , beforeStep(everyStep)
        , lock(FolderOf(pairName))
    {
    }

    void ClearLeftovers() const;
    void Write(const PairBytes& pair) const;
    void MakeItCount() const;
    /// Moves the files of a pair that counts to their own names.
    void Finish(const fs::path& pair) const;

private:
    void WriteFile(const fs::path& file, const fs::path& target, std::string_view bytes) const;
    void MoveOut(const fs::path& staged, const fs::path& target) const;

    fs::path name;
    const BeforeStep& beforeStep;
    FolderLock lock;
};

/// What is there was left by writers that are dead, since this one has the lock.
void Replacement::ClearLeftovers() const
{
    std::vector<fs::path> entries;
    for (const auto& entry : fs::directory_iterator(FolderOf(name)))
    {
        entries.push_back(entry.path());
    }
    for (const auto& entry : entries)
    {
        if (!PairOfWriting(entry).empty())
        {
            fs::remove_all(entry);
        }
        if (!PairOfStaged(entry).empty() && fs::is_directory(fs::symlink_status(entry)))
        {
            Finish(PairOfStaged(entry));
        }
    }
}

void Replacement::WriteFile(const fs::path& file, const fs::path& target, std::string_view bytes) const
{
    beforeStep();
    try
    {
        WriteWholeFile(file, bytes);
    }
    catch (const RunTimeError& error)
    {
        throw error.At(target.string());
    }
    std::error_code fault;
    if (const auto old = fs::status(target, fault); fs::exists(old))
    {
        // A file system without rights of its own refuses; all its files have the same.
        fs::permissions(file, old.permissions() & fs::perms::all, fault);
    }
}

void Replacement::Write(const PairBytes& pair) const
{
    const auto target = PairNamed(name);
    const auto folder = WritingFolderOf(name);
    beforeStep();
    std::error_code fault;
    if (!fs::create_directory(folder, fault))
    {
        FailWith(fault.value(), target.Data);
    }
    try
    {
        WriteFile(FileInStage(folder, DataExtension), target.Data, pair.Data);
        WriteFile(FileInStage(folder, IndexExtension), target.Index, pair.Index);
    }
    catch (...)
    {
        fs::remove_all(folder, fault);
        throw;
    }
}

void Replacement::MakeItCount() const
{
    const auto folder = WritingFolderOf(name);
    std::error_code fault;
    try
    {
        beforeStep();
        fs::rename(folder, StagedFolderOf(name), fault);
        if (fault)
        {
            FailWith(fault.value(), PairNamed(name).Index);
        }
    }
    catch (...)
    {
        fs::remove_all(folder, fault);
        throw;
    }
    lock.Sync();
}

void Replacement::MoveOut(const fs::path& staged, const fs::path& target) const
{
    std::error_code fault;
    if (!fs::exists(staged, fault))
    {
        return;
    }
    beforeStep();
    if (!fs::is_symlink(target, fault))
    {
        PutInPlace(staged, target);
        return;
    }
    // The file behind a link may stand on another disk, where nothing can be moved to.
    WriteWholeFile(target, ReadBytes(staged, MostCopiedBytes));
    fs::remove(staged);
}

void Replacement::Finish(const fs::path& pair) const
{
    const auto folder = StagedFolderOf(pair);
    const auto target = PairNamed(pair);
    MoveOut(FileInStage(folder, DataExtension), target.Data);
    MoveOut(FileInStage(folder, IndexExtension), target.Index);
    beforeStep();
    if (rmdir(folder.c_str()) != 0)
    {
        FailWith(errno, folder);
    }
    lock.Sync();
}
} // namespace

void RequirePairReplaceable(const fs::path& name)
{
    const auto target = PairNamed(name);
    if (access(FolderOf(name).c_str(), W_OK | X_OK) != 0)
    {
        FailWith(errno, target.Data);
    }
    RequireReplaceable(target.Data);
    RequireReplaceable(target.Index);
}

void ReplacePair(const fs::path& name, const PairBytes& pair, const BeforeStep& beforeStep)
{
    RequirePairReplaceable(name);
    const Replacement replacement(name, beforeStep);
    replacement.ClearLeftovers();
    replacement.Write(pair);
    replacement.MakeItCount();
    replacement.Finish(name);
}
