#pragma once

/// Reads the part names out of the text of an index file.

#include "partdata/PartRecord.h"

#include <cstddef>
#include <string>
#include <string_view>

/// A cursor over an index text: comma-separated text input, eight fields a record.
///
/// - Fields end at a comma or at the end of a line (CRLF, LF or CR), so a record may span lines. Empty
///   lines between records are skipped; within a record an empty line is an empty field.
/// - Blanks (spaces and tabs) before a field are skipped, and so are those behind an unquoted one.
/// - A field in double quotes runs to the closing quote, commas and line breaks included; there is no
///   escape. What stands behind the closing quote is the next field, after a comma or line end if any.
/// - A UTF-8 byte-order mark at the start and a Ctrl-Z as the last character are ignored.
///
/// The fields are views into the text.
class IndexReader
{
public:
    /// `name` is the file's name for messages.
    IndexReader(std::string_view indexText, std::string name);

    /// Goes past blanks and empty lines to the next record; false at the end of the text.
    bool FindRecord();

    /// Reads the names of the record that has been found.
    ///
    /// Throws RunTimeError 62 "parts.idx: record 17: field 3", both counted from 1, for an end within the
    /// record or an unclosed quote. An end right behind a comma is an end within the record. The offset is
    /// that of the unclosed quote, or else of the end.
    void ReadRecord(PartRecord& part);

private:
    std::string_view ReadField(std::size_t field);
    std::string_view ReadQuoted(std::size_t field);
    std::string_view ReadUnquoted();
    void SkipBlanks();
    void SkipSeparator();
    [[noreturn]] void FailAt(std::size_t field) const;

    const char* start;
    const char* next;
    const char* end;
    std::string fileName;
    std::size_t recordCount = 0;
};
