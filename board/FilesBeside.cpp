#include "board/FilesBeside.h"

#include "files/InputFile.h"
#include "partdata/OneLine.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <stdexcept>

namespace fs = std::filesystem;

/// A path without links and steps up, as far as it can be asked.
static fs::path Resolved(const fs::path& path, const std::string& name)
{
    std::error_code fault;
    const auto resolved = fs::weakly_canonical(path, fault);
    return fault ? throw std::runtime_error('"' + OneLine(name) + "\" names no file") : resolved;
}

fs::path PathBeside(const fs::path& naming, const std::string& name)
{
    const auto parent = naming.parent_path();
    const auto folder = Resolved(parent.empty() ? "." : parent, name);
    const auto file = Resolved(folder / name, name);
    const auto common = std::ranges::mismatch(folder, file);
    if (common.in1 != folder.end())
    {
        throw std::runtime_error('"' + OneLine(name) +
                                 "\" lies outside the folder of the file that names it");
    }
    return file;
}

std::string ReadBeside(const fs::path& naming, const std::string& name, std::uintmax_t most)
{
    const auto path = PathBeside(naming, name);
    try
    {
        return ReadBytes(path, most);
    }
    catch (const RunTimeError& error)
    {
        throw std::runtime_error('"' + OneLine(name) + "\": " + error.Description());
    }
}
