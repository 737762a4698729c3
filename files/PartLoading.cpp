#include "files/PartLoading.h"

#include "files/PartFiles.h"
#include "partdata/RunTimeError.h"

#include <new>

static IndexSource ReadIndex(InputFile& file)
{
    CheckIndexSize(file.Size(), file.Name());
    const auto size = static_cast<std::size_t>(file.Size());
    IndexSource index = {
        .Bytes = std::make_unique_for_overwrite<char[]>(size), .Size = 0, .Name = file.Name()};
    index.Size = file.Read({index.Bytes.get(), size});
    return index;
}

PartTable ReadPartPair(PairReading& pair)
{
    // A fault of the index is told before one of the data file, which is opened once the names are there.
    const auto readValues = [&pair](std::span<PartRecord> parts) { ReadPartValues(pair.Data(), parts); };
    return MakePartTable(ReadIndex(pair.Index()),
                         static_cast<std::size_t>(pair.DataBytes() / DataRecordBytes), readValues);
}

PartTable ReadPartPair(const std::filesystem::path& indexFile, const std::filesystem::path& dataFile)
{
    PartTable table;
    ReadSettled(SearchFor(PairPaths{.Index = indexFile, .Data = dataFile}),
                [&table](PairReading& pair) { table = ReadPartPair(pair); });
    return table;
}

PartTable LoadPartData(const std::string& programFolder)
{
    PartTable table;
    std::string indexFile;
    const PairSearch search = {.Index = [&] { return FindPartFile(programFolder, IndexExtension); },
                               .Data = [&] { return FindPartFile(programFolder, DataExtension); }};
    const auto read = [&](PairReading& pair)
    {
        // That one of the two is missing is told before anything that is wrong with the other.
        indexFile = pair.IndexPath();
        pair.DataPath();
        table = ReadPartPair(pair);
    };
    try
    {
        ReadSettled(search, read);
    }
    catch (const std::bad_alloc&)
    {
        throw RunTimeError(RunTimeErrorNumber::OutOfMemory).At(indexFile);
    }
    return table;
}
