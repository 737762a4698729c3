#pragma once

/// A bill of materials, or the conditions of its parts, as a table whose columns are understood.

#include "board/BomFields.h"
#include "separatedtext/TableCells.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::size_t MostBomBytes = std::size_t{16} << 20;
inline constexpr std::size_t MostBomRows = 100'000;
/// What is told of a file at most.
inline constexpr std::size_t MostBomNotes = 1000;
/// A cell that means anything but references has so many bytes at most.
inline constexpr std::size_t LongestBomCell = 1000;
/// The heading stands among so many lines.
inline constexpr std::size_t MostLinesToHeading = 50;

/// What is told of a bill, with the line it is about; 0 for the whole file.
struct BomNote
{
    std::size_t Line = 0;
    std::string Text;

    bool operator==(const BomNote&) const = default;
};

/// A value as it stands in a file.
struct BomCell
{
    /// With the unit of its heading, and with a point as decimal sign.
    std::string Text;
    /// 0 for an option of the command.
    std::size_t Line = 0;
    /// Of the file of conditions rather than of the bill.
    bool IsOfConditions = false;

    bool operator==(const BomCell& other) const { return Text == other.Text; }
};

/// By `BomField`; a cell without a text is none.
using BomCells = std::array<std::optional<BomCell>, BomFieldCount>;

/// A column whose meaning is said rather than told by its heading.
struct ChosenColumn
{
    BomField Field;
    std::string Heading;
};

enum class BomTableKind
{
    /// Parts, with references, nets or voltages.
    Bill,
    /// References or nets, with anything.
    Conditions,
};

struct BomTable
{
    BomTableKind Kind = BomTableKind::Bill;
    char Separator = ',';
    std::vector<std::string> Headings;
    /// Without those that hold nothing.
    std::vector<TableRow> Rows;
    BomCells Defaults = {};
    /// What is not taken.
    std::vector<BomNote> Notes;
    /// What makes the table useless.
    std::vector<BomNote> Faults;
    std::array<std::optional<std::size_t>, BomFieldCount> Columns = {};

    /// The cell of a meaning; nothing where it is empty.
    std::optional<BomCell> CellOf(const TableRow& row, BomField field) const;
    /// All cells of a row that have a meaning.
    BomCells CellsOf(const TableRow& row) const;
};

/// Reads a text in any encoding and with any separator. Lines before the heading are passed over, but for "#
/// name: value".
BomTable ReadBomTable(std::string bytes, BomTableKind kind, std::span<const ChosenColumn> chosen = {});
