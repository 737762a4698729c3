#include "partfiles/PairReplacement.h"

#include "files/InputFile.h"
#include "partdata/IndexReader.h"
#include "partdata/RunTimeError.h"

#include <exception>
#include <memory>
#include <optional>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace
{
/// Size of the largest file that is kept in memory to be put back, far beyond any of a pair.
constexpr std::uintmax_t MostReplacedBytes = std::uintmax_t{256} << 20;

std::optional<std::string> BytesIfThere(const fs::path& file)
{
    std::error_code fault;
    return fs::exists(file, fault) ? std::optional(ReadBytes(file, MostReplacedBytes)) : std::nullopt;
}

/// The names of an index, or nothing when it does not read to its end; the program refuses such a pair.
std::optional<std::vector<PartNames>> NamesIn(std::string_view indexText)
{
    std::vector<PartNames> names;
    IndexReader reader(indexText, "");
    try
    {
        while (reader.FindRecord())
        {
            PartRecord part;
            reader.ReadRecord(part);
            names.push_back(NamesOf(part));
        }
    }
    catch (const RunTimeError&)
    {
        return std::nullopt;
    }
    return names;
}

/// The index of the parts that both indexes begin with, or nothing when the old index is no more than those
/// or cannot be read.
std::optional<std::string> CommonIndex(const std::string& oldIndex, const std::string& newIndex)
{
    const auto before = NamesIn(oldIndex);
    const auto after = NamesIn(newIndex);
    if (!before || !after)
    {
        return std::nullopt;
    }
    std::size_t common = 0;
    while (common < before->size() && common < after->size() && (*before)[common] == (*after)[common])
    {
        ++common;
    }
    if (common == before->size())
    {
        return std::nullopt;
    }
    return IndexText(std::span(*before).first(common), "\n");
}

/// Puts back what stood there; false when that fails too.
bool PutBack(const fs::path& file, const std::optional<std::string>& bytes)
{
    try
    {
        if (bytes)
        {
            WriteWholeFile(file, *bytes);
        }
        else
        {
            fs::remove(file);
        }
        return true;
    }
    catch (const std::exception&)
    {
        return false;
    }
}
} // namespace

void ReplacePair(const PairPaths& target, const PairBytes& pair, const Placing& place)
{
    const auto oldIndex = BytesIfThere(target.Index);
    const auto oldData = BytesIfThere(target.Data);
    const auto common = oldIndex ? CommonIndex(*oldIndex, pair.Index) : std::nullopt;

    const WholeFile data(target.Data, pair.Data);
    const WholeFile index(target.Index, pair.Index);
    const auto commonIndex = common ? std::make_unique<WholeFile>(target.Index, *common) : nullptr;

    // No two renamings are one step. Were the data put in place under the old index, the parts behind an
    // inserted one would show the curves of their neighbours. So the index is first cut down to the parts
    // that are the same in both; these fit the old data as well as the new, whose surplus is ignored. The
    // new index comes last, when all its data are there; where there was no index, nothing loads before.
    try
    {
        if (commonIndex)
        {
            place(commonIndex->Path(), commonIndex->Target());
        }
        place(data.Path(), data.Target());
        place(index.Path(), index.Target());
    }
    catch (...)
    {
        // Without its data the old index must not come back; the cut one then stays, which is good.
        if (PutBack(data.Target(), oldData))
        {
            PutBack(index.Target(), oldIndex);
        }
        throw;
    }
}
