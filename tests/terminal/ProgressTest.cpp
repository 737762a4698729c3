/// The progress bar as a person at a terminal sees it.

#include "terminal/Progress.h"

#include "tests/terminal/PseudoTerminal.h"

#include <gtest/gtest.h>

#include <array>
#include <iostream>
#include <thread>

#include <unistd.h>

namespace
{
using std::chrono::milliseconds;

/// Standard error on another file for a while.
class ErrorStreamOn
{
public:
    explicit ErrorStreamOn(int handle)
        : former(dup(STDERR_FILENO))
    {
        dup2(handle, STDERR_FILENO);
    }
    ~ErrorStreamOn()
    {
        std::cerr.flush();
        dup2(former, STDERR_FILENO);
        close(former);
    }
    ErrorStreamOn(const ErrorStreamOn&) = delete;
    ErrorStreamOn& operator=(const ErrorStreamOn&) = delete;

private:
    int former;
};

void WaitOutThePatience()
{
    std::this_thread::sleep_for(milliseconds(550));
}

TEST(Progress, ShowsABarOnATerminalOnceWorkTakesLongAndTakesItAway)
{
    const PseudoTerminal terminal;
    {
        const ErrorStreamOn errors(terminal.Line());
        Progress progress("curves", 200);
        progress.Advance(50);
        EXPECT_EQ(terminal.Shown(), "") << "work has only begun";
        WaitOutThePatience();
        progress.Advance(50);
        EXPECT_EQ(terminal.Shown(), "\rcurves [###############...............] 50 %");
        // More than there was to do reads as all of it.
        std::this_thread::sleep_for(milliseconds(110));
        progress.Advance(500);
        EXPECT_EQ(terminal.Shown(), "\rcurves [##############################] 100 %");
    }
    EXPECT_EQ(terminal.Shown(), "\r\x1B[K");
}

TEST(Progress, IsTakenAwayOnceWhereItMoves)
{
    const PseudoTerminal terminal;
    {
        const ErrorStreamOn errors(terminal.Line());
        Progress first("curves", 4);
        WaitOutThePatience();
        first.Advance(1);
        EXPECT_NE(terminal.Shown(), "");
        const Progress second = std::move(first);
    }
    EXPECT_EQ(terminal.Shown(), "\r\x1B[K");
}

TEST(Progress, ShowsNothingOfWorkOfUnknownAmount)
{
    const PseudoTerminal terminal;
    {
        const ErrorStreamOn errors(terminal.Line());
        Progress progress("curves", 0);
        WaitOutThePatience();
        progress.Advance(50);
    }
    EXPECT_EQ(terminal.Shown(), "");
}

TEST(Progress, ShowsNothingWhereNobodyWatches)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    {
        const ErrorStreamOn errors(pipe[1]);
        Progress progress("curves", 100);
        WaitOutThePatience();
        progress.Advance(50);
    }
    close(pipe[1]);
    char c = 0;
    EXPECT_EQ(read(pipe[0], &c, 1), 0);
    close(pipe[0]);
}
} // namespace
