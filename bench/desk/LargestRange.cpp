#include "bench/desk/LargestRange.h"

#include "files/PartLoading.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace fs = std::filesystem;

static std::string BytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

LargestRange::LargestRange()
    : folder(fs::temp_directory_path() / ("largest_range_" + std::to_string(getpid())))
{
    fs::create_directory(folder);
    const auto parts = LoadPartData(SAMPLE_RANGE);
    const std::string values = BytesOf(fs::path(SAMPLE_RANGE) / "halvex.dat");
    std::ofstream index(fs::path(folder) / "largest.idx", std::ios::binary);
    std::ofstream data(fs::path(folder) / "largest.dat", std::ios::binary);
    for (std::size_t i = 0; i < MostParts; ++i)
    {
        const std::size_t of = i % parts.PartData.size();
        const PartRecord& part = parts.PartData[of];
        for (const auto& partNum : part.PartNum)
        {
            index << partNum << '-' << i << ',';
        }
        index << part.SizeCode[0] << ',' << part.SizeCode[1] << ',' << part.Tcc[0] << ',' << part.Tcc[1]
              << "\r\n";
        data.write(values.data() + of * DataRecordBytes, DataRecordBytes);
    }
}

LargestRange::~LargestRange()
{
    fs::remove_all(folder);
}
