#include "partdata/PartTable.h"

#include "partdata/DataReader.h"
#include "partdata/FieldNames.h"
#include "partdata/IndexReader.h"
#include "partdata/OneLine.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"

#include <algorithm>
#include <utility>

/// The shortest index record: eight empty fields.
static constexpr std::size_t LeastIndexRecordBytes = 8;
/// Of a part number that a message names; the message cuts it to a line anyway.
static constexpr std::size_t ToldPartNumBytes = 100;

static void ReadNames(PartTable& table, IndexSource source, std::size_t expectedParts)
{
    // A long data file must not make us reserve more than the index can name.
    table.PartData.reserve(std::min({expectedParts, source.Size / LeastIndexRecordBytes + 1, MostParts}));
    table.indexText = std::move(source.Bytes);

    IndexReader index({table.indexText.get(), source.Size}, source.Name);
    while (index.FindRecord())
    {
        if (table.PartData.size() == MostParts)
        {
            // The record is counted once it is whole.
            PartRecord surplus;
            index.ReadRecord(surplus);
            throw RunTimeError(RunTimeErrorNumber::Overflow)
                .At(PlaceInFile{.File = source.Name, .Record = MostParts + 1});
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
                                    .FieldName = FieldName(form),
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

PartTable MakePartTable(IndexSource index, std::size_t expectedParts, const ValueReader& readValues)
{
    const auto name = index.Name;
    PartTable table;
    ReadNames(table, std::move(index), expectedParts);
    readValues(table.PartData);
    IndexPartNumbers(table, name);
    PairNamings(table.SizeCodeMap, table.PartData, &PartRecord::SizeCode);
    PairNamings(table.TccMap, table.PartData, &PartRecord::Tcc);
    return table;
}

PartTable ReadPartPair(std::string_view indexText, std::string_view data, const std::string& indexName)
{
    CheckIndexSize(indexText.size(), indexName);
    IndexSource index = {.Bytes = std::make_unique_for_overwrite<char[]>(indexText.size()),
                         .Size = indexText.size(),
                         .Name = indexName};
    indexText.copy(index.Bytes.get(), indexText.size());
    MemorySource source(data);
    return MakePartTable(std::move(index), data.size() / DataRecordBytes,
                         [&source](std::span<PartRecord> parts) { ReadPartValues(source, parts); });
}

void CheckIndexSize(std::uintmax_t bytes, const std::string& indexName)
{
    if (bytes > MostIndexBytes)
    {
        throw RunTimeError(RunTimeErrorNumber::Overflow).At(indexName);
    }
}
