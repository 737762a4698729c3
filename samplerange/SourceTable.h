#pragma once

/// The source table of the range: case sizes and families, as text that people read and edit.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A case size and what comes with it.
struct CaseSize
{
    /// "0805" and "2012".
    std::string Eia;
    std::string Jis;
    /// First letters of the global part number, and its two digits for length and width.
    std::string Series;
    std::string Number;
    double LengthMm;
    double WidthMm;
    /// Thinnest first.
    std::vector<double> ThicknessesMm;
    /// Of the part on its board, in °C/W.
    double HeatResistance;
    double ElectrodeMilliohms;
};

/// What has been measured of a part.
enum class Measured
{
    All,
    Capacitance,
    Power,
};

/// All capacitances that one case size, characteristic and rated voltage are made in.
struct Family
{
    std::string Size;
    /// EIA name, such as "X7R".
    std::string Characteristic;
    double Volts;
    /// Lowest and highest E6 capacitance in pF.
    std::int64_t LowestPf;
    std::int64_t HighestPf;
    Measured Data;
};

/// Reads the case sizes. Lines that begin with '#' are remarks, the first other line names the columns.
/// Throws std::runtime_error with the line when a field is missing or no number.
std::vector<CaseSize> ReadSizes(std::string_view text);

/// Reads the families; as `ReadSizes`. Capacitances are written "100p", "4.7n", "10u".
std::vector<Family> ReadFamilies(std::string_view text);

/// The E6 capacitances from lowest to highest, both included, in pF.
std::vector<std::int64_t> E6Capacitances(std::int64_t lowestPf, std::int64_t highestPf);
