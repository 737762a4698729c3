#include "files/PartFiles.h"

#include "files/StagedPair.h"
#include "partdata/KeyedCollection.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <system_error>

namespace fs = std::filesystem;

static bool IsSeparator(char c)
{
    return c == '/' || c == '\\';
}

char PathSepOf(std::string_view programFolder)
{
    if (!programFolder.empty() && IsSeparator(programFolder.front()))
    {
        return programFolder.front();
    }
    if (programFolder.size() >= 3 && programFolder[1] == ':')
    {
        return programFolder[2];
    }
    return '/';
}

static bool EndsIn(std::string_view name, std::string_view extension)
{
    return name.size() >= extension.size() &&
           EqualKeys(name.substr(name.size() - extension.size()), extension);
}

static bool IsFolder(const fs::path& path)
{
    std::error_code fault;
    return fs::is_directory(path, fault);
}

bool StandsBefore(std::string_view a, std::string_view b)
{
    if (EqualKeys(a, b))
    {
        return a < b;
    }
    const auto code = [](char c) { return static_cast<unsigned char>(FoldCase(c)); };
    return std::ranges::lexicographical_compare(a, b, {}, code, code);
}

std::vector<std::string> NamesOfPartFiles(const std::string& folder, std::string_view extension)
{
    std::vector<std::string> names;
    std::error_code fault;
    fs::directory_iterator entry(folder, fault);
    for (; !fault && entry != fs::directory_iterator(); entry.increment(fault))
    {
        auto name = entry->path().filename().string();
        if (EndsIn(name, extension) && !IsFolder(entry->path()))
        {
            names.push_back(std::move(name));
        }
        else if (const auto staged = NameOfStaged(entry->path(), extension); !staged.empty())
        {
            names.push_back(staged);
        }
    }
    if (fault && fault != std::errc::no_such_file_or_directory)
    {
        throw RunTimeError(fault == std::errc::permission_denied ? RunTimeErrorNumber::PermissionDenied
                                                                 : RunTimeErrorNumber::PathFileAccessError)
            .At(folder);
    }
    std::ranges::sort(names, StandsBefore);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

std::string FindPartFile(const std::string& programFolder, std::string_view extension)
{
    const auto names = NamesOfPartFiles(programFolder, extension);
    if (names.empty())
    {
        throw RunTimeError(RunTimeErrorNumber::FileNotFound)
            .At(PlaceInFile{.File = "*" + std::string(extension), .Folder = programFolder});
    }
    return programFolder + PathSepOf(programFolder) + names.front();
}

PairPaths PairNamed(const fs::path& name)
{
    return {.Index = fs::path(name) += IndexExtension, .Data = fs::path(name) += DataExtension};
}

fs::path IndexFileOf(const fs::path& pair)
{
    return IsFolder(pair) ? fs::path(FindPartFile(pair.string(), IndexExtension)) : pair;
}

fs::path DataFileOf(const fs::path& pair)
{
    if (IsFolder(pair))
    {
        return FindPartFile(pair.string(), DataExtension);
    }
    auto wanted = fs::path(pair).replace_extension(DataExtension);
    std::error_code fault;
    if (fs::exists(WhereRead(wanted), fault))
    {
        return wanted;
    }
    const auto folder = pair.has_parent_path() ? pair.parent_path() : fs::path(".");
    for (fs::directory_iterator entry(folder, fault); !fault && entry != fs::directory_iterator();
         entry.increment(fault))
    {
        if (EqualKeys(entry->path().filename().string(), wanted.filename().string()))
        {
            return entry->path();
        }
    }
    throw RunTimeError(RunTimeErrorNumber::FileNotFound).At(wanted.filename().string());
}
