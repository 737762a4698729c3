#pragma once

/// Folders whose part files are odd as files: missing, no files at all, links, pipes, far too large.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// One way to put part files into an empty folder.
struct OddFolder
{
    const char* Name;
    std::function<void(const std::filesystem::path&)> Write;
};

const std::vector<OddFolder>& OddFolders();

/// Folders with far too much in their index files, or just as much as there may be. They take their time.
const std::vector<OddFolder>& LargeFolders();
