#include "tests/selection/Ranges.h"

#include "files/PartLoading.h"
#include "tests/partdata/TemporaryFolder.h"

#include <cstring>

static std::string Quoted(const std::string& text)
{
    return '"' + text + '"';
}

static std::string IndexLine(const MadePart& part)
{
    std::string line;
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        line += Quoted(part.Number + "-" + std::to_string(form)) + ",";
    }
    return line + Quoted(part.SizeCode[0]) + "," + Quoted(part.SizeCode[1]) + "," + Quoted(part.Tcc[0]) +
           "," + Quoted(part.Tcc[1]) + "\r\n";
}

static std::string DataRecord(const MadePart& part)
{
    std::array<float, DataValues> data{};
    data[0] = part.Capacitance;
    data[1] = part.Capacitance;
    data[2] = part.RatedVoltage;
    data[8] = part.HasCapacitance ? -0.5F : 0.0F;
    data[31] = part.HasPower ? 40.0F : 0.0F;
    data[65] = part.HasPower ? 125.0F : 0.0F;
    std::string bytes(sizeof data, '\0');
    std::memcpy(bytes.data(), data.data(), sizeof data);
    return bytes;
}

PartTable MakeRange(const std::vector<MadePart>& parts)
{
    std::string index;
    std::string data;
    for (const auto& part : parts)
    {
        index += IndexLine(part);
        data += DataRecord(part);
    }
    const TemporaryFolder folder;
    return ReadPartPair(folder.Write("made.idx", index), folder.Write("made.dat", data));
}

PartTable SampleRange()
{
    return ReadPartPair(PART_FILES "/halvex.idx", PART_FILES "/halvex.dat");
}

PartTable VectorRange()
{
    return ReadPartPair(TEST_DATA "/calc/vectors/vectors.idx", TEST_DATA "/calc/vectors/vectors.dat");
}

PartTable CrossedRange()
{
    // Sizes A1 and A2 share the JIS name J1, and A3 has two JIS names; X5R and X6S are both B, while X7R is
    // R in some parts and B in others.
    static const std::array<std::array<std::string, 2>, 5> Sizes = {
        {{"A1", "J1"}, {"A2", "J1"}, {"A3", "J3"}, {"A3", "J4"}, {"A4", "J5"}}};
    static const std::array<std::array<std::string, 2>, 4> Tccs = {
        {{"X5R", "B"}, {"X6S", "B"}, {"X7R", "R"}, {"X7R", "B"}}};
    std::vector<MadePart> parts;
    for (int i = 0; i < 120; ++i)
    {
        parts.push_back({.Number = "M" + std::to_string(i),
                         .SizeCode = Sizes[static_cast<std::size_t>(i * 7 % 5)],
                         .Tcc = Tccs[static_cast<std::size_t>(i / 5 * 3 % 4)],
                         .Capacitance = static_cast<float>(1 + i * 11 % 3) * 0.1F,
                         .RatedVoltage = i % 4 == 0 ? 6.3F : 16.0F,
                         .HasPower = i % 3 != 0,
                         .HasCapacitance = i % 5 != 1});
    }
    return MakeRange(parts);
}

PartTable LargestRange()
{
    std::vector<MadePart> parts;
    for (int i = 0; i < 32767; ++i)
    {
        const auto size = std::to_string(i % 12);
        parts.push_back({.Number = "LARGE" + std::to_string(100000 + i),
                         .SizeCode = {"E" + size, "J" + size},
                         .Tcc = {i % 2 == 0 ? "X7R" : "X5R", i % 2 == 0 ? "R" : "B"},
                         .Capacitance = static_cast<float>(i % 97),
                         .RatedVoltage = static_cast<float>(i % 7)});
    }
    return MakeRange(parts);
}
