#include "separatedtext/Separator.h"

#include "separatedtext/LineCells.h"

char SeparatorOf(std::string_view line)
{
    for (const char separator : {'\t', ';', ','})
    {
        if (EndOfCell(line, separator) != line.size())
        {
            return separator;
        }
    }
    return ' ';
}
