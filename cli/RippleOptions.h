#pragma once

/// The options of `tavik-cli ripple`.

#include "requests/StressReport.h"

#include <optional>
#include <string>

namespace CLI
{
class App;
}

/// What is typed.
struct RippleOptions
{
    /// Empty for a converter.
    std::string Waveform;
    std::optional<std::string> Column;
    std::optional<std::string> Voltage;
    StretchWishes Wishes;
    std::optional<Converter> Source;
    std::optional<ConverterSide> Side;
    StressRequest Request;
    CurveSettings Settings;
    std::string DataFolder;
    std::string Format;
    std::string OutputFile;
    std::string Picture;
};

/// Adds all options of the command.
void AddRippleOptions(CLI::App& command, RippleOptions& options);
