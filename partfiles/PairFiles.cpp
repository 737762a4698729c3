#include "partfiles/PairFiles.h"

#include "partdata/InputFile.h"
#include "partdata/KeyedCollection.h"
#include "partdata/PartFiles.h"
#include "partdata/RunTimeError.h"

#include <system_error>

namespace fs = std::filesystem;

static bool IsFolder(const fs::path& path)
{
    std::error_code fault;
    return fs::is_directory(path, fault);
}

fs::path IndexOf(const fs::path& pair)
{
    return IsFolder(pair) ? fs::path(FindPartFile(pair.string(), ".idx")) : pair;
}

fs::path DataOf(const fs::path& pair)
{
    if (IsFolder(pair))
    {
        return FindPartFile(pair.string(), ".dat");
    }
    const auto wanted = fs::path(pair).replace_extension(".dat");
    std::error_code fault;
    if (fs::exists(wanted, fault))
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

std::string ReadBytes(const fs::path& file, std::uintmax_t most)
{
    InputFile input(file);
    if (input.Size() > most)
    {
        throw RunTimeError(RunTimeErrorNumber::Overflow).At(input.Name());
    }
    std::string bytes(static_cast<std::size_t>(input.Size()), '\0');
    bytes.resize(input.Read({bytes.data(), bytes.size()}));
    return bytes;
}
