#pragma once

/// Where an error lies.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// The place of an error, as far as it is known.
struct PlaceInFile
{
    /// The file's name, or that of whatever else is to blame.
    std::string File = {};
    /// The folder that was searched where no file of it is to blame, as for `File` "*.idx".
    std::string Folder = {};
    /// Counted from 1; 0 where no single record is to blame.
    std::size_t Record = 0;
    /// Field of the record, counted from 1; 0 where no single field is to blame.
    std::size_t Field = 0;
    /// What the field is called and holds, where that tells more than its number: "PartNum(0)" and "ABC".
    std::string FieldName = {};
    std::string FieldText = {};
    /// Byte of the file where the reader stood, counted from 0.
    std::optional<std::uintmax_t> Offset = {};
};

/// The place in words, without folder and offset: "parts.idx: record 17: field 3", or
/// `parts.idx: record 17: PartNum(0) "ABC"`.
std::string TextOf(const PlaceInFile& place);
