#include "board/FilesBeside.h"

#include "files/InputFile.h"
#include "partdata/OneLine.h"

#include <algorithm>
#include <stdexcept>

std::filesystem::path PathBeside(const std::filesystem::path& naming, const std::string& name)
{
    const auto parent = naming.parent_path();
    const auto folder = std::filesystem::weakly_canonical(parent.empty() ? "." : parent);
    const auto file = std::filesystem::weakly_canonical(folder / name);
    const auto common = std::ranges::mismatch(folder, file);
    if (common.in1 != folder.end())
    {
        throw std::runtime_error('"' + OneLine(name) +
                                 "\" lies outside the folder of the file that names it");
    }
    return file;
}

std::string ReadBeside(const std::filesystem::path& naming, const std::string& name, std::uintmax_t most)
{
    return ReadBytes(PathBeside(naming, name), most);
}
