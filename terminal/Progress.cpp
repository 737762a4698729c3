#include "terminal/Progress.h"

#include "terminal/Terminal.h"

#include <algorithm>
#include <iostream>
#include <utility>

static constexpr auto patience = std::chrono::milliseconds(500);
static constexpr auto drawingInterval = std::chrono::milliseconds(100);
static constexpr std::uintmax_t barWidth = 30;

Progress::Progress(std::string name, std::uintmax_t amount)
    : what(std::move(name))
    , total(IsTerminal(Stream::Error) ? amount : 0)
    , nextDrawing(std::chrono::steady_clock::now() + patience)
{
}

Progress::Progress(Progress&& other) noexcept
    : what(std::move(other.what))
    , total(std::exchange(other.total, 0))
    , done(other.done)
    , nextDrawing(other.nextDrawing)
    , drawn(std::exchange(other.drawn, false))
{
}

Progress::~Progress()
{
    if (drawn)
    {
        std::cerr << "\r\x1B[K" << std::flush;
    }
}

void Progress::Advance(std::uintmax_t amount)
{
    done += amount;
    if (total > 0 && std::chrono::steady_clock::now() >= nextDrawing)
    {
        Draw();
    }
}

void Progress::Draw()
{
    const auto reached = std::min(done, total);
    const auto filled = static_cast<std::size_t>(barWidth * reached / total);
    std::cerr << '\r' << what << " [" << std::string(filled, '#') << std::string(barWidth - filled, '.')
              << "] " << 100 * reached / total << " %" << std::flush;
    nextDrawing = std::chrono::steady_clock::now() + drawingInterval;
    drawn = true;
}
