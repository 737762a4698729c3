#include "tests/e2e/mutated/OddFolders.h"

#include <fstream>

namespace fs = std::filesystem;

namespace
{
constexpr std::size_t Megabyte = 1 << 20;

/// One line of an index.
std::string Line(const std::string& number, const std::string& size = "0805")
{
    return "G" + number + ",J" + number + ",P" + number + ",Q" + number + "," + size + ",2012,X7R,R\n";
}

std::string Lines(int parts)
{
    std::string lines;
    for (int i = 0; i < parts; ++i)
    {
        lines += Line(std::to_string(i));
    }
    return lines;
}

/// As many parts as there may be, of as many sizes.
std::string LinesOfManySizes()
{
    std::string lines;
    for (int i = 0; i < 32767; ++i)
    {
        lines += Line(std::to_string(i), "S" + std::to_string(i));
    }
    return lines;
}

/// As many parts as there may be, whose names differ only as upper from lower case letters do. Brackets and
/// braces are no letters.
std::string LinesOfBrackets()
{
    std::string lines;
    for (unsigned i = 0; i < 32767; ++i)
    {
        std::string number;
        for (unsigned bit = 0; bit < 15; ++bit)
        {
            number += (i >> bit & 1) == 0 ? '[' : '{';
        }
        lines += Line(number);
    }
    return lines;
}

OddFolder Folder(const char* name, const std::function<std::string()>& index)
{
    return {name, [index](const fs::path& folder)
            {
                std::ofstream(folder / "parts.idx", std::ios::binary) << index();
                fs::copy_file(SAMPLE_RANGE "/halvex.dat", folder / "parts.dat");
            }};
}

std::function<std::string()> Repeated(char c, std::size_t count)
{
    return [=] { return std::string(count, c); };
}
} // namespace

const std::vector<OddFolder>& LargeFolders()
{
    static const std::vector<OddFolder> all = {
        Folder("nothing in as large an index as there may be", Repeated('\0', 64 * Megabyte)),
        Folder("commas alone", Repeated(',', 30 * Megabyte)),
        Folder("line ends alone", Repeated('\n', 60 * Megabyte)),
        Folder("quotes alone", Repeated('"', Megabyte)),
        Folder("as many parts as there may be", [] { return Lines(32767); }),
        Folder("one part more", [] { return Lines(32768); }),
        Folder("half a part more", [] { return Lines(32767) + "A,B,C"; }),
        Folder("fifty thousand parts", [] { return Lines(50000); }),
        Folder("every part of another size", LinesOfManySizes),
        Folder("names that differ like the cases of a letter", LinesOfBrackets),
        Folder("part number of a megabyte", [] { return Line(std::string(Megabyte, 'M')) + Line("2"); }),
        Folder("part number of ten megabytes",
               [] { return Line(std::string(10 * Megabyte, 'M')) + Line("2"); }),
        Folder("part number of a megabyte twice",
               []
               {
                   const auto line = Line(std::string(Megabyte, 'M'));
                   return line + line;
               }),
        Folder("size code of a megabyte", [] { return Line("1", std::string(Megabyte, 'M')) + Line("2"); }),
    };
    return all;
}
