#include "partdata/DataReader.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>

static_assert(std::numeric_limits<float>::is_iec559 && sizeof(float) == 4);

/// Records that are read at a time: some 64 KiB, so that they are still in the cache when they are copied.
static constexpr std::size_t RecordsAtATime = 248;

static void CopyValues(const char* bytes, std::array<float, DataValues>& values)
{
    std::memcpy(values.data(), bytes, DataRecordBytes);
    if constexpr (std::endian::native == std::endian::big)
    {
        for (auto& value : values)
        {
            const auto bits = std::bit_cast<std::array<char, 4>>(value);
            value = std::bit_cast<float>(std::array<char, 4>{bits[3], bits[2], bits[1], bits[0]});
        }
    }
}

std::size_t MemorySource::Read(std::span<char> bytes)
{
    const auto got = rest.copy(bytes.data(), bytes.size());
    rest.remove_prefix(got);
    return got;
}

void ReadPartValues(ByteSource& source, std::span<PartRecord> parts)
{
    const auto capacity = std::min(RecordsAtATime, parts.size()) * DataRecordBytes;
    const auto buffer = std::make_unique_for_overwrite<char[]>(capacity);
    while (!parts.empty())
    {
        const auto wanted = std::min(RecordsAtATime, parts.size());
        const auto got = source.Read({buffer.get(), wanted * DataRecordBytes}) / DataRecordBytes;
        for (std::size_t i = 0; i < got; ++i)
        {
            CopyValues(buffer.get() + i * DataRecordBytes, parts[i].Data);
        }
        if (got < wanted)
        {
            return;
        }
        parts = parts.subspan(got);
    }
}
