#pragma once

/// What bills tell of a part beside, or instead of, its number: "10uF 25V X7R".

#include "partdata/PartTable.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The values that tell a part from all others of the range; each as far as it is told.
struct PartValues
{
    /// In pF.
    std::optional<float> Capacitance = {};
    /// In V.
    std::optional<float> RatedVoltage = {};
    /// In UTF-8, as the range writes them.
    std::string Characteristic = {};
    std::string Size = {};
    /// Two words tell the same value differently.
    bool IsContrary = false;
};

/// Reads the words of cells: "10uF", "4u7", "100n", "6.3V", "6V3", "X7R", "C_0805".
class PartWords
{
public:
    /// Names of characteristics and sizes are those of the parts in a code.
    PartWords(const PartTable& parts, CodeView view);

    /// Takes the words of one cell.
    void Read(std::string_view cell, PartValues& values) const;

private:
    void TakeWord(const std::string& word, PartValues& values) const;

    std::vector<std::string> characteristics;
    std::vector<std::string> sizes;
};

/// The only part of the range that has all four values; null where there is none or another.
const PartRecord* PartOfValues(const PartValues& values, const PartTable& parts, CodeView view);
