/// A pair of part files as the program loads it: a table that agrees with itself and with both files, or one
/// run-time error that names the place.

#include "calc/ChartKinds.h"
#include "fuzz/Allocations.h"
#include "fuzz/PairInput.h"
#include "fuzz/Require.h"
#include "partdata/DataReader.h"
#include "partdata/PartTable.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <bit>
#include <cstdint>

/// The single at a place of a little-endian file; zero where the record is not whole.
static std::uint32_t BitsAt(std::string_view data, std::size_t record, std::size_t value)
{
    if ((record + 1) * DataRecordBytes > data.size())
    {
        return 0;
    }
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 4; ++i)
    {
        const auto byte = static_cast<unsigned char>(data[record * DataRecordBytes + 4 * value + i]);
        bits |= std::uint32_t{byte} << (8 * i);
    }
    return bits;
}

static void RequireRecord(const PartTable& table, std::size_t i, std::string_view data)
{
    const auto& part = table.PartData[i];
    for (std::size_t value = 0; value < DataValues; ++value)
    {
        Require(std::bit_cast<std::uint32_t>(part.Data[value]) == BitsAt(data, i, value),
                "a part has the values of its data record");
    }
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        const auto* const found = table.PartIndex[form].Find(part.PartNum[form]);
        Require(found != nullptr && *found == static_cast<std::int16_t>(i),
                "each part is found by each of its numbers");
    }
    Require((data.size() >= (i + 1) * DataRecordBytes) || !IsAvailable(part, 0),
            "a part without data is in no list");
}

/// The first part that bears a name decides what it means in the other naming.
static void RequirePairs(const std::array<KeyedCollection<std::string_view>, CodeForms>& maps,
                         const PartTable& table, std::array<std::string_view, CodeForms> PartRecord::*names)
{
    for (std::size_t naming = 0; naming < CodeForms; ++naming)
    {
        std::size_t different = 0;
        for (auto part = table.PartData.begin(); part != table.PartData.end(); ++part)
        {
            const auto other = ((*part).*names)[1 - naming];
            const auto first = std::find_if(table.PartData.begin(), part + 1,
                                            [&](const auto& earlier)
                                            { return EqualKeys((earlier.*names)[1 - naming], other); });
            const auto* const meaning = maps[naming].Find(other);
            Require(meaning != nullptr && *meaning == ((*first).*names)[naming],
                    "a name means what the first part says");
            different += first == part ? 1 : 0;
        }
        Require(maps[naming].size() == different, "a name is told once");
    }
}

static void RequireTable(const PartTable& table, std::string_view index, std::string_view data)
{
    Require(table.PartMax == static_cast<std::int16_t>(static_cast<int>(table.PartData.size()) - 1),
            "PartMax is the highest index");
    Require(table.PartData.size() <= index.size() / 8 + 1, "eight fields take eight bytes");
    for (const auto& keys : table.PartIndex)
    {
        Require(keys.size() == table.PartData.size(), "each number is a key");
    }
    for (std::size_t i = 0; i < table.PartData.size(); ++i)
    {
        RequireRecord(table, i, data);
    }
    RequirePairs(table.SizeCodeMap, table, &PartRecord::SizeCode);
    RequirePairs(table.TccMap, table, &PartRecord::Tcc);
}

static void RequireError(const RunTimeError& error)
{
    const auto& where = error.Where();
    Require(error.Number() == 62 || error.Number() == 457, "a pair that can be read fails with 62 or 457");
    Require(where.File == "parts.idx" && where.Record >= 1, "the error names file and record");
    Require(where.Field >= 1 && where.Field <= 8, "the error names the field");
    Require((error.Number() == 457) == where.FieldName.starts_with("PartNum("),
            "a part number that stands twice is named");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const PairInput pair(bytes, size);
    ForgetAllocations();
    try
    {
        const auto table = ReadPartPair(pair.Index(), pair.Data(), "parts.idx");
        Require(LargestAllocation() <= 65536 + 128 * size, "memory is in proportion to the files");
        RequireTable(table, pair.Index(), pair.Data());
    }
    catch (const RunTimeError& error)
    {
        Require(LargestAllocation() <= 65536 + 128 * size, "memory is in proportion to the files");
        RequireError(error);
    }
    return 0;
}
