#include "partdata/PartTable.h"

#include "partdata/DataReader.h"
#include "partdata/IndexReader.h"
#include "partdata/InputFile.h"
#include "partdata/OneLine.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"

#include <algorithm>
#include <new>
#include <system_error>

/// The shortest index record: eight empty fields.
static constexpr std::size_t LeastIndexRecordBytes = 8;
/// Of a part number that a message names; the message cuts it to a line anyway.
static constexpr std::size_t ToldPartNumBytes = 100;

static void ReadNames(PartTable& table, InputFile& file, std::size_t dataRecords)
{
    if (file.Size() > MostIndexBytes)
    {
        throw RunTimeError(RunTimeErrorNumber::Overflow).At(file.Name());
    }
    table.indexText = std::make_unique_for_overwrite<char[]>(file.Size());
    const auto size = file.Read({table.indexText.get(), static_cast<std::size_t>(file.Size())});

    // As a rule there is one data record for each part; a longer data file must not make us reserve more
    // than the index can name.
    table.PartData.reserve(std::min({dataRecords, size / LeastIndexRecordBytes + 1, MostParts}));

    IndexReader index({table.indexText.get(), size}, file.Name());
    while (index.FindRecord())
    {
        if (table.PartData.size() == MostParts)
        {
            // The record is counted once it is whole.
            PartRecord surplus;
            index.ReadRecord(surplus);
            throw RunTimeError(RunTimeErrorNumber::Overflow)
                .At(PlaceInFile{.File = file.Name(), .Record = MostParts + 1});
        }
        index.ReadRecord(table.PartData.emplace_back());
    }
    table.PartMax = static_cast<std::int16_t>(static_cast<int>(table.PartData.size()) - 1);
}

static void IndexPartNumbers(PartTable& table, const std::string& fileName)
{
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        auto& index = table.PartIndex[form];
        index.Reserve(table.PartData.size());
        for (std::size_t i = 0; i < table.PartData.size(); ++i)
        {
            const auto partNum = table.PartData[i].PartNum[form];
            if (!index.Add(static_cast<std::int16_t>(i), partNum))
            {
                throw RunTimeError(RunTimeErrorNumber::DuplicateKey)
                    .At(PlaceInFile{.File = fileName,
                                    .Record = i + 1,
                                    .Field = form + 1,
                                    .FieldName = "PartNum(" + std::to_string(form) + ")",
                                    .FieldText =
                                        OneLine(Utf8FromWindows1252(partNum.substr(0, ToldPartNumBytes)))});
            }
        }
    }
}

/// Pairs two namings; the first part that names a pair wins.
static void PairNamings(std::array<KeyedCollection<std::string_view>, CodeForms>& maps,
                        const std::vector<PartRecord>& parts,
                        std::array<std::string_view, CodeForms> PartRecord::*names)
{
    const PartRecord* previous = nullptr;
    for (const auto& part : parts)
    {
        const auto& pair = part.*names;
        // Neighbours in the range mostly bear the same names, which need no second attempt.
        if (previous == nullptr || pair != previous->*names)
        {
            maps[0].Add(pair[0], pair[1]);
            maps[1].Add(pair[1], pair[0]);
        }
        previous = &part;
    }
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
    InputFile index(indexFile);
    PartTable table;
    ReadNames(table, index, DataRecordsOf(dataFile));
    // A fault of the index is told before one of the data file.
    InputFile data(dataFile);
    ReadPartValues(data, table.PartData);
    IndexPartNumbers(table, index.Name());
    PairNamings(table.SizeCodeMap, table.PartData, &PartRecord::SizeCode);
    PairNamings(table.TccMap, table.PartData, &PartRecord::Tcc);
    return table;
}

PartTable LoadPartData(const std::string& programFolder)
{
    const auto indexFile = FindPartFile(programFolder, ".idx");
    const auto dataFile = FindPartFile(programFolder, ".dat");
    try
    {
        return ReadPartPair(indexFile, dataFile);
    }
    catch (const std::bad_alloc&)
    {
        throw RunTimeError(RunTimeErrorNumber::OutOfMemory).At(indexFile);
    }
}
