/// Times the loading of part files beside bare reading, splitting and hashing of the same two files, and
/// counts the memory that a loaded table keeps.

#include "bench/Turns.h"
#include "files/PartLoading.h"

#include <malloc.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace
{
/// A pair of part files in the temporary folder, removed with the object.
struct FilePair
{
    explicit FilePair(std::size_t parts);
    ~FilePair();
    FilePair(const FilePair&) = delete;
    FilePair& operator=(const FilePair&) = delete;

    std::uintmax_t Bytes() const { return fs::file_size(index) + fs::file_size(data); }

    fs::path index;
    fs::path data;
};
} // namespace

FilePair::FilePair(std::size_t parts)
    : index(fs::temp_directory_path() / ("load_bench_" + std::to_string(parts) + ".idx"))
    , data(fs::path(index).replace_extension(".dat"))
{
    constexpr std::array<std::array<const char*, 2>, 4> sizes = {
        {{"0603", "1608"}, {"0805", "2012"}, {"1206", "3216"}, {"1210", "3225"}}};
    constexpr std::array<std::array<const char*, 2>, 4> characteristics = {
        {{"X7R", "R"}, {"X5R", "B"}, {"Y5V", "F"}, {"C0G", "CG"}}};

    std::ofstream names(index, std::ios::binary);
    std::ofstream values(data, std::ios::binary);
    for (std::size_t i = 0; i < parts; ++i)
    {
        char line[128];
        const auto number = static_cast<unsigned>(i * 7919 % 100000);
        const auto& size = sizes[i / 16 % 4];
        const auto& characteristic = characteristics[i / 4 % 4];
        const int length =
            std::snprintf(line, sizeof line, "HVX%s%s%05u,HVX%s%s%05uJ,HK%05u%sE,HK%05u%sJ,%s,%s,%s,%s\r\n",
                          size[0], characteristic[0], number, size[1], characteristic[1], number, number,
                          size[0], number, size[1], size[0], size[1], characteristic[0], characteristic[1]);
        names.write(line, length);
        std::array<float, DataValues> record;
        record.fill(static_cast<float>(i + 1));
        values.write(reinterpret_cast<const char*>(record.data()), sizeof record);
    }
}

FilePair::~FilePair()
{
    fs::remove(index);
    fs::remove(data);
}

// ---- The yardstick ------------------------------------------------------------------------------------

static std::string ReadWhole(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string bytes(fs::file_size(path), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

/// Splits at commas and line ends, with quotes around fields that hold such.
static std::vector<std::string_view> Split(std::string_view text)
{
    std::vector<std::string_view> fields;
    fields.reserve(text.size() / 11);
    for (std::size_t at = 0; at < text.size();)
    {
        std::size_t first = at;
        std::size_t last = 0;
        if (text[at] == '"')
        {
            first = at + 1;
            last = text.find('"', first);
            at = last + 1;
        }
        else
        {
            while (at < text.size() && text[at] != ',' && text[at] != '\r' && text[at] != '\n')
            {
                ++at;
            }
            last = at;
        }
        fields.push_back(text.substr(first, last - first));
        at += at + 1 < text.size() && text[at] == '\r' && text[at + 1] == '\n' ? 2 : 1;
    }
    return fields;
}

namespace
{
/// The plainest fast table: open addressing over indices, the standard hash, exact comparison.
class PlainTable
{
public:
    explicit PlainTable(std::size_t count)
    {
        std::size_t size = 16;
        while (size < 2 * count)
        {
            size *= 2;
        }
        slots.assign(size, -1);
    }

    void Enter(const std::vector<std::string_view>& fields, std::size_t field)
    {
        const auto mask = slots.size() - 1;
        auto at = std::hash<std::string_view>()(fields[field]) & mask;
        while (slots[at] >= 0 && fields[static_cast<std::size_t>(slots[at])] != fields[field])
        {
            at = (at + 1) & mask;
        }
        slots[at] = static_cast<int>(field);
    }

private:
    std::vector<int> slots;
};

struct BareLoad
{
    std::string index;
    std::string data;
    std::vector<std::string_view> fields;
    std::vector<PlainTable> tables;
};
} // namespace

static BareLoad LoadBare(const FilePair& files)
{
    BareLoad load{ReadWhole(files.index), ReadWhole(files.data), {}, {}};
    load.fields = Split(load.index);
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        auto& table = load.tables.emplace_back(load.fields.size() / 8);
        for (std::size_t field = form; field < load.fields.size(); field += 8)
        {
            table.Enter(load.fields, field);
        }
    }
    return load;
}

// ---- The measurements ---------------------------------------------------------------------------------

/// Microseconds that a load takes; giving its memory back is not counted.
static double TimeOf(auto&& load)
{
    std::optional<decltype(load())> loaded;
    return MicrosecondsOf([&] { loaded.emplace(load()); });
}

static std::size_t AllocatedBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// The memory that a loaded table keeps, against the sizes of its files.
static double MemoryRatio(const FilePair& files, int parts)
{
    const auto before = AllocatedBytes();
    const auto table = ReadPartPair(files.index, files.data);
    const auto kept = AllocatedBytes() - before;
    if (table.PartMax + 1 != parts)
    {
        throw std::logic_error("not all parts were loaded");
    }
    return static_cast<double>(kept) / static_cast<double>(files.Bytes());
}

int main()
{
    // Large blocks come fresh from the system each time, as they do when the program starts; otherwise one of
    // the two could be handed the other's pages.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    for (const int parts : {100, 1000, 10000, 32767})
    {
        const FilePair files(static_cast<std::size_t>(parts));
        const auto count = std::to_string(parts);
        CompareInTurns(
            "load-" + count, parts < 10000 ? 1000 : 100,
            [&](int) { return TimeOf([&] { return ReadPartPair(files.index, files.data); }); },
            [&](int) { return TimeOf([&] { return LoadBare(files); }); });
        PrintRatio("load-memory-" + count, MemoryRatio(files, parts));
    }
    return 0;
}
