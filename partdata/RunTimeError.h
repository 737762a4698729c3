#pragma once

/// The one error type of the program: what went wrong, and where in which file.

#include "partdata/PlaceInFile.h"

#include <exception>
#include <string>

/// Numbers of the run-time errors that the program raises.
enum class RunTimeErrorNumber
{
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    FileNotFound = 53,
    DeviceIoError = 57,
    DiskFull = 61,
    InputPastEndOfFile = 62,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
    DuplicateKey = 457,
    ActionNotSupported = 65532,
    DialogFailed = 65533,
    NoPrinter = 65534,
    Cancelled = 65535,
};

/// The fixed description of an error number, for example 62 "Input past end of file".
const char* DescriptionOf(RunTimeErrorNumber number);

/// A run-time error: a number, a description and, where known, the place that caused it.
///
///     throw RunTimeError(RunTimeErrorNumber::InputPastEndOfFile).At(PlaceInFile{.File = "parts.idx", .Record
///     = 17});
///
class RunTimeError : public std::exception
{
public:
    explicit RunTimeError(RunTimeErrorNumber number);
    RunTimeError(RunTimeErrorNumber number, std::string description);

    /// The same error with its place.
    RunTimeError At(PlaceInFile place) const;
    /// As above, where only a file, or the name of whatever else is to blame, is known.
    RunTimeError At(std::string name) const;

    int Number() const { return number; }
    const std::string& Description() const { return description; }
    /// Where it lies; all is empty where that is not known.
    const PlaceInFile& Where() const { return where; }
    /// The same in words: "parts.idx: record 17: field 3".
    std::string Place() const { return TextOf(where); }

    /// One line: "Run-time error '62': Input past end of file: parts.idx: record 17: field 3". A control
    /// character of the place reads as "\x0A".
    const char* what() const noexcept override { return line.c_str(); }

private:
    int number;
    std::string description;
    PlaceInFile where;
    std::string line;
};
