#pragma once

/// A progress bar on standard error for people who wait at a terminal.

#include <chrono>
#include <cstdint>
#include <string>

/// Shows a bar from the time when work has lasted half a second, and takes it away at the end. Shows nothing
/// when standard error is no terminal or the amount of work is not known.
class Progress
{
public:
    /// @param total amount of work, 0 when it is not known
    Progress(std::string what, std::uintmax_t total);
    Progress(Progress&& other) noexcept;
    ~Progress();

    void Advance(std::uintmax_t amount);

private:
    void Draw();

    std::string what;
    std::uintmax_t total;
    std::uintmax_t done = 0;
    std::chrono::steady_clock::time_point nextDrawing;
    bool drawn = false;
};
