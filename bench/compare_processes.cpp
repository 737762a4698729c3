/// Runs two programs in turn, as whole processes with their output thrown away, and prints the ratio of their
/// times.
///
///     compare_processes NAME RUNS PROGRAM YARDSTICK [ARGUMENT...]
///
/// Both are given the same arguments.

#include "bench/Turns.h"

#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

extern char** environ;

static double Microseconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_usec);
}

/// Microseconds of processor time that a program takes; ends the comparison when it fails.
static double TimeOf(char* program, std::vector<char*> arguments)
{
    arguments.insert(arguments.begin(), program);
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    int status = 0;
    rusage usage{};
    const bool ran = posix_spawn(&process, program, &actions, nullptr, arguments.data(), environ) == 0 &&
                     wait4(process, &status, 0, &usage) == process && status == 0;
    posix_spawn_file_actions_destroy(&actions);
    if (!ran)
    {
        std::cerr << program << " failed\n";
        std::exit(1);
    }
    return Microseconds(usage.ru_utime) + Microseconds(usage.ru_stime);
}

int main(int argc, char* argv[])
{
    if (argc < 5 || std::atoi(argv[2]) < 1)
    {
        std::cerr << "usage: compare_processes NAME RUNS PROGRAM YARDSTICK [ARGUMENT...]\n";
        return 2;
    }
    const std::vector<char*> arguments(argv + 5, argv + argc);
    // The first run of each finds nothing in the file cache.
    TimeOf(argv[3], arguments);
    TimeOf(argv[4], arguments);
    CompareInTurns(
        argv[1], std::atoi(argv[2]), [&](int) { return TimeOf(argv[3], arguments); },
        [&](int) { return TimeOf(argv[4], arguments); });
    return 0;
}
