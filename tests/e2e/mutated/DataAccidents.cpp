#include "tests/e2e/mutated/Accidents.h"

#include <array>
#include <cstdint>

static void PutValue(std::string& data, std::size_t place, std::uint32_t bits)
{
    for (std::size_t i = 0; i < 4; ++i)
    {
        data[place * 4 + i] = static_cast<char>(bits >> (8 * i));
    }
}

/// Not a number, infinite, largest, huge, denormal, least normal, minus zero, minus one, tiny, one.
static constexpr std::array<std::uint32_t, 14> OddBits = {
    0x7FC00000, 0xFFC00001, 0x7F800001, 0x7F800000, 0xFF800000, 0x7F7FFFFF, 0xFF7FFFFF,
    0x7E967699, 0x00000001, 0x80000FFF, 0x00800000, 0x80000000, 0xBF800000, 0x0DA24260};

void Accidents::OddNumbers(std::string& data)
{
    if (data.size() < 4)
    {
        return;
    }
    const auto record = Lot(data.size() / RecordBytes + 1) * 66;
    const bool manyRecords = Lot(2) == 0;
    for (auto left = 1 + Lot(20); left > 0; --left)
    {
        const auto place = manyRecords ? Lot(data.size() / 4) : record + Lot(66);
        if (place < data.size() / 4)
        {
            PutValue(data, place,
                     Lot(8) == 0 ? static_cast<std::uint32_t>(random()) : OddBits[Lot(OddBits.size())]);
        }
    }
}

/// Odd values where the lists and every curve begin: capacitances, rated voltage, upper temperature.
void Accidents::OddCapacitances(std::string& data)
{
    static constexpr std::array<std::size_t, 5> values = {0, 1, 2, 31, 65};
    for (std::size_t record = 0; (record + 1) * RecordBytes <= data.size(); record += 1 + Lot(20))
    {
        PutValue(data, record * 66 + values[Lot(values.size())], OddBits[Lot(OddBits.size())]);
    }
}

void Accidents::SwapRecords(std::string& data)
{
    const auto records = data.size() / RecordBytes;
    if (records > 0)
    {
        const auto a = Lot(records) * RecordBytes;
        const auto b = Lot(records) * RecordBytes;
        const auto former = data.substr(a, RecordBytes);
        data.replace(a, RecordBytes, data.substr(b, RecordBytes));
        data.replace(b, RecordBytes, former);
    }
}

void Accidents::DropRecord(std::string& data)
{
    if (data.size() >= RecordBytes)
    {
        data.erase(Lot(data.size() / RecordBytes) * RecordBytes, RecordBytes);
    }
}

void Accidents::DoubleRecord(std::string& data)
{
    if (data.size() >= RecordBytes)
    {
        const auto at = Lot(data.size() / RecordBytes) * RecordBytes;
        data.insert(at, data.substr(at, RecordBytes));
    }
}

void Accidents::ShiftBytes(std::string& data)
{
    data.insert(0, 1 + Lot(300), AnyByte());
}
