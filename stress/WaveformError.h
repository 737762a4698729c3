#pragma once

/// Why a waveform tells no rise.

#include <stdexcept>
#include <string>

/// What is wrong with a waveform, or with what is asked of it, on one line.
class WaveformError : public std::runtime_error
{
public:
    explicit WaveformError(const std::string& message)
        : std::runtime_error(message)
    {
    }
};
