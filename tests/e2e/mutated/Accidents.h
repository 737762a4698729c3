#pragma once

/// What goes wrong with part files: bytes lost and changed, lines and records in the wrong place, odd
/// numbers.

#include "tests/e2e/mutated/MutatedPairs.h"

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

/// Bytes of one record of a data file.
inline constexpr std::size_t RecordBytes = 264;

/// The two files of a range.
struct PairBytes
{
    std::string Index;
    std::string Data;
};

/// The lines of a text with their ends.
std::vector<std::string> LinesOf(const std::string& text);

/// The accidents that befall one pair.
class Accidents
{
public:
    explicit Accidents(unsigned number)
        : random(number * 2654435761U + 1)
    {
    }

    PairBytes Pair();
    std::size_t Lot(std::size_t count) { return random() % count; }

private:
    using Accident = void (Accidents::*)(std::string&);

    PairBytes SampleRange();
    PairBytes SomeOfSampleRange();
    PairBytes HandMade();
    void HarmIndex();
    void HarmData();
    void HarmBoth();
    void HarmAnyHow(std::string& bytes);

    // To any bytes.
    void FlipBit(std::string& bytes);
    void SetByte(std::string& bytes);
    void Cut(std::string& bytes);
    void Insert(std::string& bytes);
    void Repeat(std::string& bytes);
    void Truncate(std::string& bytes);
    void Empty(std::string& bytes);
    void WriteNuls(std::string& bytes);

    // To the text of an index.
    void InsertMark(std::string& text);
    void LoseMark(std::string& text);
    void OtherLineEnds(std::string& text);
    void LongField(std::string& text);
    void SwapLines(std::string& text);
    void DropLine(std::string& text);
    void DoubleLine(std::string& text);
    void OtherCase(std::string& text);
    void HighCharacters(std::string& text);
    void ForeignEnds(std::string& text);
    void TwoBytesACharacter(std::string& text);

    // To the values of a data file.
    void OddNumbers(std::string& data);
    void OddCapacitances(std::string& data);
    void SwapRecords(std::string& data);
    void DropRecord(std::string& data);
    void DoubleRecord(std::string& data);
    void ShiftBytes(std::string& data);

    std::size_t Place(const std::string& bytes) { return Lot(bytes.size() + 1); }
    /// Mostly short, at times as long as what there is.
    std::size_t Length(std::size_t longest)
    {
        return std::min(longest, Lot(4) == 0 ? Lot(longest + 1) : 1 + Lot(12));
    }
    char AnyByte() { return static_cast<char>(random()); }

    std::mt19937 random;
    PairBytes pair;
};
