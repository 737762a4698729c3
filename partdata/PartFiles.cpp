#include "partdata/PartFiles.h"

#include "partdata/KeyedCollection.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

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

static bool StandsBefore(std::string_view a, std::string_view b)
{
    if (EqualKeys(a, b))
    {
        return a < b;
    }
    const auto code = [](char c) { return static_cast<unsigned char>(FoldCase(c)); };
    return std::ranges::lexicographical_compare(a, b, {}, code, code);
}

std::string FindPartFile(const std::string& programFolder, std::string_view extension)
{
    std::string first;
    std::error_code fault;
    std::filesystem::directory_iterator entry(programFolder, fault);
    for (; !fault && entry != std::filesystem::directory_iterator(); entry.increment(fault))
    {
        auto name = entry->path().filename().string();
        if (EndsIn(name, extension) && (first.empty() || StandsBefore(name, first)))
        {
            first = std::move(name);
        }
    }
    if (fault && fault != std::errc::no_such_file_or_directory)
    {
        throw RunTimeError(fault == std::errc::permission_denied ? RunTimeErrorNumber::PermissionDenied
                                                                 : RunTimeErrorNumber::PathFileAccessError)
            .At(programFolder);
    }
    if (first.empty())
    {
        throw RunTimeError(RunTimeErrorNumber::FileNotFound)
            .At(PlaceInFile{.File = "*" + std::string(extension), .Folder = programFolder});
    }
    return programFolder + PathSepOf(programFolder) + first;
}
