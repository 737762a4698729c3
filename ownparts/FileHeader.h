#pragma once

/// The lines that a measurement file begins with: "# rated voltage: 25 V".

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What such a line can tell.
enum class HeaderField
{
    Part,
    PartJis,
    PreviousPart,
    PreviousPartJis,
    Size,
    SizeJis,
    Characteristic,
    Capacitance,
    RatedVoltage,
    HeatResistance,
    UpperTemperature,
    Count,
};

/// Its name: "rated voltage".
std::string_view NameOf(HeaderField field);

/// One line, as it stands.
struct HeaderLine
{
    std::size_t Line = 0;
    std::string Name;
    std::string Value;
};

/// The lines above the headings, and where these begin.
struct FileHeader
{
    std::vector<HeaderLine> Lines;
    /// Number of the line of headings, counted from 1, and all text from there on.
    std::size_t HeadingLine = 1;
    std::string_view Table;
};

/// Takes the lines off a text in UTF-8: those that begin with "#", and empty ones. Separators that a
/// spreadsheet put behind a line do not count, nor quotes around it. A line without a colon has no value and
/// all of it as name.
FileHeader HeaderOf(std::string_view text);

/// The field of a name, letter case apart; nothing for a name of none.
std::optional<HeaderField> FieldNamed(std::string_view name);
