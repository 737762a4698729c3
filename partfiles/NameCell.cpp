#include "partfiles/NameCell.h"

#include "partdata/Windows1252.h"
#include "partfiles/PairBytes.h"

std::string ReadNameCell(std::string_view utf8, std::string& name)
{
    name = Windows1252FromUtf8(utf8);
    if (Utf8FromWindows1252(name) != utf8)
    {
        return "a character that the index file cannot hold";
    }
    return CanStandInIndex(name) ? ""
                                 : "a quote beside a comma, a line break, or at the start or blanks at an "
                                   "end cannot be written";
}
