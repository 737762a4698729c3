#pragma once

/// Reads the coefficients and ratings of parts out of the bytes of a data file.

#include "partdata/PartRecord.h"

#include <cstddef>
#include <span>
#include <string_view>

/// Bytes of one record of the data file: little-endian single-precision values, without header.
inline constexpr std::size_t DataRecordBytes = DataValues * sizeof(float);

/// Bytes that are read from their first to their last, wherever they are kept.
class ByteSource
{
public:
    ByteSource() = default;
    virtual ~ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;

    /// Reads on until `bytes` is full or there are no more; returns how many were read. Throws RunTimeError
    /// where they are kept in a way that can fail.
    virtual std::size_t Read(std::span<char> bytes) = 0;
};

/// Bytes in memory, which must outlive the source.
class MemorySource final : public ByteSource
{
public:
    explicit MemorySource(std::string_view bytes)
        : rest(bytes)
    {
    }

    std::size_t Read(std::span<char> bytes) override;

private:
    std::string_view rest;
};

/// Reads one record per part, from the start of the source into the parts' `Data`. Parts beyond the last
/// whole record keep their values; surplus records are not read.
void ReadPartValues(ByteSource& source, std::span<PartRecord> parts);
