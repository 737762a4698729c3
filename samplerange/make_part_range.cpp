/// Makes the part files of the range from its source table:
/// make_part_range <folder of the table> <folder for halvex.idx and halvex.dat>

#include "samplerange/PartRange.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

static std::string ReadFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
    {
        throw std::runtime_error("cannot read " + file.string());
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

static void WriteFile(const std::filesystem::path& file, const std::string& content)
{
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    stream.close();
    if (!stream)
    {
        throw std::runtime_error("cannot write " + file.string());
    }
}

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
        const auto parts = MakePartRange(ReadFile(from / "sizes.csv"), ReadFile(from / "ratings.csv"));
        WriteFile(to / "halvex.idx", IndexText(parts));
        WriteFile(to / "halvex.dat", DataBytes(parts));
        std::cout << parts.size() << " parts\n";
    }
    catch (const std::exception& error)
    {
        std::cerr << "make_part_range: " << error.what() << '\n';
        return 1;
    }
}
