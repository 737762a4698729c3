#include "tests/partfiles/SmallPair.h"

#include "calc/ChartKinds.h"
#include "files/PartLoading.h"
#include "partdata/PartTable.h"
#include "partfiles/PairCheck.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>

SmallPair::SmallPair()
{
    static const PartTable Range = LoadPartData(SAMPLE_DATA);
    for (const std::string tcc : {"X7R", "X5R", "Y5V"})
    {
        const auto found = std::ranges::find_if(
            Range.PartData, [&](const PartRecord& part)
            { return part.Tcc[0] == tcc && IsAvailable(part, 0) && IsAvailable(part, 2); });
        auto& part = Parts.emplace_back();
        std::ranges::copy(NamesOf(*found), part.Names.begin());
        part.Data = found->Data;
    }
}

std::string SmallPair::Index(const std::string& lineEnd) const
{
    std::string text;
    for (const auto& part : Parts)
    {
        for (std::size_t i = 0; i < NameFields; ++i)
        {
            text += (i == 0 ? "\"" : ",\"") + part.Names[i] + "\"";
        }
        text += lineEnd;
    }
    return text;
}

std::string SmallPair::Data() const
{
    std::string bytes;
    for (const auto& part : Parts)
    {
        std::array<char, sizeof part.Data> record;
        std::memcpy(record.data(), part.Data.data(), record.size());
        bytes.append(record.data(), record.size());
    }
    return bytes;
}

PairReport CheckFiles(const std::string& index, const std::string& data)
{
    const TemporaryFolder folder;
    folder.Write("parts.idx", index);
    folder.Write("parts.dat", data);
    return CheckPair(folder.Path());
}

std::string BytesOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
