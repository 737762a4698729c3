#pragma once

/// Numbers of tables for people: four digits are all that a circuit is built by.

#include <string>

/// The number rounded to four significant digits, zeros behind the point dropped: "28.53", "0.2124", "20".
std::string FourDigits(float value);

/// A capacitance in pF with its prefix, as `EntryInUnit` reads it: "6.277uF", "22uF", "0.5pF". The prefix is
/// chosen after rounding: 999.96 nF reads "1uF".
std::string CapacitanceInFourDigits(float picofarads);
