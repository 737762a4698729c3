#pragma once

/// A folder for the files of one test.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

/// A new empty folder, removed with the object and all it holds.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        auto pattern = (std::filesystem::temp_directory_path() / "partdata_XXXXXX").string();
        path = mkdtemp(pattern.data());
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string Path() const { return path.string(); }

    std::filesystem::path Write(const std::string& name, std::string_view bytes) const
    {
        std::ofstream(path / name, std::ios::binary) << bytes;
        return path / name;
    }

private:
    std::filesystem::path path;
};
