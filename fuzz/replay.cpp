/// Runs a fuzz target over every file of a folder, where no fuzzer is built.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char* argv[])
{
    if (argc != 2)
    {
        std::cerr << "usage: replay FOLDER\n";
        return 2;
    }
    int cases = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::absolute(argv[1])))
    {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++cases;
    }
    std::cout << cases << " cases replayed\n";
    return cases > 0 ? 0 : 1;
}
