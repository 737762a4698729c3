#include "partdata/PartTable.h"

#include "partdata/DataReader.h"
#include "partdata/IndexReader.h"
#include "partdata/InputFile.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <limits>

static constexpr std::size_t MostParts = std::numeric_limits<std::int16_t>::max();
/// The shortest index record: eight empty fields.
static constexpr std::size_t LeastIndexRecordBytes = 8;
/// Far beyond any range of parts; a larger file is something else, and is not loaded to find out.
static constexpr std::uintmax_t MostIndexBytes = std::numeric_limits<std::int32_t>::max();

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
    PartRecord part;
    while (index.ReadRecord(part))
    {
        if (index.RecordCount() > MostParts)
        {
            throw RunTimeError(RunTimeErrorNumber::Overflow)
                .At(file.Name() + ": record " + std::to_string(index.RecordCount()));
        }
        table.PartData.push_back(part);
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
                    .At(fileName + ": record " + std::to_string(i + 1) + ": PartNum(" + std::to_string(form) +
                        ") \"" + std::string(partNum) + "\"");
            }
        }
    }
}

/// Pairs the two namings of sizes and characteristics; the first part that names a pair wins.
static void PairNamings(PartTable& table)
{
    for (const auto& part : table.PartData)
    {
        for (std::size_t form = 0; form < CodeForms; ++form)
        {
            table.SizeCodeMap[form].Add(part.SizeCode[form], part.SizeCode[1 - form]);
            table.TccMap[form].Add(part.Tcc[form], part.Tcc[1 - form]);
        }
    }
}

PartTable ReadPartPair(const std::filesystem::path& indexFile, const std::filesystem::path& dataFile)
{
    InputFile index(indexFile);
    InputFile data(dataFile);

    PartTable table;
    ReadNames(table, index, static_cast<std::size_t>(data.Size() / DataRecordBytes));
    ReadPartValues(data, table.PartData);
    IndexPartNumbers(table, index.Name());
    PairNamings(table);
    return table;
}

PartTable LoadPartData(const std::string& programFolder)
{
    const auto indexFile = FindPartFile(programFolder, ".idx");
    const auto dataFile = FindPartFile(programFolder, ".dat");
    return ReadPartPair(indexFile, dataFile);
}
