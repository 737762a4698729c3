#include "partdata/RunTimeError.h"

#include "partdata/OneLine.h"

#include <utility>

const char* DescriptionOf(RunTimeErrorNumber number)
{
    switch (number)
    {
    case RunTimeErrorNumber::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case RunTimeErrorNumber::Overflow:
        return "Overflow";
    case RunTimeErrorNumber::OutOfMemory:
        return "Out of memory";
    case RunTimeErrorNumber::SubscriptOutOfRange:
        return "Subscript out of range";
    case RunTimeErrorNumber::DivisionByZero:
        return "Division by zero";
    case RunTimeErrorNumber::FileNotFound:
        return "File not found";
    case RunTimeErrorNumber::DeviceIoError:
        return "Device I/O error";
    case RunTimeErrorNumber::DiskFull:
        return "Disk full";
    case RunTimeErrorNumber::InputPastEndOfFile:
        return "Input past end of file";
    case RunTimeErrorNumber::PermissionDenied:
        return "Permission denied";
    case RunTimeErrorNumber::PathFileAccessError:
        return "Path/File access error";
    case RunTimeErrorNumber::PathNotFound:
        return "Path not found";
    case RunTimeErrorNumber::DuplicateKey:
        return "This key is already associated with an element of this collection";
    case RunTimeErrorNumber::ActionNotSupported:
        return "This action is not supported.";
    case RunTimeErrorNumber::DialogFailed:
        return "Error raised with common dialog.";
    case RunTimeErrorNumber::NoPrinter:
        return "There is no printer in this system.";
    case RunTimeErrorNumber::Cancelled:
        return "Cancel button is clicked.";
    }
    return "Application-defined or object-defined error";
}

RunTimeError::RunTimeError(RunTimeErrorNumber errorNumber)
    : RunTimeError(errorNumber, DescriptionOf(errorNumber))
{
}

RunTimeError::RunTimeError(RunTimeErrorNumber errorNumber, std::string errorDescription)
    : number(static_cast<int>(errorNumber))
    , description(std::move(errorDescription))
    , line("Run-time error '" + std::to_string(number) + "': " + description)
{
}

RunTimeError RunTimeError::At(PlaceInFile place) const
{
    RunTimeError located = *this;
    located.where = std::move(place);
    located.line = "Run-time error '" + std::to_string(number) + "': " + description + ": " +
                   WithoutControls(located.Place());
    return located;
}

RunTimeError RunTimeError::At(std::string name) const
{
    return At(PlaceInFile{.File = std::move(name)});
}
