#pragma once

/// A sound pair of three parts that a test can break in one place.

#include "partfiles/Columns.h"
#include "partfiles/Finding.h"
#include "tests/partdata/TemporaryFolder.h"

#include <array>
#include <string>
#include <vector>

/// One part whose names can be changed.
struct SmallPart
{
    std::array<std::string, NameFields> Names;
    std::array<float, DataValues> Data{};
};

/// Three parts: X7R, X5R and Y5V, with data for all charts, taken from the sample range.
struct SmallPair
{
    std::vector<SmallPart> Parts;

    SmallPair();

    std::string Index(const std::string& lineEnd = "\n") const;
    std::string Data() const;
};

/// What "data check" finds in a folder with these two files.
PairReport CheckFiles(const std::string& index, const std::string& data);

/// All bytes of a file.
std::string BytesOf(const std::filesystem::path& file);
