#pragma once

/// What the entries of the window for waveforms ask for.

#include "frame/FindEntries.h"
#include "stress/Converters.h"
#include "stress/Stretch.h"

#include <string>
#include <variant>

/// What counts of a record, as it is typed, in UTF-8; what is empty is found. Times are in s without a unit.
struct RecordEntries
{
    std::string From = {};
    std::string To = {};
    /// Also a frequency, by its unit.
    std::string Period = {};
    bool CommaIsDecimal = false;
};

/// The stretch that is wished for; the first entry that is refused ends it.
std::variant<StretchWishes, RefusedEntry> WishesOf(const RecordEntries& entries);

/// A converter as it is typed, in UTF-8. Without a unit the frequency is in kHz, the inductance in µH.
struct ConverterEntries
{
    ConverterKind Kind = ConverterKind::Buck;
    std::string Vin = {};
    std::string Vout = {};
    std::string Iout = {};
    std::string Frequency = {};
    std::string Inductance = {};
    /// Of a flyback converter alone.
    std::string Turns = {};
    bool CommaIsDecimal = false;
};

/// The converter. An entry that is left out, and data that no converter has, are refused without the name of
/// a control.
std::variant<Converter, RefusedEntry> ConverterOf(const ConverterEntries& entries);
