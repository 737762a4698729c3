#include "files/PartLoading.h"

#include "files/InputFile.h"
#include "files/PartFiles.h"
#include "partdata/RunTimeError.h"

#include <new>
#include <system_error>
#include <utility>

static IndexSource ReadIndex(const std::filesystem::path& indexFile)
{
    InputFile file(indexFile);
    CheckIndexSize(file.Size(), file.Name());
    const auto size = static_cast<std::size_t>(file.Size());
    IndexSource index = {
        .Bytes = std::make_unique_for_overwrite<char[]>(size), .Size = 0, .Name = file.Name()};
    index.Size = file.Read({index.Bytes.get(), size});
    return index;
}

/// How many records a data file holds; 0 where that is not known.
static std::size_t DataRecordsOf(const std::filesystem::path& dataFile)
{
    std::error_code fault;
    const auto size = std::filesystem::file_size(dataFile, fault);
    return fault ? 0 : static_cast<std::size_t>(size / DataRecordBytes);
}

PartTable ReadPartPair(const std::filesystem::path& indexFile, const std::filesystem::path& dataFile)
{
    // A fault of the index is told before one of the data file, which is opened once the names are there.
    const auto readValues = [&dataFile](std::span<PartRecord> parts)
    {
        InputFile data(dataFile);
        ReadPartValues(data, parts);
    };
    return MakePartTable(ReadIndex(indexFile), DataRecordsOf(dataFile), readValues);
}

PartTable LoadPartData(const std::string& programFolder)
{
    const auto indexFile = FindPartFile(programFolder, IndexExtension);
    const auto dataFile = FindPartFile(programFolder, DataExtension);
    try
    {
        return ReadPartPair(indexFile, dataFile);
    }
    catch (const std::bad_alloc&)
    {
        throw RunTimeError(RunTimeErrorNumber::OutOfMemory).At(indexFile);
    }
}
