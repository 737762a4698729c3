#include "tests/e2e/mutated/Accidents.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

static std::string Bytes(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

static void WriteBytes(const fs::path& file, const std::string& bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

PairBytes Accidents::SampleRange()
{
    static const PairBytes range{.Index = Bytes(SAMPLE_RANGE "/halvex.idx"),
                                 .Data = Bytes(SAMPLE_RANGE "/halvex.dat")};
    return range;
}

PairBytes Accidents::SomeOfSampleRange()
{
    const auto range = SampleRange();
    static const auto lines = LinesOf(range.Index);
    PairBytes some;
    const auto step = 1 + Lot(lines.size() / 3);
    for (std::size_t i = Lot(lines.size()); i < lines.size(); i += step)
    {
        some.Index += lines[i];
        some.Data += range.Data.substr(i * RecordBytes, RecordBytes);
    }
    return some;
}

/// A few parts whose names stand in every way that an index knows.
PairBytes Accidents::HandMade()
{
    PairBytes made;
    made.Index = "\xEF\xBB\xBF"
                 "G1,J1,P1,Q1,0805,2012,X7R,R\r\n"
                 "\"G,2\",\"J 2\", P2 ,\tQ2,\"08\r\n05\",2012,X5R,B\n\n"
                 "G3\nJ3\rP3\r\n\"Q3\"\"1206\"3216,Y5V,F\r"
                 "g\xC4"
                 "4,J4,\"\",Q4,1206,3216,X7R,R  \r\n"
                 "G5,J5,P5,Q5,,,\x80\x99,\r\n"
                 "KTU155F51H222ZA01,J6,P6,Q6,0402,1005,Y5V,F\x1A";
    const auto range = SampleRange().Data;
    for (int i = 0; i < 6; ++i)
    {
        made.Data += range.substr(Lot(range.size() / RecordBytes) * RecordBytes, RecordBytes);
    }
    return made;
}

PairBytes Accidents::Pair()
{
    const auto kind = Lot(10);
    pair = kind < 3 ? SampleRange() : kind < 7 ? SomeOfSampleRange() : HandMade();
    for (auto left = 1 + Lot(4); left > 0; --left)
    {
        const auto where = Lot(20);
        where < 11 ? HarmIndex() : where < 19 ? HarmData() : HarmBoth();
    }
    return pair;
}

void Accidents::HarmAnyHow(std::string& bytes)
{
    static constexpr Accident accidents[] = {&Accidents::FlipBit, &Accidents::FlipBit, &Accidents::SetByte,
                                             &Accidents::Cut,     &Accidents::Insert,  &Accidents::Truncate,
                                             &Accidents::Repeat,  &Accidents::Empty,   &Accidents::WriteNuls};
    (this->*accidents[Lot(std::size(accidents))])(bytes);
}

void Accidents::HarmIndex()
{
    static constexpr Accident accidents[] = {
        &Accidents::InsertMark,    &Accidents::InsertMark,  &Accidents::LoseMark,
        &Accidents::OtherLineEnds, &Accidents::LongField,   &Accidents::SwapLines,
        &Accidents::DropLine,      &Accidents::DoubleLine,  &Accidents::HighCharacters,
        &Accidents::OtherCase,     &Accidents::ForeignEnds, &Accidents::TwoBytesACharacter};
    Lot(3) == 0 ? HarmAnyHow(pair.Index) : (this->*accidents[Lot(std::size(accidents))])(pair.Index);
}

void Accidents::HarmData()
{
    static constexpr Accident accidents[] = {&Accidents::OddNumbers,   &Accidents::OddNumbers,
                                             &Accidents::OddNumbers,   &Accidents::OddCapacitances,
                                             &Accidents::SwapRecords,  &Accidents::DropRecord,
                                             &Accidents::DoubleRecord, &Accidents::ShiftBytes};
    Lot(3) == 0 ? HarmAnyHow(pair.Data) : (this->*accidents[Lot(std::size(accidents))])(pair.Data);
}

void Accidents::HarmBoth()
{
    switch (Lot(3))
    {
    case 0:
        std::swap(pair.Index, pair.Data);
        break;
    case 1:
        pair.Data = pair.Index;
        break;
    default:
        // A whole part doubled, in both files.
        DoubleLine(pair.Index);
        DoubleRecord(pair.Data);
        break;
    }
}

// ---- To any bytes ----

void Accidents::FlipBit(std::string& bytes)
{
    if (!bytes.empty())
    {
        char& byte = bytes[Lot(bytes.size())];
        byte = static_cast<char>(byte ^ (1 << Lot(8)));
    }
}

void Accidents::SetByte(std::string& bytes)
{
    if (!bytes.empty())
    {
        bytes[Lot(bytes.size())] = AnyByte();
    }
}

void Accidents::Cut(std::string& bytes)
{
    const auto at = Place(bytes);
    bytes.erase(at, Length(bytes.size() - at));
}

void Accidents::Insert(std::string& bytes)
{
    std::string some(Length(600), '\0');
    std::ranges::generate(some, [this] { return AnyByte(); });
    bytes.insert(Place(bytes), some);
}

void Accidents::Repeat(std::string& bytes)
{
    const auto at = Place(bytes);
    bytes.insert(at, bytes.substr(at, Length(bytes.size() - at)));
}

void Accidents::Truncate(std::string& bytes)
{
    bytes.resize(Place(bytes));
}

void Accidents::Empty(std::string& bytes)
{
    bytes.clear();
}

void Accidents::WriteNuls(std::string& bytes)
{
    const auto at = Place(bytes);
    const auto length = Length(bytes.size() - at);
    bytes.replace(at, length, length, '\0');
}

void WriteMutatedPair(unsigned number, const fs::path& folder)
{
    Accidents accidents(number);
    const auto pair = accidents.Pair();
    static constexpr std::array<const char*, 8> names = {"halvex", "halvex", "halvex", "halvex",
                                                         "halvex", "HALVEX", "a b",    "\xC4"};
    const std::string name = names[accidents.Lot(names.size())];
    WriteBytes(folder / (name + (accidents.Lot(8) == 0 ? ".IDX" : ".idx")), pair.Index);
    WriteBytes(folder / (name + (accidents.Lot(8) == 0 ? ".Dat" : ".dat")), pair.Data);
    if (accidents.Lot(8) == 0)
    {
        // Further files come behind, or only look alike.
        WriteBytes(folder / "zz.idx", "A,B,C");
        WriteBytes(folder / "a.idx.old", "A,B,C");
        WriteBytes(folder / "adat", "");
    }
}
