#include "files/StagedPair.h"

#include <system_error>

namespace fs = std::filesystem;

static constexpr std::string_view WritingEnd = ".writing";
static constexpr std::string_view StagedEnd = ".new";

static fs::path FolderOf(const fs::path& pair, std::string_view end)
{
    return pair.parent_path() / ("." + pair.filename().string() + std::string(end));
}

static fs::path PairOf(const fs::path& folder, std::string_view end)
{
    auto name = folder.filename().string();
    if (!name.starts_with('.') || !name.ends_with(end) || name.size() <= end.size() + 1)
    {
        return {};
    }
    return folder.parent_path() / name.substr(1, name.size() - end.size() - 1);
}

static bool IsThere(const fs::path& file)
{
    std::error_code fault;
    return fs::exists(file, fault);
}

fs::path WritingFolderOf(const fs::path& pair)
{
    return FolderOf(pair, WritingEnd);
}

fs::path StagedFolderOf(const fs::path& pair)
{
    return FolderOf(pair, StagedEnd);
}

fs::path PairOfWriting(const fs::path& folder)
{
    return PairOf(folder, WritingEnd);
}

fs::path PairOfStaged(const fs::path& folder)
{
    return PairOf(folder, StagedEnd);
}

fs::path FileInStage(const fs::path& folder, std::string_view extension)
{
    return folder / extension.substr(1);
}

fs::path StagedOf(const fs::path& partFile)
{
    const auto extension = partFile.extension().string();
    return extension.size() < 2
               ? partFile
               : FileInStage(StagedFolderOf(fs::path(partFile).replace_extension()), extension);
}

bool IsStaged(const fs::path& staged)
{
    return IsThere(staged);
}

fs::path WhereRead(const fs::path& partFile)
{
    auto staged = StagedOf(partFile);
    return IsStaged(staged) ? staged : partFile;
}

std::string NameOfStaged(const fs::path& entry, std::string_view extension)
{
    const auto pair = PairOfStaged(entry);
    if (pair.empty())
    {
        return {};
    }
    const auto partFile = fs::path(pair) += extension;
    // The staged file is asked for first: it moves from there to its own name, never back.
    return IsThere(FileInStage(entry, extension)) || IsThere(partFile) ? partFile.filename().string() : "";
}
