/// Makes the part files of the range from its source table:
/// make_part_range <folder of the table> <folder for halvex.idx and halvex.dat>

#include "files/InputFile.h"
#include "partfiles/PairReplacement.h"
#include "partfiles/TableReader.h"
#include "samplerange/PartRange.h"

#include <exception>
#include <filesystem>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 3)
    {
        std::cerr << "usage: make_part_range <folder of the source table> <folder for the part files>\n";
        return 2;
    }
    try
    {
        const std::filesystem::path from = argv[1];
        const std::filesystem::path to = argv[2];
        const auto parts = MakePartRange(ReadBytes(from / "sizes.csv", MostTableBytes),
                                         ReadBytes(from / "ratings.csv", MostTableBytes));
        ReplacePair(to / "halvex", PairOf(parts));
        std::cout << parts.size() << " parts\n";
    }
    catch (const std::exception& error)
    {
        std::cerr << "make_part_range: " << error.what() << '\n';
        return 1;
    }
}
