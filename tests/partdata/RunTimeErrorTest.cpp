#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{
TEST(RunTimeError, HasTheDescriptionOfItsNumber)
{
    const std::pair<int, const char*> rows[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {7, "Out of memory"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {70, "Permission denied"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {457, "This key is already associated with an element of this collection"},
        {65532, "This action is not supported."},
        {65533, "Error raised with common dialog."},
        {65534, "There is no printer in this system."},
        {65535, "Cancel button is clicked."},
    };
    for (const auto& [number, description] : rows)
    {
        const RunTimeError error(static_cast<RunTimeErrorNumber>(number));
        EXPECT_EQ(error.Number(), number);
        EXPECT_EQ(error.Description(), description);
        EXPECT_EQ(error.Place(), "");
        EXPECT_EQ(std::string(error.what()),
                  "Run-time error '" + std::to_string(number) + "': " + description);
    }
}

TEST(RunTimeError, OfAnotherNumberIsOfNoKnownKind)
{
    EXPECT_STREQ(DescriptionOf(static_cast<RunTimeErrorNumber>(1)),
                 "Application-defined or object-defined error");
}

TEST(RunTimeError, TellsItsPlaceBehindItsDescription)
{
    const auto error = RunTimeError(RunTimeErrorNumber::InputPastEndOfFile, "Too short")
                           .At(PlaceInFile{.File = "parts.idx", .Record = 3});
    EXPECT_EQ(error.Number(), 62);
    EXPECT_EQ(error.Description(), "Too short");
    EXPECT_EQ(error.Place(), "parts.idx: record 3");
    EXPECT_STREQ(error.what(), "Run-time error '62': Too short: parts.idx: record 3");
    EXPECT_STREQ(error.At("elsewhere").what(), "Run-time error '62': Too short: elsewhere");
}

struct PlaceRow
{
    const char* Text;
    PlaceInFile Place;
};

TEST(PlaceInFile, ReadsAsFileRecordAndField)
{
    const PlaceRow rows[] = {
        {"", {}},
        {"parts.idx", {.File = "parts.idx"}},
        {"*.idx", {.File = "*.idx", .Folder = "/opt/parts"}},
        {"parts.idx: record 17", {.File = "parts.idx", .Record = 17}},
        {"parts.idx: record 17: field 3", {.File = "parts.idx", .Record = 17, .Field = 3, .Offset = 80}},
        {"parts.idx: record 2: PartNum(0) \"ABC\"",
         {.File = "parts.idx", .Record = 2, .Field = 1, .FieldName = "PartNum(0)", .FieldText = "ABC"}},
        {"parts.idx: record 2: PartNum(3) \"\"",
         {.File = "parts.idx", .Record = 2, .Field = 4, .FieldName = "PartNum(3)", .FieldText = ""}},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(TextOf(row.Place), row.Text);
    }
}
} // namespace
