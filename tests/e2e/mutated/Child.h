#pragma once

/// Processes that may not take more than their share of time and memory.

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// How a process ended.
struct ChildEnd
{
    /// Exit status, or minus the signal that ended it.
    int Status = 0;
    std::string Output;
    std::string Messages;
    double Seconds = 0;
    /// The most memory that it held at a time.
    double Megabytes = 0;
};

/// What a process may take; one that takes more is ended by a signal or runs out of memory.
struct ChildLimits
{
    std::size_t AddressSpace = std::size_t{1} << 30;
    unsigned ProcessorSeconds = 10;
    /// Time on the clock; one that still runs is asked to end (SIGTERM).
    double Patience = 30;
};

/// Runs a program, and waits for its end.
ChildEnd RunLimited(const std::vector<std::string>& command, const std::string& input = "",
                    const ChildLimits& limits = {});

/// Runs a function in a copy of this process; its answer is the exit status.
ChildEnd RunCopy(const std::function<int()>& function, const ChildLimits& limits = {});
